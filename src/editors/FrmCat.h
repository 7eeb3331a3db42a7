#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "editors/CatEditing.h"
#include "editors/MenuBuilder.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace zorik {

class Skin;

// The editor of the cat's program. The author never sees tokens: he works on a list of captions that the skin
// gives to them. All that he does can be taken back step by step.
class FrmCat : public QDialog {
  Q_OBJECT

 public:
  FrmCat(Skin& skin, QWidget* parent);

  // Edits a program, in Windows-1250. The answer is the program to be stored; nothing when the cave is to
  // keep the one that it has.
  std::optional<std::string> Edit(const std::string& script);

  // The program as it is by now; nothing while none is edited.
  std::optional<std::string> Program() const;

 signals:
  // A page of the help is wanted.
  void HelpWanted(const QString& page);

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
  void MakeMenus();
  void MakeHelpMenu();
  void LayOut();
  QWidget* MakeBar();
  void SetWords();
  void Show();
  void UpdateButtons();
  void Do(void (CatEditing::*act)());
  void Insert();
  void GoTo(std::size_t done);
  QString WordsOfStep(std::size_t place) const;

  Skin& skin_;
  QString closeQuestion_;
  CatEditing editing_{{}};
  bool showing_ = false;
  QLabel* lblProgram_;
  QLabel* lblCommands_;
  QListWidget* lstScript_;
  QListWidget* lstCmds_;
  QPushButton* delete_;  // Command1
  QPushButton* insert_;  // Command3
  QPushButton* ok_;      // Command4
  QPushButton* swap_;    // Label1
  MenuBuilder menus_;
  QAction* mnuUndo_ = nullptr;
  QAction* mnuRedo_ = nullptr;
  QMenu* mnuSteps_ = nullptr;
  QAction* mnuInsert_ = nullptr;
  QAction* mnuDelete_ = nullptr;
  QAction* mnuMoveUp_ = nullptr;
  QAction* mnuMoveDown_ = nullptr;
};

}  // namespace zorik
