#pragma once

#include <QString>
#include <functional>
#include <string>

#include "data/ResultFwd.h"
#include "platform/Shell.h"
#include "screens/SkinWindow.h"

namespace zorik {

class CaveList;
class CavePreview;
class Flow;
class ScrollButton;
class Selection;
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
// the selected one, and the ways from there. All that it shows stands in the flow.
class FrmPoSt : public SkinWindow {
  Q_OBJECT

 public:
  // Wins that could not be stored count like records, and have a mark.
  FrmPoSt(Skin& skin, Flow& flow, LetterOpeners openers = {});

  // Opens a collection for a player and shows the screen. When the collection cannot be opened, the answer is
  // a message for the player, and nothing has changed.
  Result<Done> LoadColl(const QString& path, const QString& player);

  // Takes the looks, or the texts, of the skin that is worn by now.
  void SkinIt();
  void SetLWPost();

  // The rest needs a collection that is open.

  // Shows the caves as they are by now: one of them may have been won.
  void ShowCaves();

  // Asks for the selected cave to be played (also to be played again), if it is open.
  void ClickedStart();

  // Likewise in practice.
  void ClickedPractice();

 signals:
  // The selected cave is to be played, or its record.
  void PlayCave();
  void PlayRecord();
  // The selected cave is to be played in practice.
  void PracticeWanted();
  // The selected cave's win, which could not be stored, is to be stored after all.
  void StoreWanted();
  // The player wants to choose whose ghost goes beside him in the selected cave, from a menu at this place of
  // the screen.
  void GhostWanted(const QPoint& at);
  // His record of the selected cave is to be seen beside another one, likewise.
  void PairWanted(const QPoint& at);
  void Back();
  void HelpWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Build();
  SkinLabel* NewLabel(const char* name);
  void PlaceHead();
  void PlaceCave();
  void SkinButtons();
  QRect LineBox(const std::string& key, int height, int right) const;

  void ShowColl();
  void ShowAuthor();
  void FillRows();
  void CelkSkore();
  void ShowTotal();
  void SelectCave(int number);
  void ShowCave();
  void ShowRecord(bool solved);
  const Selection& Caves() const;
  SkinButton* ButtonOf(int key) const;
  bool Command(int key);

  void Congratulate();
  void ClickedSend();
  void ClickedAsPage();
  void ClickedAuthor();
  QPoint MenuPlace(const SkinButton& button) const;
  OpenFailed TellNoProgram(const QString& target);
  void Say(const QString& text);

  Skin& skin_;
  Flow& flow_;
  LetterOpeners openers_;

  SkinLabel* collectionName_;  // name of the collection
  SkinLabel* author_;          // its author
  SkinLabel* lblDescription_;
  SkinLabel* lblTotal_;
  SkinLabel* lblRest_;
  SkinLabel* lblCaveName_;
  SkinLabel* lblCaveDescription_;
  SkinLabel* lblRecord_;
  CavePreview* preview_;
  SkinPicture* imgBonus_;
  CaveList* list_;
  SkinButton* replay_;
  SkinButton* play_;
  SkinButton* congratulation_;
  SkinButton* send_;
  SkinButton* practice_;
  SkinButton* close_;
  SkinButton* help_;
  SkinButton* ghost_;
  SkinButton* pair_;
  ScrollButton* vscroll_;
};

}  // namespace zorik
