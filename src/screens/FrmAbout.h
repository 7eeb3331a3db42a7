#pragma once

#include "screens/SkinWindow.h"

class QLabel;

namespace zorik {

class Skin;
class SkinButton;
struct Paths;

// The credits. Pages and addresses that are named in them are links, and so is the page about the program.
class FrmAbout : public SkinDialog {
 public:
  FrmAbout(Skin& skin, const Paths& paths, QWidget* parent);

 protected:
  void OnEnter() override { accept(); }
  void OnEsc() override { done(Rejected); }

 private:
  void LayOut();
  void SkinIt();

  Skin& skin_;
  QString page_;  // about the program
  QLabel* lblText_;
  SkinButton* ok_;
};

}  // namespace zorik
