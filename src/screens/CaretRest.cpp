#include "screens/CaretRest.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace zorik {
namespace {

bool Wakes(QEvent::Type type) {
  return type == QEvent::FocusIn || type == QEvent::KeyPress || type == QEvent::InputMethod ||
         type == QEvent::MouseButtonPress;
}

bool TakesText(const QObject* object) {
  const auto* const widget = qobject_cast<const QWidget*>(object);
  return widget != nullptr && widget->testAttribute(Qt::WA_InputMethodEnabled);
}

}  // namespace

CaretRest::CaretRest(std::chrono::milliseconds patience) : usual_(QApplication::cursorFlashTime()) {
  patience_.setSingleShot(true);
  patience_.setInterval(patience);
  connect(&patience_, &QTimer::timeout, this, [] { QApplication::setCursorFlashTime(0); });
  qApp->installEventFilter(this);
}

CaretRest::~CaretRest() {
  QApplication::setCursorFlashTime(usual_);
}

void CaretRest::Wake() {
  if (!patience_.isActive()) QApplication::setCursorFlashTime(usual_);
  patience_.start();
}

bool CaretRest::eventFilter(QObject* object, QEvent* event) {
  if (Wakes(event->type()) && TakesText(object)) Wake();
  return false;
}

}  // namespace zorik
