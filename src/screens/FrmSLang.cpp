#include "screens/FrmSLang.h"

#include <QCollator>
#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;
constexpr int kMargin = 18;
constexpr int kLeastWidth = 280;

// The folders below that of the skins; the default skin goes first.
QStringList SkinNames(const SkinPlaces& places) {
  const QString folder = QString::fromStdString(places.SkinsPath);
  QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  const QCollator order((QLocale(QLocale::Czech)));
  std::sort(names.begin(), names.end(), order);
  const auto first = names.indexOf("Default");
  if (first > 0) names.move(first, 0);
  return names;
}

}  // namespace

FrmSLang::FrmSLang(Skin& skin, Settings& settings, QWidget* parent)
    : QDialog(parent),
      skin_(skin),
      settings_(settings),
      Combo1_(new QComboBox(this)),
      Command1_(new QPushButton(this)),
      Command2_(new QPushButton(this)) {
  Combo1_->setObjectName("Combo1");
  Command1_->setObjectName("Command1");
  Command2_->setObjectName("Command2");
  Command2_->setDefault(true);
  Combo1_->setMinimumWidth(kLeastWidth);
  Combo1_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kMargin);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(Combo1_);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(Command1_);
  buttons->addStretch();
  buttons->addWidget(Command2_);
  rows->addLayout(buttons);

  Combo1_->addItems(SkinNames(skin_.Places()));
  Combo1_->setCurrentText(QString::fromStdString(skin_.Places().Skin));
  connect(Combo1_, &QComboBox::currentTextChanged, this, &FrmSLang::Choose);
  connect(Command1_, &QPushButton::clicked, this, &FrmSLang::TellAuthor);
  connect(Command2_, &QPushButton::clicked, this, &FrmSLang::accept);
  SetLW();
}

void FrmSLang::SetLW() {
  setFont(GameFont(kLetters));
  SetTitle(*this, kSkinWords.In(skin_));
  Combo1_->setAccessibleName(OneLine(kSkinWords.In(skin_)));
  Command1_->setText(InMenu(kAboutSkinWords.In(skin_)));
  Command2_->setText(InMenu(kCloseWords.In(skin_)));
}

void FrmSLang::Choose(const QString& name) {
  SkinPlaces places = skin_.Places();
  places.Skin = name.toStdString();
  const bool whole = skin_.Wear(places);
  settings_.Skin = name;
  const bool stored = StoreSkin(name);
  SetLW();
  emit SkinChanged();
  if (!stored) Tell(skin_, this, skin_.Text(99), kNotStoredWords.In(skin_));
  if (!whole) Tell(skin_, this, skin_.Text(99), kNoLanguageWords.In(skin_));
}

void FrmSLang::TellAuthor() {
  SkinMsgBox(skin_, this, skin_.Caption("skin.author.text"), MsgButtons::Ok, MsgIcon::Information,
             skin_.Text(99));
}

}  // namespace zorik
