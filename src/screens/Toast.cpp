#include "screens/Toast.h"

#include <QApplication>
#include <QScreen>

#include "screens/PlainText.h"
#include "screens/ShowText.h"
#include "screens/SkinWindow.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kShownFor = 4000;  // milliseconds
constexpr int kLetters = 16;
constexpr int kPadding = 16;
constexpr int kLineWidth = 420;
constexpr int kTop = 60;  // below the upper edge of the screen
constexpr qsizetype kMostCharacters = 400;

}  // namespace

Toast::Toast()
    : QLabel(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput) {
  setObjectName("waitSign");
  setAttribute(Qt::WA_ShowWithoutActivating);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignCenter);
  setFont(GameFont(kLetters));
  setMargin(kPadding);
  setAutoFillBackground(true);
  const Tones tones = TonesOf(kPlainGround);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, tones.ground);
  colours.setColor(QPalette::WindowText, tones.text);
  setPalette(colours);
  timer_.setSingleShot(true);
  timer_.setInterval(kShownFor);
  timer_.callOnTimeout(this, &QWidget::hide);
}

void Toast::Say(const QString& text) {
  setText(WrapText(InLines(text, kMostCharacters), fontMetrics(), kLineWidth).lines.join('\n'));
  adjustSize();
  const QWidget* const window = QApplication::activeWindow();
  const QRect area = (window == nullptr ? screen() : window->screen())->availableGeometry();
  move(area.center().x() - width() / 2, area.top() + kTop);
  show();
  raise();
  timer_.start();
}

}  // namespace zorik
