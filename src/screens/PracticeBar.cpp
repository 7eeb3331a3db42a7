#include "screens/PracticeBar.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "screens/BarButton.h"
#include "screens/Hint.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

// In the desktop's units, where there is room for them.
constexpr int kHeight = 54;
constexpr int kWidest = 860;
constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kPadding = 9;  // of a button's words
constexpr int kButton = kHeight - 2 * kMargin;

constexpr QColor kRim(0x70, 0xD8, 0xF0);

constexpr std::array<const char*, kPracticeActs> kNames{"rewind", "mark", "tomark", "slow",
                                                        "killed", "way",  "earnest"};

bool Lasts(PracticeAct act) {
  return act == PracticeAct::Rewind || act == PracticeAct::WhichWay;
}

bool HelpsWhenWon(PracticeAct act) {
  return act == PracticeAct::Rewind || act == PracticeAct::BackToMark;
}

}  // namespace

PracticeBar::PracticeBar(QWidget* parent) : FloatingBar(parent, kHeight, kWidest) {
  setObjectName("practicebar");
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const auto act = static_cast<PracticeAct>(i);
    buttons_[i] = NewButton(kNames[i]);
    connect(buttons_[i], Lasts(act) ? &BarButton::Pressed : &BarButton::Clicked, this,
            [this, act] { emit Wanted(act); });
    connect(buttons_[i], &BarButton::LetGo, this, [this, act] { emit LetGo(act); });
  }
  ButtonOf(PracticeAct::InEarnest).hide();
}

void PracticeBar::SetWords(const Skin& skin, const KeyMap& keys) {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const auto act = static_cast<PracticeAct>(i);
    buttons_[i]->SetCaption(WordsOf(act).In(skin));
    const QString key = KeyOf(act, keys, skin);
    buttons_[i]->SetKey(key.isEmpty() ? QString(QChar(0x2013)) : key);
    SetHint(*buttons_[i], HintOf(act).In(skin));
  }
}

void PracticeBar::Offer(bool won, bool earnest) {
  if (std::exchange(won_, won) == won && std::exchange(earnest_, earnest) == earnest) return;
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const auto act = static_cast<PracticeAct>(i);
    buttons_[i]->setVisible(act == PracticeAct::InEarnest ? won && earnest : !won || HelpsWhenWon(act));
  }
  ButtonOf(PracticeAct::InEarnest).SetPulse(won && earnest);
  Arrange();
}

// That of all buttons of play: the bar keeps its size when the run is won.
int PracticeBar::NeededWidth() const {
  int width = 2 * kMargin - kGap;
  for (const BarButton* const button : buttons_) {
    if (button == &ButtonOf(PracticeAct::InEarnest)) continue;
    width += button->CaptionWidth(kButton) + 2 * kPadding + kGap;
  }
  return width;
}

// The buttons share what room is left.
void PracticeBar::Arrange() {
  int all = -Scaled(kGap);
  int shown = 0;
  const auto widthOf = [&](const BarButton& button) {
    return button.CaptionWidth(Scaled(kButton)) + 2 * Scaled(kPadding);
  };
  for (const BarButton* const button : buttons_) {
    if (button->isHidden()) continue;
    all += widthOf(*button) + Scaled(kGap);
    ++shown;
  }
  const int more = std::max(0, (width() - 2 * Scaled(kMargin) - all) / std::max(1, shown));
  int left = Scaled(kMargin);
  for (BarButton* const button : buttons_) {
    if (button->isHidden()) continue;
    button->setGeometry(left, Scaled(kMargin), widthOf(*button) + more, height() - 2 * Scaled(kMargin));
    left += button->width() + Scaled(kGap);
  }
  update();
}

void PracticeBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintGround(painter, kRim);
}

}  // namespace zorik
