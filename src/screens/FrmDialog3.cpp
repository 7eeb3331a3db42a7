#include "screens/FrmDialog3.h"

#include <QLineEdit>

#include "data/PlayerName.h"
#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/SkinPlacing.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr QSize kPlainSize(360, 160);
constexpr QColor kPaper(0xFF, 0xF8, 0xE0);
constexpr QColor kInk(0x40, 0x20, 0x00);
constexpr double kLetterShare = 0.66;  // of the field's height

}  // namespace

FrmDialog3::FrmDialog3(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      Text1_(new QLineEdit(this)),
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)) {
  Text1_->setObjectName("Text1");
  Text1_->setMaxLength(kLongestPlayerName);
  Text1_->setFrame(false);
  ok_->setObjectName("ok");
  close_->setObjectName("close");
  connect(ok_, &SkinButton::clicked, this, &FrmDialog3::OnEnter);
  connect(close_, &SkinButton::clicked, this, &FrmDialog3::OnEsc);
  SkinIt();
}

void FrmDialog3::SkinIt() {
  const QString caption = OneLine(skin_.Caption("addplayer.text"), kMostInCaption);
  SetTitle(*this, caption);
  Text1_->setAccessibleName(caption);
  Text1_->setPlaceholderText(caption);
  SetWindowPicture(skin_, Surface(), *this, "addplayer", kPlainSize);
  SkinText1();
  PlaceButton(skin_, *ok_, "addplayer.ok", kOkWords.In(skin_));
  PlaceButton(skin_, *close_, "addplayer.close", kCancelWords.In(skin_));
}

void FrmDialog3::SkinText1() {
  const QRect place = BoxOf(skin_, "addplayer.name", QRect(40, 60, 280, 24));
  const QColor paper = skin_.Colour("addplayer.name.color", kPaper);
  const QColor ink = skin_.Colour("addplayer.name.textcolor", kInk);
  QColor pale = ink;
  pale.setAlphaF(0.55F);
  QPalette colours = Text1_->palette();
  colours.setColor(QPalette::Base, paper);
  colours.setColor(QPalette::Text, ink);
  colours.setColor(QPalette::PlaceholderText, pale);
  colours.setColor(QPalette::Highlight, ink);
  colours.setColor(QPalette::HighlightedText, paper);
  Text1_->setPalette(colours);
  Text1_->setFont(GameFont(std::max(8, static_cast<int>(place.height() * kLetterShare))));
  Text1_->setGeometry(place);
}

QString FrmDialog3::AskName() {
  Text1_->clear();
  Text1_->setFocus();
  return exec() == Accepted ? Text1_->text() : QString();
}

}  // namespace zorik
