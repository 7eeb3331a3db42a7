#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <array>
#include <vector>

#include "platform/Paths.h"
#include "platform/Settings.h"
#include "screens/SkinWindow.h"
#include "screens/StartFolders.h"

namespace zorik {

class FingerButton;
class LabelList;
class ScrollButton;
class Skin;
class SkinButton;

// The start screen: the collections, the players, and what is to be done with them. Other windows are told
// by its signals what the player has decided. Paths are absolute.
//
// Keys: up and down, PageUp and PageDown, Home and End, and the first letters of its name choose the
// collection, left and right the player, Tab and 1 to 4 the mode; Enter and Space open; Insert asks for a new
// player, F1 helps, F2 changes the skin, F3 tells what the player's records say.
class FrmStart2 : public SkinWindow {
  Q_OBJECT

 public:
  // What opening does: plays the collection, plays a record, edits the collection, or asks for a file with a
  // collection or a record.
  enum class Mode { Play, Replay, Editor, File };

  FrmStart2(Skin& skin, const Paths& paths, Settings& settings);

  // For folders that have come since the screen was made.
  void SetPaths(const Paths& paths) { paths_ = paths; }

  // The selected player; empty when there is none.
  QString Player() const;

 public slots:
  // Prepares the screen and shows it; when there is no player, one is asked for next. Once in the program's
  // life; after that the screen is shown and hidden, and reads the folders anew whenever it is shown.
  void FrmLoad();

  // Takes pictures, places, colours and words from the skin.
  void SkinIt();

  // Reads the folders anew. What was selected stays so if it is still there. Without a player one is asked
  // for.
  void FindColls();
  void FindPlrs();

  // Selects the collection in this file, if it is one of the list.
  void SelectFile(const QString& path);

  // A collection from outside: copied into the game's folder if the player likes, and opened.
  void AnotherColl(const QString& path);

  // A record from outside: played.
  void AnotherRepl(const QString& path);

  // A file that was opened from the desktop goes to one of the two by its kind; a message tells when it is
  // of no known kind. The screen is to be seen, and no dialog.
  void OpenFromOutside(const QString& path);

 signals:
  // The player has seen it.
  void Painted();
  void OpenCollection(const QString& path, const QString& player);
  void PlayRecord(const QString& path);
  void EditCollection(const QString& path, const QString& player);  // empty: a new one, nobody
  void SkinChanged();
  void Quit();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;  // Tab goes through the modes
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void NameParts();
  void Connect();
  void SkinPalm();
  void SkinButtons();
  void SkinLists();
  void SkinFingers();
  void Furnish();
  void ShowMode();
  void ShowScrollButtons();
  void ChooseMode(Mode mode);

  void LookAgain();
  void ShowColls(std::vector<CollRow> colls);
  void ListPlayers();
  void SelectPlayer(const QString& name);
  void SelectColl(const QString& file);
  QString SelectedPath() const;

  void Open();
  void OpenSelected();
  void EditSelected();
  void OpenPath(const QString& path);
  void AskForRecord();
  void AskForAnyFile();
  void OpenByKind(const QString& path);
  bool IsThere(const QString& path);
  void NewPlayer();
  void ChangeSkin();
  void ShowStatistics();
  void Help();
  void TellOf(const QString& words, const QString& path = QString());

  Skin& skin_;
  Paths paths_;
  Settings& settings_;
  std::vector<CollRow> colls_;
  QStringList players_;
  QFileSystemWatcher watcher_;  // of the collections
  QTimer settled_;              // since the last change
  Mode mode_ = Mode::Play;
  bool loaded_ = false;
  bool furnished_ = false;
  bool addingPlayer_ = false;

  LabelList* lblCColl_;
  LabelList* lblPlr_;
  SkinButton* close_;
  SkinButton* help_;
  ScrollButton* vscroll_;
  ScrollButton* hscroll_;
  SkinButton* play_;
  SkinButton* addplayer_;
  SkinButton* changeskin_;
  SkinButton* statistics_;
  std::array<FingerButton*, 4> fingers_;  // by mode
};

}  // namespace zorik
