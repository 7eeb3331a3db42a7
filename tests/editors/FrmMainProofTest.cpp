#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <filesystem>

#include "data/CaveO.h"
#include "data/Files.h"
#include "editors/Mnemonics.h"
#include "editors/ProofScreen.h"
#include "flow/SadaModel.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;
using test::kLongerWay;
using test::kProvenCave;
using test::kWay;
using test::Picture;
using test::RecordOf;
using test::TextOf;

class FrmMainProofTest : public test::ProofScreen {
 protected:
  // Where the ring of the first dog is drawn, by its column in the row of the way; -1 for nowhere.
  int Ring() const {
    const QColor way(255, 210, 63);
    const QImage shown = Shown();
    for (int x = 0; x < window->Model().Width(); ++x) {
      if (shown.pixelColor(x * 26 + 13, 26 + 3) == way) return x;
    }
    return -1;
  }
};

TEST_F(FrmMainProofTest, SaysSoWhereThereIsNoProof) {
  EXPECT_EQ(Verdict(),
            "Komnata nemá důkaz, že se dá vyhrát. Stane se jím vyhraná zkouška, nebo nalezené řešení.");
  EXPECT_FALSE(Child<QPushButton>("btnTry").isEnabled());
  EXPECT_FALSE(Child<QPushButton>("btnRate").isEnabled());
  EXPECT_FALSE(Child<QCheckBox>("chkWay").isEnabled());
  EXPECT_FALSE(Child<QCheckBox>("chkUntouched").isEnabled());
  OpenProven();
  EXPECT_TRUE(Child<QCheckBox>("chkWay").isEnabled());
  EXPECT_TRUE(Child<QCheckBox>("chkUntouched").isEnabled());
}

TEST_F(FrmMainProofTest, FindsTheProofBesideTheCollectionAndTellsThatItWins) {
  OpenProven();
  EXPECT_EQ(Verdict(), "Důkaz stále vyhrává: tiků 7, sekund 0,7.");
  EXPECT_FALSE(Child<QPushButton>("btnGo").isVisible());
}

TEST_F(FrmMainProofTest, TellsTheTickAndTheCellAtWhichAStrokeBreaksTheProof) {
  OpenProven();
  Wall(5, 1);
  EXPECT_TRUE(window->Proof().Watch().Asking()) << "the stroke does not wait for the answer";
  EXPECT_EQ(Verdict(), "Důkaz selže v tiku 4 na políčku 6, 2. Tah tam nevede, kam vedl. Na políčku: Ocel.");
  EXPECT_TRUE(Child<QPushButton>("btnGo").isVisible());
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Verdict(), "Důkaz stále vyhrává: tiků 7, sekund 0,7.");
}

TEST_F(FrmMainProofTest, MarksTheCellOnThePictureWhereTheProofBreaks) {
  OpenProven();
  Child<QCheckBox>("chkWay").setChecked(false);
  const QColor red(255, 48, 48);
  Move(1, 3, Qt::NoButton);
  EXPECT_NE(Shown().pixelColor(5 * 26, 1 * 26 + 13), red);
  Wall(5, 1);
  Move(1, 3, Qt::NoButton);
  Answer();
  EXPECT_EQ(Shown().pixelColor(5 * 26, 1 * 26 + 13), red);
}

TEST_F(FrmMainProofTest, ShowsTheWayAndTheUntouchedCellsAsLongAsTheyAreWanted) {
  OpenProven();
  auto& way = Child<QCheckBox>("chkWay");
  auto& untouched = Child<QCheckBox>("chkUntouched");
  way.setChecked(false);
  untouched.setChecked(false);
  const QImage bare = Shown();
  way.setChecked(true);
  const QImage withWay = Shown();
  EXPECT_NE(withWay.copy(0, 26, 9 * 26, 26), bare.copy(0, 26, 9 * 26, 26));
  EXPECT_EQ(withWay.copy(0, 2 * 26, 9 * 26, 3 * 26), bare.copy(0, 2 * 26, 9 * 26, 3 * 26));
  way.setChecked(false);
  untouched.setChecked(true);
  const QImage shaded = Shown();
  EXPECT_EQ(shaded.copy(0, 26, 9 * 26, 26), bare.copy(0, 26, 9 * 26, 26)) << "the way was touched";
  EXPECT_NE(shaded.copy(26, 2 * 26, 26, 26), bare.copy(26, 2 * 26, 26, 26));
  EXPECT_EQ(shaded.copy(0, 4 * 26, 9 * 26, 26), bare.copy(0, 4 * 26, 9 * 26, 26)) << "steel";
  untouched.setChecked(false);
  EXPECT_EQ(Shown(), bare);
}

TEST_F(FrmMainProofTest, OffersAWonTestRunAndKeepsItBesideTheCollection) {
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  ASSERT_TRUE(Offers());
  EXPECT_FALSE(fs::exists(Path())) << "nobody has agreed";
  Press("btnTake");
  EXPECT_FALSE(Offers());
  EXPECT_EQ(*ReadWhole(Path()), RecordOf(kProvenCave, kWay));
  EXPECT_EQ(Verdict(), "Důkaz stále vyhrává: tiků 7, sekund 0,7.");
}

TEST_F(FrmMainProofTest, LeavesTheProofAloneWhenTheOfferIsTurnedDown) {
  OpenProven();
  window->Proof().Won(RecordOf(kProvenCave, kLongerWay));
  Press("btnLeave");
  EXPECT_FALSE(Offers());
  EXPECT_EQ(*ReadWhole(Path()), RecordOf(kProvenCave, kWay));
}

TEST_F(FrmMainProofTest, KeepsTheEarlierProofBesideTheNewOne) {
  OpenProven();
  window->Proof().Won(RecordOf(kProvenCave, kLongerWay));
  Press("btnTake");
  EXPECT_EQ(*ReadWhole(Path()), RecordOf(kProvenCave, kLongerWay));
  EXPECT_EQ(*ReadWhole(Path() + "~1"), RecordOf(kProvenCave, kWay));
  EXPECT_NE(Verdict().find("tiků 9"), std::string::npos);
  EXPECT_NE(Told().find("sada - Test.zkr~1"), std::string::npos) << Told();
}

TEST_F(FrmMainProofTest, DoesNotOfferARecordThatWinsNothing) {
  window->Proof().Won("rubbish");
  EXPECT_FALSE(Offers());
}

TEST_F(FrmMainProofTest, KeepsTheProofOfAnUnsavedCollectionUntilThatIsSaved) {
  OpenCave(kProvenCave, false);
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  Press("btnTake");
  EXPECT_EQ(Verdict(), "Důkaz stále vyhrává: tiků 7, sekund 0,7.");
  EXPECT_EQ(Told(), "Důkaz se uloží se sadou.");
  EXPECT_TRUE(fs::is_empty(folder.Path()));
  SadaModel sada({}, 1);
  sada.SetText(SadaText::Name, "sada");
  ASSERT_TRUE(sada.Save(folder.Path() + "/sada.zk"));
  window->Proof().CollectionSaved(sada);
  EXPECT_EQ(*ReadWhole(Path()), RecordOf(kProvenCave, kWay));
}

TEST_F(FrmMainProofTest, FindsASolutionAndOffersIt) {
  Press("btnSolve");
  ASSERT_TRUE(WorkEnds());
  ASSERT_TRUE(Offers());
  Press("btnTake");
  EXPECT_TRUE(fs::exists(Path()));
  EXPECT_NE(Verdict().find("stále vyhrává"), std::string::npos) << Verdict();
}

TEST_F(FrmMainProofTest, SaysThatACaveCannotBeWon) {
  OpenCave({"WWWWWWWWW", "W1;D;;W;T", "W;;;;;W;W", "W;;;;;W;W", "WWWWWWWWW"});
  Press("btnSolve");
  ASSERT_TRUE(WorkEnds());
  EXPECT_EQ(Told(), "Tato komnata se určitě nedá vyhrát.");
  EXPECT_FALSE(Offers());
}

// Nobody knows that boulders cannot be walked through.
const Picture kHard{"WWWWWWWWW", "W1;DRRRRT", "W;;;RRRRW", "W;;;RRRRW", "WWWWWWWWW"};

TEST_F(FrmMainProofTest, LooksForASolutionUntilItIsToldToStop) {
  OpenCave(kHard);
  Press("btnSolve");
  EXPECT_TRUE(QTest::qWaitFor([this] { return window->Proof().Work().Done().ticks > 0; }));
  EXPECT_EQ(window->Proof().Work().Doing(), ProofWork::Kind::Solve);
  EXPECT_TRUE(Child<QPushButton>("btnStop").isVisible());
  EXPECT_FALSE(Child<QPushButton>("btnSolve").isVisible());
  Press("btnStop");
  EXPECT_EQ(window->Proof().Work().Doing(), ProofWork::Kind::None);
  EXPECT_TRUE(Child<QPushButton>("btnSolve").isVisible());
}

TEST_F(FrmMainProofTest, GivesTheSearchUpWhenTheCaveChangesOrIsLeft) {
  OpenCave(kHard);
  Press("btnSolve");
  Wall(2, 2);
  EXPECT_EQ(window->Proof().Work().Doing(), ProofWork::Kind::None);
  Press("btnSolve");
  window->close();
  EXPECT_EQ(window->Proof().Work().Doing(), ProofWork::Kind::None);
  EXPECT_EQ(closed, 1);
}

TEST_F(FrmMainProofTest, GoesWhileItSearches) {
  OpenCave(kHard);
  Press("btnSolve");
  QElapsedTimer clock;
  clock.start();
  window.reset();
  EXPECT_LT(clock.elapsed(), 5'000);
}

TEST_F(FrmMainProofTest, RatesTheProof) {
  OpenProven();
  Press("btnRate");
  ASSERT_TRUE(WorkEnds());
  EXPECT_NE(Told().find("Tlapky: 1 z 5"), std::string::npos) << Told();
  EXPECT_NE(Told().find("S jinou náhodou plán vyhrál 20krát z 20."), std::string::npos) << Told();
}

TEST_F(FrmMainProofTest, LetsTheRunBeTriedFromAnyTickOfIt) {
  OpenProven();
  QSignalSpy tries(&window->Proof(), &ProofDesk::TryRun);
  auto& tick = Child<QSpinBox>("numTick");
  EXPECT_EQ(tick.maximum(), 6);
  tick.setValue(3);
  Press("btnTry");
  ASSERT_EQ(tries.count(), 1);
  EXPECT_EQ(tries[0][1].toInt(), 3);
}

TEST_F(FrmMainProofTest, LetsABrokenRunBeTriedUpToWhereItWent) {
  OpenProven();
  Wall(5, 1);
  Answer();
  EXPECT_TRUE(Child<QPushButton>("btnTry").isEnabled());
  EXPECT_EQ(Child<QSpinBox>("numTick").maximum(), 6);
}

TEST_F(FrmMainProofTest, LetsTheCaveBeTriedWithTheDogAtThePointerAndLeavesItAsItIs) {
  std::vector<std::string> tries;
  QObject::connect(&window->Proof(), &ProofDesk::TryCave, window.get(),
                   [&](const std::string& text) { tries.push_back(text); });
  Action("mnuTryDog").trigger();
  EXPECT_TRUE(tries.empty()) << "the pointer was nowhere";
  Move(4, 3, Qt::NoButton);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  Press("btnTryDog");
  ASSERT_EQ(tries.size(), 1U);
  EXPECT_EQ(tries[0], TextOf({"WWWWWWWWW", "W.;D;;;;T", "W;;;;;;;W", "W;;;1;;;W", "WWWWWWWWW"}))
      << "the pointer was there last";
  EXPECT_EQ(test::LettersOf(window->Model()), kProvenCave);
}

TEST_F(FrmMainProofTest, LetsTheTickBeChosenByAClickOnTheWay) {
  OpenProven();
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(4, 1));
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 3);
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(4, 2));
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 3) << "the way does not come there";
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(8, 1));
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 6) << "the last one to go on from";
  EXPECT_EQ(test::LettersOf(window->Model()), kProvenCave) << "nothing is drawn so";
  Child<QCheckBox>("chkWay").setChecked(false);
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(4, 1));
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 6) << "a way that is not shown";
}

TEST_F(FrmMainProofTest, GoesThroughTheTicksOfACellToWhichTheWayComesTwice) {
  Store("RRLLRRRRRRR");
  OpenCave(kProvenCave);
  std::vector<int> ticks;
  for (int i = 0; i < 4; ++i) {
    QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(2, 1));
    ticks.push_back(Child<QSpinBox>("numTick").value());
  }
  EXPECT_EQ(ticks, (std::vector{1, 3, 5, 1}));
}

TEST_F(FrmMainProofTest, TurnsToItsPageWhenATickIsChosenOnThePicture) {
  OpenProven();
  auto& pages = Child<QTabWidget>("pages");
  pages.setCurrentIndex(0);
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(4, 2));
  EXPECT_EQ(pages.currentIndex(), 0);
  QTest::mouseClick(&Area(), Qt::LeftButton, Qt::ControlModifier, Place(4, 1));
  EXPECT_EQ(pages.currentWidget(), &Child<QWidget>("proofPage"));
}

TEST_F(FrmMainProofTest, SpeaksTheLanguageOfAnotherSkin) {
  OpenProven();
  Wear("English");
  window->SetLW();
  EXPECT_EQ(Verdict(), "The proof still wins: 7 ticks, 0.7 seconds.");
  EXPECT_EQ(Child<QPushButton>("btnSolve").text(), "Find a solution");
}

// The author takes over there.
TEST_F(FrmMainProofTest, RingsTheDogWhereItStandsAfterTheChosenTick) {
  OpenProven();
  auto& tick = Child<QSpinBox>("numTick");
  auto& slider = Child<QSlider>("sldTick");
  EXPECT_EQ(Ring(), 1);
  tick.setValue(3);
  EXPECT_EQ(slider.value(), 3);
  EXPECT_EQ(Ring(), 4);
  slider.setValue(5);
  EXPECT_EQ(tick.value(), 5);
  EXPECT_EQ(Ring(), 6);
}

TEST_F(FrmMainProofTest, LeadsToTheMomentBeforeTheBreak) {
  OpenProven();
  Wall(5, 1);
  Answer();
  Press("btnGo");
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 3);
  EXPECT_EQ(Ring(), 4) << "the dog stands before the wall";
}

TEST_F(FrmMainProofTest, AsksForAYesOrANo) {
  EXPECT_EQ(WithoutMnemonic(Child<QPushButton>("btnTake").text()), "Ano");
  EXPECT_EQ(WithoutMnemonic(Child<QPushButton>("btnLeave").text()), "Ne");
}

TEST_F(FrmMainProofTest, KeepsALaterProofBesideTheFileThatTheCollectionHasByNow) {
  OpenCave(kProvenCave, false);
  SadaModel sada({}, 1);
  sada.SetText(SadaText::Name, "sada");
  ASSERT_TRUE(sada.Save(folder.Path() + "/sada.zk"));
  window->Proof().CollectionSaved(sada);
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  Press("btnTake");
  EXPECT_EQ(*ReadWhole(Path()), RecordOf(kProvenCave, kWay));
  EXPECT_EQ(Told(), "");
}

TEST_F(FrmMainProofTest, KnowsTheCaveOfAWaitingProofThoughTheCollectionGotAnotherName) {
  OpenCave(kProvenCave, false);
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  Press("btnTake");
  SadaModel sada({}, 1);
  sada.New();
  sada.SetText(SadaText::Name, "jina");
  sada.SetSelected(TextOf(kProvenCave));
  ASSERT_TRUE(sada.Save(folder.Path() + "/jina.zk"));
  window->Proof().CollectionSaved(sada);
  EXPECT_EQ(*ReadWhole(ProofPath(folder.Path() + "/jina.zk", "Test")), RecordOf(kProvenCave, kWay));
}

// The boulder moves at one try of four. The way is as long as the winner's luck allows in fifty ticks.
TEST_F(FrmMainProofTest, TellsHowOftenThePlanWinsWithAnotherChance) {
  std::string text, record;
  for (std::size_t length = 50; record.empty() && length > 20; --length) {
    const std::string row = "W1R." + std::string(length - 6, ';') + "DT";
    text = test::CaveTextOf({std::string(length, 'W'), row, "WWW." + std::string(length - 4, 'W'),
                             std::string(length, 'W'), std::string(length, 'W')},
                            {.time = 5, .needed = 1});
    record = RecordOfPlan({text, "sada", 0, {}}, test::PlanOf(std::string(50, 'R')));
  }
  ASSERT_TRUE(StoreProof(Path(), record));
  ASSERT_EQ(window->Edit(text, origin), FrmMain::Start::Editing);
  Answer();
  Press("btnRate");
  ASSERT_TRUE(WorkEnds());
  EXPECT_NE(Told().find("krát z 20."), std::string::npos) << Told();
  EXPECT_EQ(Told().find("vyhrál 20krát"), std::string::npos) << Told();
}

TEST_F(FrmMainProofTest, PutsNoDogWhereThePointerWasInAnotherCave) {
  const QSignalSpy tries(&window->Proof(), &ProofDesk::TryCave);
  Move(4, 3, Qt::NoButton);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  OpenCave(kProvenCave);
  Action("mnuTryDog").trigger();
  EXPECT_EQ(tries.count(), 0);
}

TEST_F(FrmMainProofTest, LosesNoWaitingProofThatCannotBeStored) {
  OpenCave(kProvenCave, false);
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  Press("btnTake");
  SadaModel sada({}, 1);
  sada.SetText(SadaText::Name, "sada");
  const fs::path gone = folder.Path() + "/pryc";
  fs::create_directory(gone);
  ASSERT_TRUE(sada.Save(gone.string() + "/sada.zk"));
  fs::remove_all(gone);
  const test::Boxes boxes;
  window->Proof().CollectionSaved(sada);
  EXPECT_EQ(boxes.said.size(), 1);
  ASSERT_TRUE(sada.Save(folder.Path() + "/sada.zk"));
  window->Proof().CollectionSaved(sada);
  EXPECT_EQ(*ReadWhole(Path()), RecordOf(kProvenCave, kWay));
}

// Whatever the system's own words are, they are no Czech ones.
TEST_F(FrmMainProofTest, TellsInThePlayersLanguageWhyAProofIsNotStored) {
  const auto expect = [](const test::Boxes& boxes) {
    ASSERT_EQ(boxes.said.size(), 1);
    EXPECT_TRUE(boxes.said[0].startsWith("Důkaz se nepodařilo uložit:")) << boxes.said[0].toStdString();
    EXPECT_TRUE(boxes.said[0].contains("Test.zkr")) << boxes.said[0].toStdString();
    EXPECT_TRUE(boxes.said[0].endsWith("Taková složka neexistuje.")) << boxes.said[0].toStdString();
    EXPECT_FALSE(boxes.said[0].contains("cannot")) << boxes.said[0].toStdString();
  };
  OpenCave(kProvenCave, false);
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  Press("btnTake");
  SadaModel sada({}, 1);
  sada.SetText(SadaText::Name, "sada");
  ASSERT_TRUE(sada.Save(folder.Path() + "/sada.zk"));
  fs::remove_all(folder.Path());
  {
    const test::Boxes boxes;
    window->Proof().CollectionSaved(sada);
    expect(boxes);
  }
  OpenCave(kProvenCave);
  window->Proof().Won(RecordOf(kProvenCave, kLongerWay));
  const test::Boxes boxes;
  Press("btnTake");
  expect(boxes);
}

}  // namespace
}  // namespace zorik
