#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <string>

#include "data/ProofFile.h"
#include "data/Result.h"
#include "editors/EditorScreen.h"
#include "editors/ProofDesk.h"
#include "editors/ToolTable.h"
#include "solve/Walks.h"
#include "support/TempFolder.h"

namespace zorik::test {

inline const Picture kProvenCave{"WWWWWWWWW", "W1;D;;;;T", "W;;;;;;;W", "W;;;;;;;W", "WWWWWWWWW"};
inline constexpr const char* kWay = "RRRRRRR";
inline constexpr const char* kLongerWay = "..RRRRRRR";

inline std::string TextOf(const Picture& picture) {
  return CaveTextOf(picture, {.needed = 1});
}

inline std::string RecordOf(const Picture& picture, const char* keys) {
  return RecordOfPlan({TextOf(picture), "sada", 0, {}}, PlanOf(keys));
}

// The cave editor with a cave of a collection, and the page of its proof in front.
class ProofScreen : public testing::Test, public EditorScreen {
 protected:
  ProofScreen() { OpenCave(kProvenCave); }

  void OpenCave(const Picture& picture, bool saved = true) {
    origin.File = saved ? folder.Path() + "/sada.zk" : std::string();
    origin.Collection = "sada";
    origin.Number = 1;
    ASSERT_EQ(window->Edit(TextOf(picture), origin), FrmMain::Start::Editing);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    Child<QTabWidget>("pages").setCurrentWidget(&Child<QWidget>("proofPage"));
    Answer();
  }

  std::string Path() const { return ProofPath(folder.Path() + "/sada.zk", "Test"); }
  void Store(const char* keys) const { ASSERT_TRUE(StoreProof(Path(), RecordOf(kProvenCave, keys))); }
  void OpenProven() {
    Store(kWay);
    OpenCave(kProvenCave);
  }

  // Waits for the proof to be judged.
  void Answer() const {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->Proof().Watch().Asking(); }));
  }
  bool WorkEnds() const {
    return QTest::qWaitFor([this] { return window->Proof().Work().Doing() == ProofWork::Kind::None; },
                           20'000);
  }
  std::string Verdict() const {
    Answer();
    return Child<QLabel>("lblVerdict").text().toStdString();
  }
  std::string Told() const { return Child<QLabel>("lblWork").text().toStdString(); }
  bool Offers() const { return Child<QWidget>("proofOffer").isVisible(); }
  void Press(const char* name) const { Child<QPushButton>(name).click(); }
  void Wall(int x, int y) const {
    Pick(ToolOfLetter('W'));
    Click(x, y);
  }
  QImage Shown() const { return Area().grab().toImage(); }

  TempFolder folder{"FrmMainProof"};
  CaveOrigin origin;
};

}  // namespace zorik::test
