#include "screens/Hint.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMessageBox>
#include <QPointer>
#include <QToolTip>

#include "screens/PlainText.h"
#include "screens/ShowText.h"

namespace zorik {
namespace {

constexpr int kWidth = 400;  // logical pixels
constexpr int kMostLines = 30;
constexpr QChar kDots(0x2026);

// The toolkit takes what looks like markup for it, and a picture that is named there for a file to be read.
QString Escaped(const QString& text) {
  const QFontMetrics letters(QToolTip::font());
  const WrappedText wrapped = WrapText(InLines(text), letters, kWidth, kMostLines);
  const QString lines = wrapped.lines.join('\n') + (wrapped.whole ? QString() : QString(kDots));
  return "<p style='white-space:pre'>" + lines.toHtmlEscaped() + "</p>";
}

QString HintOf(const QWidget& widget, QPoint place) {
  const auto* const view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
  if (view == nullptr || view->viewport() != &widget) return widget.toolTip();
  const QModelIndex item = view->indexAt(place);
  return item.data(Qt::ToolTipRole).toString();
}

class HintFilter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Polish) {
      if (auto* const box = qobject_cast<QMessageBox*>(object)) box->setTextFormat(Qt::PlainText);
    }
    if (event->type() != QEvent::ToolTip || !object->isWidgetType()) return false;
    auto& widget = static_cast<QWidget&>(*object);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QString hint = HintOf(widget, help.pos());
    if (hint.isEmpty()) return false;
    ShowHint(help.globalPos(), hint, widget);
    return true;
  }
};

}  // namespace

void SetHint(QWidget& widget, const QString& text) {
  KeepHintsPlain();
  widget.setToolTip(text);
}

void SetHint(QAction& action, const QString& text) {
  KeepHintsPlain();
  action.setToolTip(text);
}

void ShowHint(QPoint place, const QString& text, QWidget& widget, const QRect& part) {
  if (text.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(place, Escaped(text), &widget, part);
  }
}

void KeepHintsPlain() {
  static QPointer<HintFilter> filter;
  if (filter) return;
  filter = new HintFilter(qApp);
  qApp->installEventFilter(filter);
}

}  // namespace zorik
