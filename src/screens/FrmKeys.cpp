#include "screens/FrmKeys.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "platform/JoyPad.h"
#include "platform/Keyboard.h"
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
constexpr int kHeadLetters = 20;
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

FrmKeys::FrmKeys(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      lblCaption_(NewLabel(this)),
      lblPad_(NewLabel(this)),
      lblSays_(NewLabel(this)),
      reset_(new SkinButton(this)),
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)) {
  lblCaption_->setObjectName("lblCaption");
  lblSays_->setObjectName("lblSays");
  reset_->setObjectName("reset");
  ok_->setObjectName("ok");
  close_->setObjectName("close");
  connect(reset_, &SkinButton::clicked, this, &FrmKeys::Reset);
  connect(ok_, &SkinButton::clicked, this, &FrmKeys::OnEnter);
  connect(close_, &SkinButton::clicked, this, &FrmKeys::OnEsc);
  listening_.setInterval(kListenEvery);
  connect(&listening_, &QTimer::timeout, this, &FrmKeys::ListenToPad);
  LayOut();
}

FrmKeys::~FrmKeys() = default;

void FrmKeys::AddKeyRow(QGridLayout& grid, std::size_t place) {
  const KeyUse use = kOrder[place];
  const auto i = static_cast<std::size_t>(use);
  lblKeys_[i] = NewLabel(this);
  boxes_[i] = new KeyBox(this, kKeyWidth);
  boxes_[i]->setObjectName("key" + QString::number(i));
  const int row = static_cast<int>(place % kRows);
  const int column = place < kRows ? 0 : 3;
  grid.addWidget(lblKeys_[i], row, column);
  grid.addWidget(boxes_[i], row, column + 1);
  connect(boxes_[i], &KeyBox::Asked, this, [this] { Say(kHowWords.In(skin_)); });
  connect(boxes_[i], &KeyBox::Caught, this, [this, use](const KeyChoice& key) { KeyCaught(use, key); });
}

void FrmKeys::LayOutPad(QHBoxLayout& line) {
  line.addWidget(lblPad_);
  for (std::size_t i = 0; i < kPadUses; ++i) {
    const auto use = static_cast<PadUse>(i);
    lblButtons_[i] = NewLabel(this);
    padBoxes_[i] = new KeyBox(this, kButtonWidth);
    padBoxes_[i]->setObjectName("pad" + QString::number(i));
    line.addSpacing(kGap);
    line.addWidget(lblButtons_[i]);
    line.addWidget(padBoxes_[i]);
    connect(padBoxes_[i], &KeyBox::Asked, this, &FrmKeys::PadAsked);
    connect(padBoxes_[i], &KeyBox::Caught, this,
            [this, use](const KeyChoice& key) { PadKeyCaught(use, key); });
  }
  line.addStretch();
}

void FrmKeys::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGap / 2);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblCaption_, 0, Qt::AlignHCenter);

  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kRowGap);
  grid->setColumnMinimumWidth(2, kBetween);
  for (std::size_t place = 0; place < kOrder.size(); ++place) AddKeyRow(*grid, place);
  rows->addLayout(grid);
  rows->addSpacing(kRowGap);
  auto* const pad = new QHBoxLayout;
  pad->setSpacing(kRowGap);
  LayOutPad(*pad);
  rows->addLayout(pad);
  lblSays_->setWordWrap(true);
  lblSays_->setAlignment(Qt::AlignCenter);
  rows->addWidget(lblSays_);

  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addStretch();
  for (SkinButton* const button : {reset_, ok_, close_}) buttons->addWidget(button);
  buttons->addStretch();
  rows->addLayout(buttons);
}

void FrmKeys::SkinIt() {
  const Tones tones = TonesOf(skin_.Colour("settings.color", kPlainGround));
  Surface().SetColour(tones.ground);
  QPalette colours = PaletteOf(tones);
  setPalette(colours);
  setFont(GameFont(kLetters));
  colours.setColor(QPalette::WindowText, tones.mark);
  for (QLabel* const label : {lblCaption_, lblSays_}) label->setPalette(colours);
  lblCaption_->setFont(GameFont(kHeadLetters));
  lblSays_->setFixedHeight(2 * fontMetrics().lineSpacing());

  const QString title = kKeysWords.In(skin_);
  SetTitle(*this, title);
  lblCaption_->setText(OneLine(title, kMostInCaption));
  lblPad_->setText(OneLine(kPadWords.Before(skin_), kMostInCaption));
  const auto skinBoxes = [this](auto& labels, auto& boxes, const auto& words, const QString& asking) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      labels[i]->setText(OneLine(words[i].In(skin_), kMostInCaption));
      boxes[i]->SetAsking(asking);
    }
  };
  skinBoxes(lblKeys_, boxes_, kUseWords, kPressWords.In(skin_));
  skinBoxes(lblButtons_, padBoxes_, kPadUseWords, kPadAsks);
  reset_->SetPlate(skin_.Picture("dialog.plateback.image"));
  reset_->SetWords(kKeysResetWords.In(skin_));
  ok_->SetPicture(skin_.Picture("settings.ok.image"));
  ok_->SetWords(kOkWords.In(skin_));
  close_->SetPicture(skin_.Picture("settings.close.image"));
  close_->SetWords(kCancelWords.In(skin_));
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
  adjustSize();
  const bool confirmed = exec() == Accepted;
  listening_.stop();
  joyPad_.reset();
  if (!confirmed) return false;
  keys = keys_;
  pad = pad_;
  return true;
}

}  // namespace zorik
