#include "screens/FrmLanguage.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/SkinData.h"

namespace zorik {
namespace {

constexpr int kLetters = 22;
constexpr int kMargin = 28;
constexpr QSize kButton(180, 64);
constexpr int kDog = 96;

}  // namespace

FrmLanguage::FrmLanguage(Skin& skin) : skin_(skin), row_(new QHBoxLayout) {
  SetTitle(*this, kProgramTitle);
  setFont(GameFont(kLetters));
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kMargin);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  QLabel* const dog = NewLabel(this);
  dog->setPixmap(QIcon(":/zorik.png").pixmap(kDog, kDog));
  dog->setAlignment(Qt::AlignCenter);
  rows->addWidget(dog);
  row_->setSpacing(kMargin);
  rows->addLayout(row_);
  for (const char* folder : {kDefaultSkin, kEnglishSkin}) Offer(folder);
}

// A folder that is not there speaks the default skin's language, and that is offered once.
void FrmLanguage::Offer(const char* folder) {
  SkinPlaces places = skin_.Places();
  places.Skin = folder;
  SkinData table;
  static_cast<void>(table.LoadSkinData(places));  // its flaws are told when it is worn
  const QString language = QString::fromStdString(table.SkinText("language.code"));
  const QString name = QString::fromStdString(table.SkinText("language.text"));
  if (name.isEmpty() || languages_.contains(language)) return;
  languages_.push_back(language);
  auto* const button = new QPushButton(InMenu(OneLine(name, kMostInCaption)), this);
  button->setObjectName(folder);
  button->setMinimumSize(kButton);
  button->setAutoDefault(true);
  row_->addWidget(button);
  connect(button, &QPushButton::clicked, this, [this, folder] {
    chosen_ = folder;
    accept();
  });
  if (language == LanguageOf(skin_)) {
    button->setDefault(true);
    button->setFocus();
  }
}

std::optional<QString> FrmLanguage::AskSkin() {
  if (languages_.size() < 2) return std::nullopt;
  chosen_ = QString::fromStdString(skin_.Places().Skin);
  exec();
  return chosen_;
}

}  // namespace zorik
