#include "screens/FrmKeys.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/JoyPad.h"
#include "platform/Keyboard.h"
#include "screens/FittingArea.h"
#include "screens/KeyBox.h"
#include "screens/KeyWords.h"
#include "screens/Marks.h"
#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/StartWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;
constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kRowGap = 4;
constexpr int kBetween = 24;  // the two columns
constexpr int kKeyWidth = 158;
constexpr int kButtonWidth = 44;
constexpr QChar kPadAsks(0x2026);  // dots; there is no room for more
constexpr int kListenEvery = 20;   // milliseconds

constexpr std::size_t kRows = kKeyUses / 2;  // of keys; the others stand in a second column

constexpr std::array<StartWords, kKeyUses> kUseWords{{{"caption.keys.left"},
                                                      {"caption.keys.up"},
                                                      {"caption.keys.right"},
                                                      {"caption.keys.down"},
                                                      {"caption.keys.action"},
                                                      {"caption.keys.restart"},
                                                      {"caption.keys.pause"},
                                                      {"caption.keys.next"},
                                                      {"caption.keys.rewind"},
                                                      {"caption.keys.mark"},
                                                      {"caption.keys.tomark"},
                                                      {"caption.keys.slow"}}};
constexpr std::array<StartWords, kPadUses> kPadUseWords{
    {{"caption.keys.action"}, {"caption.keys.next"}, {"caption.keys.restart"}, kPauseWords}};

// Down the columns: the keys of every run, and those of commands and practice.
constexpr std::array kOrder{KeyUse::Left,   KeyUse::Up,       KeyUse::Right,      KeyUse::Down,
                            KeyUse::Action, KeyUse::NextUnit, KeyUse::Pause,      KeyUse::Restart,
                            KeyUse::Rewind, KeyUse::SetMark,  KeyUse::BackToMark, KeyUse::SlowMotion};

}  // namespace

FrmKeys::FrmKeys(Skin& skin, QWidget* parent, QSize room)
    : SettingsDialog(skin, parent, room),
      keyGrid_(new QGridLayout),
      padGrid_(new QGridLayout),
      lblPad_(NewLabel(part_)),
      lblSays_(NewLabel(this)) {
  lblSays_->setObjectName("lblSays");
  own_->setObjectName("reset");
  connect(own_, &SkinButton::clicked, this, &FrmKeys::Reset);
  listening_.setInterval(kListenEvery);
  connect(&listening_, &QTimer::timeout, this, &FrmKeys::ListenToPad);
  MakeKeyBoxes();
  MakePadBoxes();
  LayOut();
}

FrmKeys::~FrmKeys() = default;

// In the order in which the Tab key goes through them.
void FrmKeys::MakeKeyBoxes() {
  for (const KeyUse use : kOrder) {
    const auto i = static_cast<std::size_t>(use);
    lblKeys_[i] = NewLabel(part_);
    boxes_[i] = new KeyBox(part_, kKeyWidth);
    boxes_[i]->setObjectName("key" + QString::number(i));
    connect(boxes_[i], &KeyBox::Asked, this, [this] { Say(kHowWords.In(skin_)); });
    connect(boxes_[i], &KeyBox::Caught, this, [this, use](const KeyChoice& key) { KeyCaught(use, key); });
  }
}

void FrmKeys::MakePadBoxes() {
  for (std::size_t i = 0; i < kPadUses; ++i) {
    const auto use = static_cast<PadUse>(i);
    lblButtons_[i] = NewLabel(part_);
    padBoxes_[i] = new KeyBox(part_, kButtonWidth);
    padBoxes_[i]->setObjectName("pad" + QString::number(i));
    connect(padBoxes_[i], &KeyBox::Asked, this, &FrmKeys::PadAsked);
    connect(padBoxes_[i], &KeyBox::Caught, this,
            [this, use](const KeyChoice& key) { PadKeyCaught(use, key); });
  }
}

void FrmKeys::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGap / 2);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblCaption_, 0, Qt::AlignHCenter);

  auto* const parts = new QVBoxLayout(part_);
  parts->setContentsMargins(0, 0, 0, 0);
  keyGrid_->setHorizontalSpacing(kGap);
  keyGrid_->setVerticalSpacing(kRowGap);
  padGrid_->setHorizontalSpacing(kRowGap);
  padGrid_->setVerticalSpacing(kRowGap);
  parts->addLayout(keyGrid_);
  parts->addSpacing(kRowGap);
  parts->addLayout(padGrid_);
  rows->addWidget(area_, 0, Qt::AlignHCenter);
  lblSays_->setWordWrap(true);
  lblSays_->setAlignment(Qt::AlignCenter);
  rows->addWidget(lblSays_);

  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addStretch();
  for (SkinButton* const button : {own_, ok_, close_}) buttons->addWidget(button);
  buttons->addStretch();
  rows->addLayout(buttons);
}

// The keys in two columns and the pad in one line, or the keys in one column and the pad in two lines.
void FrmKeys::Place(bool narrow) {
  for (std::size_t place = 0; place < kOrder.size(); ++place) {
    const auto i = static_cast<std::size_t>(kOrder[place]);
    const bool second = !narrow && place >= kRows;
    const int row = static_cast<int>(second ? place - kRows : place);
    keyGrid_->addWidget(lblKeys_[i], row, second ? 3 : 0);
    keyGrid_->addWidget(boxes_[i], row, second ? 4 : 1);
  }
  keyGrid_->setColumnMinimumWidth(2, narrow ? 0 : kBetween);
  PlacePad(narrow ? kPadUses / 2 : kPadUses);
}

void FrmKeys::PlacePad(std::size_t inALine) {
  const auto columnOf = [](std::size_t place) { return 1 + 3 * static_cast<int>(place); };
  for (std::size_t place = 0; place <= kPadUses; ++place) {
    padGrid_->setColumnMinimumWidth(columnOf(place), place < inALine ? kGap : 0);
    padGrid_->setColumnStretch(columnOf(place), place == inALine ? 1 : 0);
  }
  padGrid_->addWidget(lblPad_, 0, 0);
  for (std::size_t i = 0; i < kPadUses; ++i) {
    const int row = static_cast<int>(i / inALine);
    padGrid_->addWidget(lblButtons_[i], row, columnOf(i % inALine) + 1);
    padGrid_->addWidget(padBoxes_[i], row, columnOf(i % inALine) + 2);
  }
}

void FrmKeys::SkinIt() {
  const Tones tones = TakeLooks(kLetters, kKeysWords.In(skin_), kKeysResetWords.In(skin_));
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, tones.mark);
  lblSays_->setPalette(colours);
  lblSays_->setFixedHeight(2 * fontMetrics().lineSpacing());
  lblPad_->setText(OneLine(kPadWords.Before(skin_), kMostInCaption));
  const auto skinBoxes = [this](auto& labels, auto& boxes, const auto& words, const QString& asking) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      labels[i]->setText(OneLine(words[i].In(skin_), kMostInCaption));
      boxes[i]->SetAsking(asking);
    }
  };
  skinBoxes(lblKeys_, boxes_, kUseWords, kPressWords.In(skin_));
  skinBoxes(lblButtons_, padBoxes_, kPadUseWords, kPadAsks);
}

// What a box says is read aloud together with what it is for.
void FrmKeys::ShowAll() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const QString words = WordsOf(keys_.Of(static_cast<KeyUse>(i)), skin_);
    boxes_[i]->setText(words);
    boxes_[i]->setAccessibleName(lblKeys_[i]->text() + ": " + words);
    boxes_[i]->update();
  }
  for (std::size_t i = 0; i < padBoxes_.size(); ++i) {
    const QString words = WordsOf(pad_.Of(static_cast<PadUse>(i)));
    padBoxes_[i]->setText(words);
    padBoxes_[i]->setAccessibleName(lblPad_->text() + ' ' + lblButtons_[i]->text() + ": " + words);
    padBoxes_[i]->update();
  }
}

void FrmKeys::Say(const QString& words) {
  lblSays_->setText(OneLine(words));
}

void FrmKeys::KeyCaught(KeyUse use, KeyChoice key) {
  Say(QString());
  if (key.key == 0) return;
  key.ctrl = key.ctrl && use == KeyUse::Restart;
  if (!CanBeChosen(key)) return Say(kKeyFixedWords.In(skin_));
  const QString name = WordsOf(key, skin_);
  const bool fixed = HasFixedMeaning(key) && !keys_.Has(key);
  const auto other = keys_.Choose(use, key);
  if (other) {
    Say(FillMarks(kKeyTakenWords.In(skin_), name, kUseWords[static_cast<std::size_t>(*other)].In(skin_)));
  } else if (fixed) {
    Say(FillMarks(kKeyOtherWords.In(skin_), name, QString()));
  }
  ShowAll();
}

void FrmKeys::PadAsked() {
  Say(kHowPadWords.In(skin_));
  if (!joyPad_) joyPad_ = std::make_unique<JoyPad>();
  joyPad_->PressedButton();  // what went down before is not meant
  if (!joyPad_->IsThere()) Say(kNoPadWords.In(skin_));
  listening_.start();
}

// A key in place of a button: Delete gives the use none.
void FrmKeys::PadKeyCaught(PadUse use, const KeyChoice& key) {
  listening_.stop();
  Say(QString());
  if (key.key == Qt::Key_Delete || key.key == Qt::Key_Backspace) ChooseButton(use, kNoButton);
}

void FrmKeys::ListenToPad() {
  auto* const box =
      std::find_if(padBoxes_.begin(), padBoxes_.end(), [](const KeyBox* its) { return its->Asks(); });
  if (box == padBoxes_.end() || !joyPad_) return listening_.stop();
  const auto button = joyPad_->PressedButton();
  if (!button) return;
  listening_.stop();
  (*box)->StopAsking();
  ChooseButton(static_cast<PadUse>(box - padBoxes_.begin()), *button);
}

void FrmKeys::ChooseButton(PadUse use, int button) {
  Say(QString());
  const auto other = pad_.Choose(use, button);
  if (other)
    Say(FillMarks(kButtonTakenWords.In(skin_), WordsOf(button),
                  kPadUseWords[static_cast<std::size_t>(*other)].In(skin_)));
  ShowAll();
}

void FrmKeys::Reset() {
  for (KeyBox* const box : findChildren<KeyBox*>()) box->StopAsking();
  keys_ = KeyMap();
  pad_ = PadMap();
  Say(QString());
  ShowAll();
}

bool FrmKeys::Edit(KeyMap& keys, PadMap& pad) {
  keys_ = keys;
  pad_ = pad;
  SkinIt();
  Say(kHowWords.In(skin_));
  ShowAll();
  boxes_.front()->setFocus();
  const bool confirmed = Ask();
  listening_.stop();
  joyPad_.reset();
  if (!confirmed) return false;
  keys = keys_;
  pad = pad_;
  return true;
}

}  // namespace zorik
