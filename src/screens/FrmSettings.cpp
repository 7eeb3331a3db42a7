#include "screens/FrmSettings.h"

#include <QGridLayout>
#include <QLabel>

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
constexpr int kMargin = 24;
constexpr int kGap = 12;

constexpr int kSlowest = 10;
constexpr int kFastest = 1;

// A scale's value for a speed, and the other way round.
constexpr int Turned(int value) {
  return kSlowest + kFastest - value;
}

constexpr std::array kSpeedKeys = {"settings.speed.text", "settings.speedreplay.text"};
constexpr std::array kCheckKeys = {"settings.check1.text", "settings.check2.text", "settings.check3.text"};

}  // namespace

FrmSettings::FrmSettings(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      lblCaption_(NewLabel(this)),
      lblSpeed_{NewLabel(this), NewLabel(this)},
      scales_{new SkinScale(kFastest, kSlowest, this), new SkinScale(kFastest, kSlowest, this)},
      checks_{new SkinCheck(this), new SkinCheck(this), new SkinCheck(this)},
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)) {
  NameParts();
  connect(ok_, &SkinButton::clicked, this, &FrmSettings::OnEnter);
  connect(close_, &SkinButton::clicked, this, &FrmSettings::OnEsc);
  LayOut();
}

void FrmSettings::NameParts() {
  lblCaption_->setObjectName("lblCaption");
  lblSpeed_[0]->setObjectName("lblSpeed");
  lblSpeed_[1]->setObjectName("lblSpeedR");
  scales_[0]->setObjectName("Speed");
  scales_[1]->setObjectName("SpeedR");
  for (std::size_t i = 0; i < checks_.size(); ++i)
    checks_[i]->setObjectName("check" + QString::number(i + 1));
  ok_->setObjectName("ok");
  close_->setObjectName("close");
}

void FrmSettings::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblCaption_, 0, Qt::AlignHCenter);

  auto* const speeds = new QGridLayout;
  speeds->setHorizontalSpacing(kGap);
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    speeds->addWidget(lblSpeed_[i], static_cast<int>(i), 0);
    speeds->addWidget(scales_[i], static_cast<int>(i), 1);
  }
  rows->addLayout(speeds);
  for (SkinCheck* const check : checks_) rows->addWidget(check);

  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(close_);
  buttons->addStretch();
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
    const QString caption = OneLine(skin_.Caption(kSpeedKeys[i]), kMostInCaption);
    lblSpeed_[i]->setText(caption + " :");
    scales_[i]->setAccessibleName(caption);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i) {
    checks_[i]->setText(InMenu(skin_.Caption(kCheckKeys[i])));
    checks_[i]->SetPicture(skin_.Picture("settings.checks.image"));
  }
  ok_->SetPicture(skin_.Picture("settings.ok.image"));
  ok_->SetWords(kOkWords.In(skin_));
  close_->SetPicture(skin_.Picture("settings.close.image"));
  close_->SetWords(kCancelWords.In(skin_));
}

void FrmSettings::SetSett(const Settings& settings) {
  scales_[0]->setValue(Turned(settings.Speed));
  scales_[1]->setValue(Turned(settings.SpeedR));
  checks_[0]->setChecked(settings.NoSurprise);
  checks_[1]->setChecked(settings.Sound);
  checks_[2]->setChecked(settings.Joystick);
}

bool FrmSettings::Edit(Settings& settings) {
  SkinIt();
  SetSett(settings);
  scales_[0]->setFocus();
  adjustSize();
  if (exec() != Accepted) return false;
  settings.NoSurprise = checks_[0]->isChecked();
  settings.Sound = checks_[1]->isChecked();
  settings.Joystick = checks_[2]->isChecked();
  settings.Speed = Turned(scales_[0]->value());
  settings.SpeedR = Turned(scales_[1]->value());
  if (!StoreSett(settings)) Tell(skin_, parentWidget(), skin_.Text(99), kNotStoredWords.In(skin_));
  return true;
}

}  // namespace zorik
