#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "data/Selection.h"
#include "platform/Paths.h"
#include "platform/Shell.h"
#include "screens/SkinWindow.h"

namespace zorik {

class CaveList;
class ScrollButton;
class Skin;
class SkinButton;
class SkinLabel;
class SkinPicture;

// What opens a letter, or a link that begins one.
struct LetterOpeners {
  std::function<void(const QString&, const OpenFailed&)> file = OpenFile;
  std::function<void(const QUrl&, const OpenFailed&)> link = OpenLink;
};

// The screen on which a player chooses a cave of a collection: the list of the caves, what is to be known of
// the selected one, and the ways from there. It stays as it is while a cave is played; who plays it tells of
// a win by Prosel.
class FrmPoSt : public SkinWindow {
  Q_OBJECT

 public:
  // Wins that could not be stored count like records, and have a mark.
  FrmPoSt(Skin& skin, const Paths& paths, const UnstoredWins& unstored, LetterOpeners openers = {});

  // Opens a collection for a player and shows the screen. When the collection cannot be opened, the answer is
  // a message for the player, and nothing has changed.
  Result<Done> LoadColl(const QString& path, const QString& player);

  // Takes the looks, or the texts, of the skin that is worn by now.
  void SkinIt();
  void SetLWPost();

  // The rest needs a collection that is open.

  // Name of the collection, for the game.
  const std::string& CollectionName() const { return selection_->Collection().Name; }

  // Where a run of the selected cave will keep its record.
  RecordSlot Slot() const { return selection_->Slot(selection_->Selected()); }

  // The cave of this slot has been won, with this total in the score window and its bonus sign shown or not.
  void Prosel(const RecordSlot& slot, int total, bool bonusVisible);

  // Asks for the selected cave to be played (also to be played again), if it is open.
  void ClickedStart();

 signals:
  void PlayCave(const QByteArray& caveText);  // Windows-1250
  void PlayRecord(const QString& path);
  // The selected cave's win, which could not be stored, is to be stored after all.
  void StoreWanted();
  void Back();
  void HelpWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build();
  SkinLabel* NewLabel(const char* name);
  void PlaceHead();
  void PlaceCave();
  void SkinButtons();
  QRect LineBox(const std::string& key, int height, int right) const;

  std::string FolderOf(const QString& player) const;
  void ShowColl();
  void ShowAuthor();
  void FillRows();
  void CelkSkore();
  void ShowTotal();
  void SelectCave(int number);
  void ShowCave();
  void ShowRecord(bool solved);
  bool IsStored(int number) const;
  bool Command(int key);
  int SelectedBy(int key) const;

  void Replay();
  void Congratulate();
  void ClickedSend();
  void ClickedAuthor();
  OpenFailed TellNoProgram(const QString& target);
  void Say(const QString& text);

  Skin& skin_;
  Paths paths_;
  const UnstoredWins& unstored_;
  LetterOpeners openers_;
  std::optional<Selection> selection_;

  SkinLabel* Label4_;  // name of the collection
  SkinLabel* Label3_;  // its author
  SkinLabel* lblDescription_;
  SkinLabel* lblTotal_;
  SkinLabel* lblRest_;
  SkinLabel* lblCaveName_;
  SkinLabel* lblCaveDescription_;
  SkinLabel* lblRecord_;
  SkinPicture* imgBonus_;
  CaveList* list_;
  SkinButton* replay_;
  SkinButton* play_;
  SkinButton* congratulation_;
  SkinButton* send_;
  SkinButton* close_;
  SkinButton* help_;
  ScrollButton* vscroll_;
};

}  // namespace zorik
