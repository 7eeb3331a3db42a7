#include "screens/FrmLoading.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPainter>
#include <QRegion>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr QSize kSize(200, 38);
constexpr int kWordsLeft = 54;
constexpr int kWordsMargin = 8;
constexpr int kLetters = 16;
constexpr int kPatience = 250;  // milliseconds
constexpr QColor kInk(0x3A, 0x24, 0x18);
constexpr QColor kPaper(0xF0, 0xE2, 0xC6);

QRegion Outline() {
  QRegion outline(QRect(QPoint(9, 0), QPoint(191, 37)));
  for (const QPoint corner : {QPoint(0, 0), QPoint(0, 17), QPoint(180, 0), QPoint(180, 17)}) {
    outline += QRegion(QRect(corner, QSize(21, 21)), QRegion::Ellipse);
  }
  return outline + QRect(QPoint(0, 9), QPoint(200, 28));
}

// A key that is let go is heard: it does nothing, and who counts it as held would wait for it for ever.
bool FromPlayer(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return true;
    case QEvent::Close:
      return event.spontaneous();
    default:
      return false;
  }
}

bool IsDialog(const QObject& object) {
  const auto* const widget = qobject_cast<const QWidget*>(&object);
  return widget != nullptr && widget->isWindow() && widget->isModal();
}

}  // namespace

FrmLoading::FrmLoading(Skin& skin)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus),
      skin_(skin) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFixedSize(kSize);
  setMask(Outline());
}

FrmLoading::~FrmLoading() = default;

void FrmLoading::Appear() {
  if (isVisible()) return;
  picture_ = skin_.MenuPicture("working");
  words_ = OneLine(kLoadingWords.In(skin_), kMostInCaption);
  SetTitle(*this, kProgramTitle);
  move(screen()->availableGeometry().center() - rect().center());
  qApp->installEventFilter(this);
  show();
  Paint();
}

// The desktop takes a moment to make room for a window; what is painted before that is not seen.
void FrmLoading::Paint() {
  QElapsedTimer clock;
  clock.start();
  const QWindow* const handle = windowHandle();
  do {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kPatience);
  } while (!handle->isExposed() && clock.elapsed() < kPatience);
  repaint();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FrmLoading::Disappear() {
  if (!isVisible()) return;
  hide();
  // What the player did meanwhile still waits to be handed out; a timer without delay comes after that.
  QTimer::singleShot(0, this, [this] {
    if (!isVisible()) qApp->removeEventFilter(this);
  });
}

// A question that comes up in the work must be seen and answered, though.
bool FrmLoading::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Show && IsDialog(*object)) Disappear();
  return FromPlayer(*event) && QApplication::activeModalWidget() == nullptr;
}

void FrmLoading::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (picture_.isNull()) {
    painter.fillRect(rect(), kPaper);
  } else {
    painter.drawImage(rect(), picture_);
  }
  painter.setPen(kInk);
  painter.setFont(GameFont(kLetters));
  painter.drawText(rect().adjusted(kWordsLeft, 0, -kWordsMargin, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   words_);
}

}  // namespace zorik
