#include "screens/FrmSettings.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

#include "data/Result.h"
#include "screens/FrmKeys.h"
#include "screens/KeyWords.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/SkinScale.h"
#include "screens/StartWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 16;
constexpr int kHeadLetters = 20;
constexpr int kMargin = 20;
constexpr int kGap = 12;
constexpr int kRowGap = 8;
constexpr int kColumnGap = 24;

constexpr int kSlowest = 10;
constexpr int kFastest = 1;

// A scale's value for a speed, and the other way round.
constexpr int Turned(int value) {
  return kSlowest + kFastest - value;
}

constexpr std::array<StartWords, 3> kScaleWords{
    {{"settings.speed.text"}, {"settings.speedreplay.text"}, {"settings.volume.text"}}};

// A check by its number, which its skin keys have had from the beginning, and the place where it stands.
struct CheckRow {
  StartWords words;
  bool Settings::*value;
  int row;
  int column;
};
constexpr std::array<CheckRow, 8> kChecks{{{{"settings.check1.text"}, &Settings::NoSurprise, 0, 0},
                                           {{"settings.check2.text"}, &Settings::Sound, 1, 0},
                                           {{"settings.check3.text"}, &Settings::Joystick, 3, 0},
                                           {{"settings.check4.text"}, &Settings::Loops, 2, 0},
                                           {{"settings.check5.text"}, &Settings::Ghost, 0, 1},
                                           {{"settings.check6.text"}, &Settings::SmoothMotion, 1, 1},
                                           {{"settings.check7.text"}, &Settings::LessFlashing, 2, 1},
                                           {{"settings.check8.text"}, &Settings::PauseOnFocusLoss, 3, 1}}};

// The order in which the Tab key goes through them: down one column, then the other.
constexpr std::array<std::size_t, 8> kCheckOrder{0, 1, 3, 2, 4, 5, 6, 7};

}  // namespace

FrmSettings::FrmSettings(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      lblCaption_(NewLabel(this)),
      lblScale_{NewLabel(this), NewLabel(this), NewLabel(this)},
      scales_{new SkinScale(kFastest, kSlowest, this), new SkinScale(kFastest, kSlowest, this),
              new SkinScale(0, kFullVolume, this)},
      checks_{new SkinCheck(this), new SkinCheck(this), new SkinCheck(this), new SkinCheck(this),
              new SkinCheck(this), new SkinCheck(this), new SkinCheck(this), new SkinCheck(this)},
      keysButton_(new SkinButton(this)),
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)) {
  NameParts();
  connect(keysButton_, &SkinButton::clicked, this, &FrmSettings::EditKeys);
  connect(ok_, &SkinButton::clicked, this, &FrmSettings::OnEnter);
  connect(close_, &SkinButton::clicked, this, &FrmSettings::OnEsc);
  LayOut();
}

void FrmSettings::NameParts() {
  lblCaption_->setObjectName("lblCaption");
  constexpr std::array kScales = {"Speed", "SpeedR", "Volume"};
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    lblScale_[i]->setObjectName(QString("lbl") + kScales[i]);
    scales_[i]->setObjectName(kScales[i]);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i)
    checks_[i]->setObjectName("check" + QString::number(i + 1));
  keysButton_->setObjectName("keys");
  ok_->setObjectName("ok");
  close_->setObjectName("close");
}

void FrmSettings::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kRowGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblCaption_, 0, Qt::AlignHCenter);

  auto* const scales = new QGridLayout;
  scales->setHorizontalSpacing(kGap);
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    scales->addWidget(lblScale_[i], static_cast<int>(i), 0);
    scales->addWidget(scales_[i], static_cast<int>(i), 1);
  }
  rows->addLayout(scales);

  auto* const checks = new QGridLayout;
  checks->setHorizontalSpacing(kColumnGap);
  checks->setVerticalSpacing(kRowGap);
  for (std::size_t i = 0; i < checks_.size(); ++i)
    checks->addWidget(checks_[i], kChecks[i].row, kChecks[i].column);
  rows->addLayout(checks);
  for (std::size_t i = 1; i < kCheckOrder.size(); ++i)
    setTabOrder(checks_[kCheckOrder[i - 1]], checks_[kCheckOrder[i]]);

  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addWidget(keysButton_);
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(close_);
  rows->addSpacing(kGap);
  rows->addLayout(buttons);
}

void FrmSettings::SkinIt() {
  const Tones tones = TonesOf(skin_.Colour("settings.color", kPlainGround));
  Surface().SetColour(tones.ground);
  QPalette colours = PaletteOf(tones);
  colours.setColor(QPalette::Mid, tones.line);  // the grooves of the scales
  setPalette(colours);
  setFont(GameFont(kLetters));
  colours.setColor(QPalette::WindowText, tones.mark);
  lblCaption_->setPalette(colours);
  lblCaption_->setFont(GameFont(kHeadLetters));

  const QString title = skin_.Caption("settings.text");
  SetTitle(*this, title);
  lblCaption_->setText(OneLine(title, kMostInCaption));
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    const QString caption = OneLine(kScaleWords[i].In(skin_), kMostInCaption);
    lblScale_[i]->setText(caption + " :");
    scales_[i]->setAccessibleName(caption);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i) {
    checks_[i]->setText(InMenu(kChecks[i].words.In(skin_)));
    checks_[i]->SetPicture(skin_.Picture("settings.checks.image"));
  }
  keysButton_->SetPlate(skin_.Picture("dialog.plateback.image"));
  keysButton_->SetWords(kKeysWords.In(skin_));
  ok_->SetPicture(skin_.Picture("settings.ok.image"));
  ok_->SetWords(kOkWords.In(skin_));
  close_->SetPicture(skin_.Picture("settings.close.image"));
  close_->SetWords(kCancelWords.In(skin_));
}

void FrmSettings::SetSett(const Settings& settings) {
  scales_[0]->setValue(Turned(settings.Speed));
  scales_[1]->setValue(Turned(settings.SpeedR));
  scales_[2]->setValue(settings.Volume);
  for (std::size_t i = 0; i < checks_.size(); ++i) checks_[i]->setChecked(settings.*kChecks[i].value);
  keys_ = settings.Keys;
  pad_ = settings.Pad;
}

// Other keys hold when these settings are confirmed.
void FrmSettings::EditKeys() {
  FrmKeys(skin_, this).Edit(keys_, pad_);
}

// The key that has opened these settings leads on.
void FrmSettings::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F2 && !event->isAutoRepeat()) return EditKeys();
  SkinDialog::keyPressEvent(event);
}

bool FrmSettings::Edit(Settings& settings) {
  SkinIt();
  SetSett(settings);
  scales_[0]->setFocus();
  adjustSize();
  if (exec() != Accepted) return false;
  settings.Speed = Turned(scales_[0]->value());
  settings.SpeedR = Turned(scales_[1]->value());
  settings.Volume = scales_[2]->value();
  for (std::size_t i = 0; i < checks_.size(); ++i) settings.*kChecks[i].value = checks_[i]->isChecked();
  settings.Keys = keys_;
  settings.Pad = pad_;
  if (!StoreSett(settings))
    Tell(skin_, parentWidget(), skin_.Text(TextId::Program), kNotStoredWords.In(skin_));
  return true;
}

}  // namespace zorik
