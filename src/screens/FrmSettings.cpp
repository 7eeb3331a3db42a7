#include "screens/FrmSettings.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

#include "data/Result.h"
#include "screens/FittingArea.h"
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

FrmSettings::FrmSettings(Skin& skin, QWidget* parent, QSize room)
    : SettingsDialog(skin, parent, room),
      lblScale_{NewLabel(part_), NewLabel(part_), NewLabel(part_)},
      scales_{new SkinScale(kFastest, kSlowest, part_), new SkinScale(kFastest, kSlowest, part_),
              new SkinScale(0, kFullVolume, part_)},
      checks_{new SkinCheck(part_), new SkinCheck(part_), new SkinCheck(part_), new SkinCheck(part_),
              new SkinCheck(part_), new SkinCheck(part_), new SkinCheck(part_), new SkinCheck(part_)},
      checkGrid_(new QGridLayout) {
  NameParts();
  connect(own_, &SkinButton::clicked, this, &FrmSettings::EditKeys);
  LayOut();
}

void FrmSettings::NameParts() {
  constexpr std::array kScales = {"Speed", "SpeedR", "Volume"};
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    lblScale_[i]->setObjectName(QString("lbl") + kScales[i]);
    scales_[i]->setObjectName(kScales[i]);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i)
    checks_[i]->setObjectName("check" + QString::number(i + 1));
  own_->setObjectName("keys");
}

void FrmSettings::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kRowGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblCaption_, 0, Qt::AlignHCenter);

  auto* const parts = new QVBoxLayout(part_);
  parts->setContentsMargins(0, 0, 0, 0);
  parts->setSpacing(kRowGap);
  auto* const scales = new QGridLayout;
  scales->setHorizontalSpacing(kGap);
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    scales->addWidget(lblScale_[i], static_cast<int>(i), 0);
    scales->addWidget(scales_[i], static_cast<int>(i), 1);
  }
  parts->addLayout(scales);
  checkGrid_->setHorizontalSpacing(kColumnGap);
  checkGrid_->setVerticalSpacing(kRowGap);
  parts->addLayout(checkGrid_);
  for (std::size_t i = 1; i < kCheckOrder.size(); ++i)
    setTabOrder(checks_[kCheckOrder[i - 1]], checks_[kCheckOrder[i]]);
  rows->addWidget(area_);

  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addWidget(own_);
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(close_);
  rows->addSpacing(kGap);
  rows->addLayout(buttons);
}

// In two columns, or one below the other.
void FrmSettings::Place(bool narrow) {
  for (std::size_t place = 0; place < kCheckOrder.size(); ++place) {
    const std::size_t i = kCheckOrder[place];
    const int row = narrow ? static_cast<int>(place) : kChecks[i].row;
    checkGrid_->addWidget(checks_[i], row, narrow ? 0 : kChecks[i].column, Qt::AlignLeft);
  }
}

void FrmSettings::SkinIt() {
  const Tones tones = TakeLooks(kLetters, skin_.Caption("settings.text"), kKeysWords.In(skin_));
  QPalette grooves = palette();
  grooves.setColor(QPalette::Mid, tones.line);
  for (SkinScale* const scale : scales_) scale->setPalette(grooves);
  for (std::size_t i = 0; i < scales_.size(); ++i) {
    const QString caption = OneLine(kScaleWords[i].In(skin_), kMostInCaption);
    lblScale_[i]->setText(caption + " :");
    scales_[i]->setAccessibleName(caption);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i) {
    checks_[i]->setText(InMenu(kChecks[i].words.In(skin_)));
    checks_[i]->SetPicture(skin_.Picture("settings.checks.image"));
  }
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
  FrmKeys(skin_, this, room_).Edit(keys_, pad_);
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
  if (!Ask()) return false;
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
