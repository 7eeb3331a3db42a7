#include "screens/FrmSettings.h"

#include <QGridLayout>
#include <QLabel>

#include "data/Result.h"
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

constexpr int kSlowest = 10;
constexpr int kFastest = 1;

// A scale's value for a speed, and the other way round.
constexpr int Turned(int value) {
  return kSlowest + kFastest - value;
}

constexpr std::array<StartWords, 3> kScaleWords{
    {{"settings.speed.text"}, {"settings.speedreplay.text"}, {"settings.volume.text"}}};
constexpr std::array<StartWords, 4> kCheckWords{
    {{"settings.check1.text"}, {"settings.check2.text"}, {"settings.check3.text"}, {"settings.check4.text"}}};

// From the top: what goes on and on stands below all sounds.
constexpr std::array<std::size_t, 4> kCheckOrder{0, 1, 3, 2};

}  // namespace

FrmSettings::FrmSettings(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      lblCaption_(NewLabel(this)),
      lblScale_{NewLabel(this), NewLabel(this), NewLabel(this)},
      scales_{new SkinScale(kFastest, kSlowest, this), new SkinScale(kFastest, kSlowest, this),
              new SkinScale(0, kFullVolume, this)},
      checks_{new SkinCheck(this), new SkinCheck(this), new SkinCheck(this), new SkinCheck(this)},
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)) {
  NameParts();
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
  for (const std::size_t i : kCheckOrder) rows->addWidget(checks_[i]);
  for (std::size_t i = 1; i < kCheckOrder.size(); ++i)
    setTabOrder(checks_[kCheckOrder[i - 1]], checks_[kCheckOrder[i]]);

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
    const QString caption = OneLine(kScaleWords[i].In(skin_), kMostInCaption);
    lblScale_[i]->setText(caption + " :");
    scales_[i]->setAccessibleName(caption);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i) {
    checks_[i]->setText(InMenu(kCheckWords[i].In(skin_)));
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
  scales_[2]->setValue(settings.Volume);
  checks_[0]->setChecked(settings.NoSurprise);
  checks_[1]->setChecked(settings.Sound);
  checks_[2]->setChecked(settings.Joystick);
  checks_[3]->setChecked(settings.Loops);
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
  settings.Volume = scales_[2]->value();
  settings.Loops = checks_[3]->isChecked();
  if (!StoreSett(settings))
    Tell(skin_, parentWidget(), skin_.Text(TextId::Program), kNotStoredWords.In(skin_));
  return true;
}

}  // namespace zorik
