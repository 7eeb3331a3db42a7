#include "screens/SkinButton.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <algorithm>

#include "screens/Hint.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

constexpr int kLooks = 3;  // of a button
constexpr QSize kPlainSize(80, 32);
constexpr QSize kPlainBox(20, 20);
constexpr int kPadding = 14;
constexpr int kCaptionGap = 8;
constexpr int kPlateEnd = 12;  // of a plate, what is not stretched
constexpr QColor kPlateInk(0xFF, 0xF6, 0xE4);
constexpr QColor kPlateRim(0x1C, 0x24, 0x1C);
constexpr double kRimWidth = 3;
constexpr int kRing = 4;  // room for the ring around what has the focus

// A plate in the colours of the palette, for what has no picture.
void DrawPlate(QPainter& painter, const QRect& place, const QPalette& palette, int state) {
  const QColor ground = palette.color(QPalette::Button);
  painter.setPen(QPen(palette.color(state == 1 ? QPalette::ButtonText : QPalette::Mid), 1.5));
  painter.setBrush(state == 2 ? ground.darker(130) : state == 1 ? ground.lighter(125) : ground);
  painter.drawRoundedRect(QRectF(place).adjusted(1, 1, -1, -1), 6, 6);
}

// Words with a rim, which can be read on a plate of any colour.
void DrawRimmed(QPainter& painter, const QRect& place, const QString& words) {
  const QFontMetrics letters = painter.fontMetrics();
  const QRect box = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                        QSize(letters.horizontalAdvance(words), letters.height()), place);
  QPainterPath path;
  path.addText(box.left(), box.top() + letters.ascent(), painter.font(), words);
  painter.strokePath(path, QPen(kPlateRim, kRimWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(path, kPlateInk);
}

}  // namespace

LooksButton::LooksButton(QWidget* parent) : QAbstractButton(parent) {
  setAttribute(Qt::WA_Hover);
}

void LooksButton::Cut(const QImage& picture, int count) {
  looks_.clear();
  const int width = picture.width() / count;
  for (int i = 0; i < count && width > 0; ++i) {
    looks_.push_back(picture.copy(i * width, 0, width, picture.height()));
  }
}

QSize LooksButton::FrameSize() const {
  return looks_.empty() ? QSize() : looks_.front().size();
}

void LooksButton::DrawLook(QPainter& painter, QPoint place, int look) const {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, looks_[static_cast<std::size_t>(look)]);
}

void LooksButton::StretchLook(QPainter& painter, const QRect& place, int look) const {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QImage& image = looks_[static_cast<std::size_t>(look)];
  const int end = std::min(kPlateEnd, image.width() / 2);
  const int height = image.height();
  painter.drawImage(place.topLeft(), image, QRect(0, 0, end, height));
  painter.drawImage(QRect(place.left() + end, place.top(), place.width() - 2 * end, height), image,
                    QRect(end, 0, image.width() - 2 * end, height));
  painter.drawImage(QPoint(place.right() + 1 - end, place.top()), image,
                    QRect(image.width() - end, 0, end, height));
}

int LooksButton::State() const {
  if (isDown()) return 2;
  return underMouse() && isEnabled() ? 1 : 0;
}

// A pressed button stays so until it is let go, wherever the pointer is.
void LooksButton::mouseMoveEvent(QMouseEvent* event) {
  event->setAccepted(isDown());
}

SkinButton::SkinButton(QWidget* parent) : LooksButton(parent) {
  setFocusPolicy(Qt::NoFocus);
}

void SkinButton::SetPicture(const QImage& picture) {
  plate_ = false;
  Cut(picture, kLooks);
  setFixedSize(sizeHint());
  update();
}

void SkinButton::SetPlate(const QImage& picture) {
  SetPicture(picture);
  plate_ = HasLooks();
  setFixedSize(sizeHint());
}

void SkinButton::SetWords(const QString& words) {
  setText(InMenu(words));
  SetHint(*this, words);
  setAccessibleName(OneLine(words));
  if (ShowsText()) setFixedSize(sizeHint());
}

QSize SkinButton::sizeHint() const {
  if (!ShowsText()) return FrameSize();
  const QSize words = fontMetrics().size(Qt::TextHideMnemonic, text());
  if (plate_) return {std::max(FrameSize().width(), words.width() + 2 * kPadding), FrameSize().height()};
  return kPlainSize.expandedTo(words + QSize(2 * kPadding, kPadding));
}

void SkinButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (plate_) {
    StretchLook(painter, rect(), State());
    const int pressed = State() == 2 ? 1 : 0;
    DrawRimmed(painter, rect().translated(pressed, pressed - 1), OneLine(accessibleName(), kMostInCaption));
    return;
  }
  if (HasLooks()) {
    DrawLook(painter, QPoint(), State());
    return;
  }
  DrawPlate(painter, rect(), palette(), State());
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
}

SkinCheck::SkinCheck(QWidget* parent) : LooksButton(parent) {
  setCheckable(true);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SkinCheck::SetPicture(const QImage& picture) {
  Cut(picture, 2 * kLooks);
  updateGeometry();
  update();
}

QSize SkinCheck::BoxSize() const {
  return HasLooks() ? FrameSize() : kPlainBox;
}

QSize SkinCheck::sizeHint() const {
  const QSize box = BoxSize();
  const QSize words = fontMetrics().size(Qt::TextHideMnemonic, text()) + QSize(2 * kRing, 2 * kRing);
  return QSize(box.width() + kCaptionGap + words.width(), std::max(box.height(), words.height()));
}

void SkinCheck::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect box(QPoint(0, (height() - BoxSize().height()) / 2), BoxSize());
  if (HasLooks()) {
    DrawLook(painter, box.topLeft(), State() + (isChecked() ? kLooks : 0));
  } else {
    DrawPlate(painter, box, palette(), State());
    painter.setPen(palette().color(QPalette::ButtonText));
    if (isChecked()) painter.drawText(box, Qt::AlignCenter, QString(QChar(0x2713)));
  }
  const QRect caption = rect().adjusted(box.width() + kCaptionGap, 0, 0, 0);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(caption.adjusted(kRing, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextHideMnemonic,
                   text());
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(caption).adjusted(0.75, 0.75, -0.75, -0.75), 5, 5);
}

}  // namespace zorik
