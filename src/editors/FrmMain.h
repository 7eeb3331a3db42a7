#pragma once

#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "data/Chance.h"
#include "editors/CaveModel.h"
#include "editors/CaveOrigin.h"
#include "editors/EditTiles.h"
#include "editors/MenuBuilder.h"
#include "editors/ToolTable.h"

class QActionGroup;
class QLabel;
class QToolButton;

namespace zorik {

class CaveView;
class DrawHand;
class DrawMenus;
class DoubtPage;
class FrmFormality;
class Palette;
class ProofDesk;
class SidePanel;
class Skin;
class ToolHint;
class ToolStrip;
class ToolWords;

// The cave editor. It edits one cave at a time, from the text that it is given to the text that it hands back
// when it is left.
class FrmMain : public QMainWindow {
  Q_OBJECT

 public:
  // Edits the cat's program, in Windows-1250; nothing when it is to stay as it was.
  using CatEditor = std::function<std::optional<std::string>(const std::string& script)>;

  // The seed is that of random replacement.
  FrmMain(Skin& skin, CatEditor editCat, std::uint64_t seed, QWidget* parent = nullptr);
  ~FrmMain() override;

  // Puts texts and tiles of the skin on all controls; to be called when another skin has been put on.
  void SetLW();

  // How the editing of a cave begins.
  enum class Start {
    Editing,
    Declined,    // something in it had to be put right, and the author was against it; the window has gone
    Unreadable,  // nothing has changed
  };

  // Opens a cave and shows the window. When something in the cave has to be put right, the author is asked
  // first.
  Start Edit(const std::string& caveText, const CaveOrigin& origin = {});

  // Where the cave comes from that was opened last.
  const CaveOrigin& Origin() const { return origin_; }

  // The collection has this cave now, and is stored.
  void Stored(const std::string& caveText, const CaveOrigin& origin);

  // Shows the editor again as it was before a test run.
  void ComeBack();

  const CaveModel& Model() const { return model_; }
  ProofDesk& Proof() { return *proof_; }

 signals:
  // The editor is being left with this cave text, in Windows-1250; Closed follows.
  void Done(const std::string& newCaveText);
  void Closed();
  // The collection is to be stored with this cave in it; the editor stays.
  void StoreWanted(const std::string& caveText);
  // A test run of this cave is due; the window has gone for that time.
  void TestRun(const std::string& caveText);
  // A page of the help is wanted.
  void HelpWanted(const QString& page);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeMenus();
  void MakeEditMenu();
  void MakeCaveMenu();
  void MakeDogMenu();
  void MakeViewMenu();
  void MakeHelpMenu();
  void LayOut();
  void ConnectTools();
  void ConnectHand();
  QToolButton* MakeLabel(const char* name, std::function<void()> act);
  void MakeStatusBar();
  void UpdateCaptions();
  void UpdateMenus();
  void UpdateStatus();
  void UpdateTitle();
  void LoadTiles();
  // A tile as large as icons are.
  QPixmap TilePixmap(int palette, int dog);
  // Puts a tile on a label; the dog is the present one.
  void ShowIcon(std::size_t label, int palette);

  // Shows a cave that has just been opened, with the first tools.
  void ShowOpened();
  char LetterOf(ToolButton button) const;
  QString NameOf(ToolButton button) const;
  void Resize();
  // Tells for a moment that something is not possible.
  void Refuse(const char* caption, int line);
  void Dog(int n);
  void Replace(int every);
  void ReplaceRandom(int wanted);
  void MakeFrame();
  void Restore();
  void Undo(bool redo);
  void ShowProperties();
  void ShowStats();
  void ShowShortcuts(QWidget* over);
  void EditScript();
  void Test();
  void Store();
  // The cave may look different in any respect.
  void AfterChange();
  // The cave as a text; when it has no room for something a message tells for what.
  std::optional<std::string> BuiltText();
  Skin& skin_;
  CatEditor editCat_;
  Chance rnd_;
  CaveModel model_;
  CaveOrigin origin_;
  std::string stored_;  // the cave as the collection has it
  EditTiles tiles_;
  QSize shownSize_;       // of the cave
  int shownScheme_ = -1;  // colouring of the tiles
  int pointed_ = -1;      // tile of the palette under the pointer

  Palette* palette_ = nullptr;
  ToolHint* hint_ = nullptr;
  CaveView* view_ = nullptr;
  ProofDesk* proof_ = nullptr;
  ToolStrip* strip_ = nullptr;
  std::unique_ptr<DrawHand> hand_;
  DrawMenus* drawMenus_ = nullptr;
  ToolWords* words_ = nullptr;
  SidePanel* panel_ = nullptr;  // around the view
  DoubtPage* doubts_ = nullptr;
  FrmFormality* frmFormality_ = nullptr;
  QLabel* lblAmoebas_ = nullptr;
  QLabel* imgAmoeba_ = nullptr;
  QLabel* lblCell_ = nullptr;
  QLabel* lblSize_ = nullptr;
  std::array<QToolButton*, 5> labels_{};  // Label7, Label3, Label8, Command1, Command2

  MenuBuilder menus_{*this};
  QMenu* mnuEd_ = nullptr;
  QMenu* mnuCave_ = nullptr;
  QMenu* PesMenu_ = nullptr;
  QMenu* mnuView_ = nullptr;
  QMenu* mnuObjbyObj_ = nullptr;
  QAction* sep1_ = nullptr;
  QAction* mnuUndo_ = nullptr;
  QAction* mnuRedo_ = nullptr;
  QMenu* mnuSteps_ = nullptr;
  QAction* mnuRestore_ = nullptr;
  QAction* mnuOkraj_ = nullptr;
  std::array<QAction*, 2> mnuReplEvery_{};
  std::array<QAction*, 4> mnuReplRan_{};
  QActionGroup* dogs_ = nullptr;
};

}  // namespace zorik
