#include "screens/SkinWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "screens/OpaqueRegion.h"
#include "screens/SkinButton.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

constexpr double kCorner = 8;
constexpr double kBorder = 1.5;
// Edges that are half clear belong to the shape; where the desktop does not blend windows they are dark, so
// the clearest are left out.
constexpr int kSeen = 64;

void ClearOutside(QImage& image) {
  const QRgb outside = image.pixel(0, 0);
  if (outside == 0) return;
  for (int y = 0; y < image.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::replace(line, line + image.width(), outside, qRgba(0, 0, 0, 0));
  }
}

}  // namespace

SkinSurface::SkinSurface(QWidget* window) : QObject(window), window_(window) {
  window->setWindowFlag(Qt::FramelessWindowHint);
  window->setAttribute(Qt::WA_TranslucentBackground);
  window->installEventFilter(this);
}

void SkinSurface::SetPicture(const QImage& picture) {
  picture_ = picture.convertToFormat(QImage::Format_ARGB32);
  if (picture_.isNull()) return;
  ClearOutside(picture_);
  // What is laid over and what is drawn need it in this form, and would each change it anew.
  picture_.convertTo(QImage::Format_ARGB32_Premultiplied);
  window_->setFixedSize(picture_.size());
  Shape();
  window_->update();
}

void SkinSurface::LayOver(const QImage& picture) {
  if (picture_.isNull()) return;
  QPainter painter(&picture_);
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  painter.drawImage(0, 0, picture);
  window_->update();
}

void SkinSurface::SetColour(QColor colour) {
  picture_ = QImage();
  colour_ = colour;
  Shape();
  window_->update();
}

void SkinSurface::Draw(QPainter& painter) const {
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  if (!picture_.isNull()) {
    painter.drawImage(0, 0, picture_);
    return;
  }
  painter.setPen(QPen(TonesOf(colour_).line, kBorder));
  painter.setBrush(colour_);
  const double inset = kBorder / 2;
  painter.drawRoundedRect(QRectF(window_->rect()).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
}

void SkinSurface::Shape() {
  if (!window_->isVisible()) return;
  QImage drawn = picture_;
  if (drawn.isNull()) {
    drawn = QImage(window_->size(), QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    Draw(painter);
  }
  QRegion shape = OpaqueRegion(drawn, kSeen);
  for (const SkinButton* const button : window_->findChildren<SkinButton*>(Qt::FindDirectChildrenOnly)) {
    const QRect place = button->geometry();
    if (button->isVisibleTo(window_) && !shape.contains(place.center())) shape += place;
  }
  window_->setMask(shape);
}

void SkinSurface::Drag(const QMouseEvent& event) {
  const QPoint pointer = event.globalPosition().toPoint();
  if (hold_ == Hold::Pressed) {
    const QPoint way = pointer - window_->pos() - grip_;
    if (way.manhattanLength() < QApplication::startDragDistance()) return;
    QWindow* const handle = window_->windowHandle();
    if (handle != nullptr && handle->startSystemMove()) {
      hold_ = Hold::None;  // the desktop keeps the pointer until it is let go
      return;
    }
    hold_ = Hold::Dragged;
  }
  window_->move(pointer - grip_);
}

bool SkinSurface::eventFilter(QObject* /*object*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::Paint: {
      QPainter painter(window_);
      Draw(painter);
      break;
    }
    case QEvent::Resize:
    case QEvent::Show:
      Shape();
      break;
    case QEvent::MouseButtonPress: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      if (mouse.button() != Qt::LeftButton) break;
      grip_ = mouse.globalPosition().toPoint() - window_->pos();
      hold_ = Hold::Pressed;
      break;
    }
    case QEvent::MouseMove: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      if (hold_ != Hold::None && mouse.buttons().testFlag(Qt::LeftButton)) Drag(mouse);
      break;
    }
    case QEvent::MouseButtonRelease:
      hold_ = Hold::None;
      break;
    default:
      break;
  }
  return false;
}

SkinWindow::SkinWindow(QWidget* parent) : QWidget(parent, Qt::Window), surface_(new SkinSurface(this)) {}

SkinDialog::SkinDialog(QWidget* parent) : QDialog(parent), surface_(new SkinSurface(this)) {}

void SkinDialog::setVisible(bool visible) {
  if (visible && !isVisible()) {
    Centre();
    if (parentWidget() != nullptr) parentWidget()->window()->installEventFilter(this);
  }
  QDialog::setVisible(visible);
}

// A window that has just opened may get its size from the desktop when the dialog is already there.
bool SkinDialog::eventFilter(QObject* object, QEvent* event) {
  const bool changed = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  const bool parents = parentWidget() != nullptr && object == parentWidget()->window();
  if (changed && parents && isVisible() && pos() == centred_) Centre();
  return QDialog::eventFilter(object, event);
}

void SkinDialog::Centre() {
  const QWidget* const parent = parentWidget() == nullptr ? nullptr : parentWidget()->window();
  const QScreen* const screen = (parent == nullptr ? this : parent)->screen();
  const QRect area = screen->availableGeometry();
  const bool above = parent != nullptr && parent->isVisible() && !parent->isMinimized();
  QRect place = rect();
  place.moveCenter(above ? parent->geometry().center() : area.center());
  place.moveRight(std::min(place.right(), area.right()));
  place.moveBottom(std::min(place.bottom(), area.bottom()));
  place.moveLeft(std::max(place.left(), area.left()));
  place.moveTop(std::max(place.top(), area.top()));
  centred_ = place.topLeft();
  move(centred_);
}

void SkinDialog::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
      if (!event->isAutoRepeat()) OnEnter();
      break;
    case Qt::Key_Escape:
      if (!event->isAutoRepeat()) OnEsc();
      break;
    default:
      event->ignore();
  }
}

}  // namespace zorik
