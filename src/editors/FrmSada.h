#pragma once

#include <QMainWindow>
#include <string>

#include "editors/MenuBuilder.h"
#include "flow/SadaModel.h"
#include "platform/Paths.h"
#include "screens/FrmLoading.h"

class QLabel;

namespace zorik {

class SadaBoxes;
class SadaList;
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

  // The cave editor is done: stores the cave in the selected row and shows the window again.
  void CaveDone(const std::string& text);

  // Puts the skin's texts on all controls.
  void SetLWEd();

  const SadaModel& Sada() const { return sada_; }

 signals:
  // The selected cave is to be edited. The window goes when this returns, unless CaveDone was called
  // meanwhile, and comes back with CaveDone.
  void EditCave(const std::string& text);
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
  void MakeCaveMenu();
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
  void UpdateCount();

  void OpenColl(const QString& path);
  void TellClosed();
  // False when the collection was not saved; a message has told why, unless the author has cancelled.
  bool SaveColl(const QString& path);
  Result<Done> Store(const QString& path);
  void TellSaved(const SadaModel::SaveReport& report);
  // Where to save what could not be saved to this path: there again, or elsewhere; empty for nowhere.
  QString AskWhereElse(const QString& path);
  QString AskForPath();
  bool FitsFile();
  QString ProposedPath() const;

  void mnuOpen_Click();
  bool mnuSave_Click();
  bool mnuSaveAs_Click();
  void mnuGratulace_Click();
  void mnuToTexts_Click();
  void mnuFromTexts_Click();
  void mnuSheet_Click();
  void mnuDelete_Click();
  // True when the command that would lose changes may go on.
  bool AskToSave();
  void ShowPage(const QString& page);

  Skin& skin_;
  Paths paths_;
  SadaModel& sada_;
  FrmLoading frmLoading_;
  bool editing_ = false;  // a cave is with the cave editor
  SadaBoxes* boxes_ = nullptr;
  SadaList* list_ = nullptr;
  QLabel* lblCount_ = nullptr;

  MenuBuilder menus_{*this};
  QAction* mnuPaste_ = nullptr;
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
