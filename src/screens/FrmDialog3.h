#pragma once

#include <QString>

#include "screens/SkinWindow.h"

class QLineEdit;

namespace zorik {

class Skin;
class SkinButton;

// The window that asks for the name of a new player.
class FrmDialog3 : public SkinDialog {
 public:
  FrmDialog3(Skin& skin, QWidget* parent);

  // Waits until the player is done: what he typed, or empty when he would rather not.
  QString AskName();

 protected:
  void OnEnter() override { accept(); }
  void OnEsc() override { done(Rejected); }

 private:
  void SkinIt();
  void SkinText1();

  Skin& skin_;
  QLineEdit* Text1_;
  SkinButton* ok_;
  SkinButton* close_;
};

}  // namespace zorik
