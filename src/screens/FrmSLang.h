#pragma once

#include <QDialog>

#include "platform/Settings.h"

class QComboBox;
class QPushButton;

namespace zorik {

class Skin;

// The window in which the player chooses the skin, and with it the language. A choice counts at once: the
// skin is put on and, once it has been, stored. One that cannot be worn is told, and nothing changes.
class FrmSLang : public QDialog {
  Q_OBJECT

 public:
  FrmSLang(Skin& skin, Settings& settings, QWidget* parent);

 signals:
  // The skin has been put on; every window is to read it anew.
  void SkinChanged();

 private:
  void SetLW();
  void SelectStored();
  void Choose(const QString& name);
  void TellAuthor();

  Skin& skin_;
  Settings& settings_;
  QComboBox* Combo1_;
  QPushButton* aboutSkin_;
  QPushButton* close_;
};

}  // namespace zorik
