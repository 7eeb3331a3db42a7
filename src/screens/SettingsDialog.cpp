#include "screens/SettingsDialog.h"

#include <QLabel>
#include <QScreen>

#include "screens/FittingArea.h"
#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kHeadLetters = 20;

}  // namespace

SettingsDialog::SettingsDialog(Skin& skin, QWidget* parent, QSize room)
    : SkinDialog(parent),
      skin_(skin),
      room_(room),
      lblCaption_(NewLabel(this)),
      part_(new QWidget),
      area_(new FittingArea(this, part_)),
      own_(new SkinButton(this)),
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)) {
  lblCaption_->setObjectName("lblCaption");
  ok_->setObjectName("ok");
  close_->setObjectName("close");
  connect(ok_, &SkinButton::clicked, this, &SettingsDialog::OnEnter);
  connect(close_, &SkinButton::clicked, this, &SettingsDialog::OnEsc);
}

Tones SettingsDialog::TakeLooks(int letters, const QString& title, const QString& own) {
  const Tones tones = TonesOf(skin_.Colour("settings.color", kPlainGround));
  Surface().SetColour(tones.ground);
  QPalette colours = PaletteOf(tones);
  setPalette(colours);
  setFont(GameFont(letters));
  colours.setColor(QPalette::WindowText, tones.mark);
  lblCaption_->setPalette(colours);
  lblCaption_->setFont(GameFont(kHeadLetters));
  SetTitle(*this, title);
  lblCaption_->setText(OneLine(title, kMostInCaption));
  own_->SetPlate(skin_.Picture("dialog.plateback.image"));
  own_->SetWords(own);
  ok_->SetPicture(skin_.Picture("settings.ok.image"));
  ok_->SetWords(kOkWords.In(skin_));
  close_->SetPicture(skin_.Picture("settings.close.image"));
  close_->SetWords(kCancelWords.In(skin_));
  return tones;
}

void SettingsDialog::Fit() {
  const QSize room = room_.isEmpty() ? screen()->availableSize() : room_;
  Place(false);
  area_->Fit(room);
  if (area_->IsCut()) {
    Place(true);
    area_->Fit(room);
  }
  adjustSize();
}

bool SettingsDialog::Ask() {
  Fit();
  return exec() == Accepted;
}

}  // namespace zorik
