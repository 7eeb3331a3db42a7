#pragma once

#include <QMainWindow>
#include <functional>
#include <string>

#include "editors/CaveOrigin.h"
#include "editors/MenuBuilder.h"
#include "editors/RecoveryKeeper.h"
#include "editors/SadaFiles.h"
#include "flow/SadaModel.h"
#include "platform/Paths.h"
#include "screens/FrmLoading.h"

class QLabel;

namespace zorik {

class SadaBoxes;
class SadaList;
class SadaUndoMenu;
class Skin;

// The collection editor: the texts of a collection and the list of its caves. It is the only writer of
// collections. Cave texts that it hands out and takes are bytes in Windows-1250, without marker.
class FrmSada : public QMainWindow {
  Q_OBJECT

 public:
  FrmSada(Skin& skin, const Paths& paths, SadaModel& sada);

  // Opens a collection, or a new one for an empty path, and shows the window in the skin's words. A file that
  // cannot be opened gives a message and a new collection.
  void Open(const QString& path);

  // Opens what a program that was killed has left.
  void OpenLeft(const KeptEntry& left);

  RecoveryKeeper& Keeper() { return keeper_; }

  // The cave editor is done: stores the cave in the selected row and shows the window again.
  void CaveDone(const std::string& text);

  // Stores the cave in the selected row and saves the collection, which may ask where over this window. False
  // when it was not saved; the row has the cave all the same.
  bool StoreCave(const std::string& text, QWidget& over);
  CaveOrigin OriginOfSelected() const;

  // Puts the skin's texts on all controls.
  void SetLWEd();

  const SadaModel& Sada() const { return sada_; }

 signals:
  // The selected cave is to be edited. The window goes when this returns, unless CaveDone was called
  // meanwhile, and comes back with CaveDone.
  void EditCave(const std::string& text, const CaveOrigin& origin);
  // The collection was written to its file.
  void Saved();
  // The editor was closed.
  void Closed();

 public slots:
  void mnuNew_Click();
  void mnuEdit_Click();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  static SadaWords WordsOf(const Skin& skin);

  void MakeMenus();
  void MakeFileMenu();
  void MakeUndoMenu();
  void MakeCaveMenu();
  void MakeAddMenu();
  // Does it, and says whether the cave that it adds is open from the start.
  void Add(const std::function<void(SadaModel& sada)>& act);
  void AddKeys();
  void MakeHelpMenu();
  void MakeLinks(QMenu& menu);
  void ShowLinks();
  void SetIcons();
  void LayOut();
  QWidget* MakeListSide();

  void AfterChange();
  void GetNames();
  void UpdateTitle();
  void UpdateActions();
  void UpdateNames();
  void UpdateCount();

  void OpenColl(const QString& path);
  void TellClosed();

  void mnuOpen_Click();
  bool mnuSave_Click();
  bool mnuSaveAs_Click();
  bool AfterSaving(bool saved);
  void mnuDiscarded_Click();
  // False when it cannot be read any more, which a message has told.
  bool TakeUp(const KeptEntry& entry);
  void mnuGratulace_Click();
  void mnuToTexts_Click();
  void mnuFromTexts_Click();
  void mnuSheet_Click();
  void mnuDelete_Click();
  // True when the command that would lose changes may go on.
  bool AskToSave();
  void ShowPage(const QString& page);
  void ShowShortcuts(QWidget& over);

  Skin& skin_;
  Paths paths_;
  SadaModel& sada_;
  RecoveryKeeper keeper_;
  FrmLoading frmLoading_;
  SadaFiles files_;
  bool editing_ = false;  // a cave is with the cave editor
  SadaBoxes* boxes_ = nullptr;
  SadaList* list_ = nullptr;
  QLabel* lblNames_ = nullptr;
  QLabel* lblCount_ = nullptr;

  MenuBuilder menus_{*this};
  SadaUndoMenu* undo_ = nullptr;
  QAction* mnuPaste_ = nullptr;
  QAction* mnuPasteEnd_ = nullptr;
  QAction* mnuCut_ = nullptr;
  QAction* mnuUp_ = nullptr;
  QAction* mnuDown_ = nullptr;
  QAction* mnuDelete_ = nullptr;
  QAction* mnuMark_ = nullptr;
  QMenu* mnuCave_ = nullptr;
  QMenu* mnuAdd_ = nullptr;
  QAction* web_ = nullptr;
  QAction* mail_ = nullptr;
};

}  // namespace zorik
