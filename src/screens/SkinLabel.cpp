#include "screens/SkinLabel.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "screens/ShowText.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr QChar kDots(0x2026);

struct Fitting {
  QString text;  // in lines
  bool whole;
};

// As many lines of a text as there is room for; the last one ends in dots if that is not all.
Fitting FitText(const QString& text, const QFontMetrics& metrics, QSize room) {
  const int most = std::max(1, room.height() / metrics.lineSpacing());
  const WrappedText wrapped = WrapText(InLines(text), metrics, room.width(), most);
  QStringList lines = wrapped.lines;
  if (wrapped.whole) return {lines.join('\n'), true};
  lines.back() = metrics.elidedText(lines.back() + kDots, Qt::ElideRight, room.width());
  return {lines.join('\n'), false};
}

}  // namespace

SkinLabel::SkinLabel(QWidget* parent) : QWidget(parent) {}

void SkinLabel::SetText(const QString& text) {
  text_ = text;
  setAccessibleName(InLines(text));
  LayOut();
}

void SkinLabel::SetLook(QColor colour, Qt::Alignment alignment, int letters) {
  colour_ = colour;
  alignment_ = alignment;
  setFont(GameFont(letters));
  LayOut();
}

void SkinLabel::SetLink(QColor hover, const QString& hint) {
  hover_ = hover;
  setCursor(IsLink() ? Qt::PointingHandCursor : Qt::ArrowCursor);
  hovered_ = IsLink() && underMouse();
  SetHint(hint);
}

void SkinLabel::SetHint(const QString& hint) {
  hint_ = hint;
  LayOut();
}

void SkinLabel::LayOut() {
  const Fitting fitting = FitText(text_, fontMetrics(), size());
  shown_ = fitting.text;
  zorik::SetHint(*this, hint_.isEmpty() && !fitting.whole ? text_ : hint_);
  update();
}

void SkinLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(Colour());
  painter.drawText(rect(), static_cast<int>(alignment_), shown_);
}

void SkinLabel::resizeEvent(QResizeEvent* /*event*/) {
  LayOut();
}

void SkinLabel::enterEvent(QEnterEvent* /*event*/) {
  hovered_ = IsLink();
  update();
}

void SkinLabel::leaveEvent(QEvent* /*event*/) {
  hovered_ = false;
  update();
}

void SkinLabel::mousePressEvent(QMouseEvent* event) {
  event->setAccepted(IsLink());
}

void SkinLabel::mouseReleaseEvent(QMouseEvent* event) {
  event->setAccepted(IsLink());
  if (!IsLink() || event->button() != Qt::LeftButton) return;
  if (rect().contains(event->position().toPoint())) emit LinkClicked();
}

SkinPicture::SkinPicture(QWidget* parent) : QWidget(parent) {}

void SkinPicture::SetPicture(const QImage& picture) {
  picture_ = picture;
  setFixedSize(picture.size());
  update();
}

void SkinPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(0, 0, picture_);
}

}  // namespace zorik
