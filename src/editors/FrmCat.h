#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "editors/CatData.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace zorik {

class Skin;

// The editor of the cat's program. The author never sees tokens: he works on a list of captions that the skin
// gives to them.
class FrmCat : public QDialog {
  Q_OBJECT

 public:
  FrmCat(Skin& skin, QWidget* parent);

  // Edits a program, in Windows-1250. The answer is the program to be stored; nothing when the cave is to
  // keep the one that it has.
  std::optional<std::string> Edit(const std::string& script);

  // The program as it is by now; nothing while none is edited.
  std::optional<std::string> Program() const;

 public slots:
  void done(int result) override;
  // Closing the window, and Esc: asks whether to store.
  void reject() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void LoadNames();
  void LoadScript(const std::string& script);
  QPushButton* MakeButton(const char* name);
  void LayOut();
  void SetWords();
  void Show();
  void UpdateButtons();
  void Insert();
  void Delete();
  void Swap();

  Skin& skin_;
  QString closeQuestion_;
  CatScript script_{{}};
  bool showing_ = false;
  QLabel* lblProgram_;
  QLabel* lblCommands_;
  QListWidget* lstScript_;
  QListWidget* lstCmds_;
  QPushButton* delete_;  // Command1
  QPushButton* insert_;  // Command3
  QPushButton* ok_;      // Command4
  QPushButton* swap_;    // Label1
};

}  // namespace zorik
