#pragma once

#include <QString>
#include <array>

#include "platform/Settings.h"
#include "screens/SettingsDialog.h"

class QGridLayout;
class QLabel;

namespace zorik {

class SkinCheck;
class SkinScale;

// The window of the options: two speeds and the volume, on scales whose right end is the fast or loud one,
// and below them eight checks in two columns, or one. A button leads to the player's own keys. What the
// player changes is dropped unless he confirms it.
class FrmSettings : public SettingsDialog {
  Q_OBJECT

 public:
  FrmSettings(Skin& skin, QWidget* parent, QSize room = {});

  // Shows the settings until the player is done. When he confirms, they hold what he chose and are stored;
  // true then.
  bool Edit(Settings& settings);

 protected:
  void Place(bool narrow) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void NameParts();
  void LayOut();
  void SkinIt();
  void SetSett(const Settings& settings);
  void EditKeys();

  std::array<QLabel*, 3> lblScale_;
  std::array<SkinScale*, 3> scales_;  // Speed, SpeedR, Volume
  std::array<SkinCheck*, 8> checks_;
  QGridLayout* checkGrid_;
  KeyMap keys_;
  PadMap pad_;
};

}  // namespace zorik
