#include "screens/FrmSLang.h"

#include <QCollator>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "data/Cp1250.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "platform/PathText.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/SkinFlaws.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;
constexpr int kMargin = 18;
constexpr int kLeastWidth = 280;

bool SameSkin(const QString& a, const QString& b) {
  return FoldFileName(PathBytes(a)) == FoldFileName(PathBytes(b));
}

// The folders below those of the skins, each name once; the default skin goes first.
QStringList SkinNames(const SkinPlaces& places) {
  QStringList names;
  for (const std::string& root : SkinRoots(places)) {
    for (const std::string& folder : FoldersIn(root)) {
      if (!IsUtf8(folder)) continue;  // the settings could not keep such a name
      const QString name = PathText(folder);
      const bool known = std::any_of(names.begin(), names.end(),
                                     [&](const QString& other) { return SameSkin(other, name); });
      if (!known) names.push_back(name);
    }
  }
  const QCollator order((QLocale(QLocale::Czech)));
  std::sort(names.begin(), names.end(), [&](const QString& a, const QString& b) {
    const bool first = IsDefaultSkin(a.toStdString());
    return first != IsDefaultSkin(b.toStdString()) ? first : order(a, b);
  });
  return names;
}

}  // namespace

FrmSLang::FrmSLang(Skin& skin, Settings& settings, QWidget* parent)
    : QDialog(parent),
      skin_(skin),
      settings_(settings),
      Combo1_(new QComboBox(this)),
      aboutSkin_(new QPushButton(this)),
      close_(new QPushButton(this)) {
  Combo1_->setObjectName("Combo1");
  aboutSkin_->setObjectName("Command1");
  close_->setObjectName("Command2");
  close_->setDefault(true);
  Combo1_->setMinimumWidth(kLeastWidth);
  Combo1_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kMargin);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(Combo1_);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(aboutSkin_);
  buttons->addStretch();
  buttons->addWidget(close_);
  rows->addLayout(buttons);

  Combo1_->addItems(SkinNames(skin_.Places()));
  SelectStored();
  connect(Combo1_, &QComboBox::currentTextChanged, this, &FrmSLang::Choose);
  connect(Combo1_, &QComboBox::textActivated, this, &FrmSLang::Choose);
  connect(aboutSkin_, &QPushButton::clicked, this, &FrmSLang::TellAuthor);
  connect(close_, &QPushButton::clicked, this, &FrmSLang::accept);
  SetLW();
}

void FrmSLang::SetLW() {
  setFont(GameFont(kLetters));
  SetTitle(*this, kSkinWords.In(skin_));
  Combo1_->setAccessibleName(OneLine(kSkinWords.In(skin_)));
  aboutSkin_->setText(InMenu(kAboutSkinWords.In(skin_)));
  close_->setText(InMenu(kCloseWords.In(skin_)));
}

// Nothing is selected when the stored skin is gone; so the default one can be chosen then.
void FrmSLang::SelectStored() {
  const QSignalBlocker silent(Combo1_);
  for (int i = 0; i < Combo1_->count(); ++i) {
    if (SameSkin(Combo1_->itemText(i), settings_.Skin)) return Combo1_->setCurrentIndex(i);
  }
  Combo1_->setCurrentIndex(-1);
}

// A skin is stored when all windows have it, so that none can keep the game from starting.
void FrmSLang::Choose(const QString& name) {
  SkinPlaces places = skin_.Places();
  if (name.isEmpty() || (name == settings_.Skin && name.toStdString() == places.Skin)) return;
  places.Skin = name.toStdString();
  const ApplyOutcome outcome = skin_.Apply(places);
  if (!outcome.applied) {
    SelectStored();
    TellFlaws(skin_, this, outcome.flaws, kSkinStaysWords.In(skin_));
    return;
  }
  SetLW();
  emit SkinChanged();
  settings_.Skin = name;
  if (!StoreSkin(name)) Tell(skin_, this, skin_.Text(TextId::Program), kNotStoredWords.In(skin_));
  TellFlaws(skin_, this, outcome.flaws);
}

void FrmSLang::TellAuthor() {
  SkinMsgBox(skin_, this, skin_.Said("skin.author.text"), MsgButtons::Ok, MsgIcon::Information,
             skin_.Text(TextId::Program));
}

}  // namespace zorik
