#pragma once

#include "screens/SkinWindow.h"
#include "screens/Tones.h"

class QLabel;

namespace zorik {

class FittingArea;
class Skin;
class SkinButton;

// What the windows of settings have in common: a caption, a part that is arranged anew and scrolled where
// there is no room for all of it, and below that a button of the window's own, one that confirms and one that
// cancels.
class SettingsDialog : public SkinDialog {
  Q_OBJECT

 protected:
  // room: that the window may take; empty: all that the screen has.
  SettingsDialog(Skin& skin, QWidget* parent, QSize room);

  void OnEnter() override { accept(); }
  void OnEsc() override { done(Rejected); }

  // Arranges what stands in the part that can be scrolled, in one column where the room is narrow.
  virtual void Place(bool narrow) = 0;

  // Takes looks from the skin, and the words of the caption and of the window's own button.
  Tones TakeLooks(int letters, const QString& title, const QString& own);

  // Opens the window; true when the player has confirmed it.
  bool Ask();

  Skin& skin_;
  QSize room_;
  QLabel* lblCaption_;
  QWidget* part_;
  FittingArea* area_;  // with that part in it
  SkinButton* own_;
  SkinButton* ok_;
  SkinButton* close_;

 private:
  void Fit();
};

}  // namespace zorik
