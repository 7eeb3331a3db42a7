#pragma once

#include <QTimer>
#include <array>
#include <memory>

#include "platform/KeyMap.h"
#include "platform/PadMap.h"
#include "screens/SettingsDialog.h"

class QGridLayout;
class QLabel;

namespace zorik {

class JoyPad;
class KeyBox;

// The window of the player's own keys: what he can steer and command with, the keys of practice, and the
// buttons of a pad. A key that did something else before is told. What he changes is dropped unless he
// confirms it.
class FrmKeys : public SettingsDialog {
  Q_OBJECT

 public:
  FrmKeys(Skin& skin, QWidget* parent, QSize room = {});
  ~FrmKeys() override;

  // Shows the keys until the player is done. When he confirms, they are what he chose; true then.
  bool Edit(KeyMap& keys, PadMap& pad);

 protected:
  void Place(bool narrow) override;

 private:
  void LayOut();
  void MakeKeyBoxes();
  void MakePadBoxes();
  void PlacePad(std::size_t inALine);
  void SkinIt();
  void ShowAll();
  void Say(const QString& words);
  void KeyCaught(KeyUse use, KeyChoice key);
  void PadAsked();
  void PadKeyCaught(PadUse use, const KeyChoice& key);
  void ListenToPad();
  void ChooseButton(PadUse use, int button);
  void Reset();

  KeyMap keys_;
  PadMap pad_;
  std::array<QLabel*, kKeyUses> lblKeys_{};
  std::array<KeyBox*, kKeyUses> boxes_{};
  QGridLayout* keyGrid_;
  QGridLayout* padGrid_;
  QLabel* lblPad_;
  std::array<QLabel*, kPadUses> lblButtons_{};
  std::array<KeyBox*, kPadUses> padBoxes_{};
  QLabel* lblSays_;
  std::unique_ptr<JoyPad> joyPad_;  // once a box has asked for a button
  QTimer listening_;
};

}  // namespace zorik
