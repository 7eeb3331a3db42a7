// The words of the page about the proof: of caves that cannot be played, of work that is done, and of what is
// asked; and what becomes of a proof whose cave gets another name.
#include <QCheckBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <filesystem>

#include "data/Files.h"
#include "editors/FormalityScreen.h"
#include "editors/Paints.h"
#include "editors/ProofScreen.h"
#include "flow/SadaModel.h"
#include "screens/Marks.h"

namespace zorik {
namespace {

using test::kProvenCave;
using test::kWay;
using test::RecordOf;
using test::TextOf;

const test::Picture kHard{"WWWWWWWWW", "W1;DRRRRT", "W;;;RRRRW", "W;;;RRRRW", "WWWWWWWWW"};
const test::Picture kHopeless{"WWWWWWWWW", "W1;D;;W;T", "W;;;;;W;W", "W;;;;;W;W", "WWWWWWWWW"};

class FrmMainProofWordsTest : public test::ProofScreen {
 protected:
  void Rename(const QString& name) const {
    test::InDialogNamed dialog("frmFormality", [&name](QWidget& it) {
      it.findChild<QLineEdit*>("Text3")->setText(name);
      it.findChild<QPushButton*>("Command1")->click();
    });
    Child<QToolButton>("Label3").click();
    EXPECT_TRUE(dialog.opened);
  }
  QString Word(const char* key, const QString& a = {}, const QString& b = {}) const {
    return FillMarks(skin.Caption(key), a, b);
  }
  // The words in front of the first number, which may have grown by the time it is read.
  std::string BeginningOf(const char* key) const {
    const QString words = Word(key, "|", "|");
    EXPECT_GT(words.indexOf('|'), 0) << key;
    return words.left(words.indexOf('|')).toStdString();
  }
  void SaveCollection() const {
    SadaModel sada({}, 1);
    sada.SetText(SadaText::Name, "sada");
    ASSERT_TRUE(sada.Save(folder.Path() + "/sada.zk"));
    window->Proof().CollectionSaved(sada);
  }
  bool Enabled(const char* name) const { return Child<QWidget>(name).isEnabled(); }
};

TEST_F(FrmMainProofWordsTest, LeadToNoPlaceInACaveThatCannotBePlayed) {
  OpenProven();
  std::vector<ProofStanding> told;
  QObject::connect(&window->Proof(), &ProofDesk::Stands, window.get(),
                   [&told](const ProofStanding& standing) { told.push_back(standing); });
  Rename(QString(300, 'X'));  // longer than a cave's text can hold
  EXPECT_EQ(Verdict(), Word("caption.proof.nocave").toStdString());
  EXPECT_FALSE(Child<QPushButton>("btnGo").isVisible());
  ASSERT_FALSE(told.empty());
  EXPECT_TRUE(told.back().fails);
  EXPECT_FALSE(told.back().where);
  Rename("Test");
  Wall(5, 1);
  Answer();
  EXPECT_TRUE(told.back().fails);
  EXPECT_EQ(told.back().where, (Spot{5, 1}));
  EXPECT_EQ(told.back().record, "");
}

TEST_F(FrmMainProofWordsTest, TellThatItSearchesAndStopTellingIt) {
  OpenCave(kHard);
  Press("btnSolve");
  const std::string first = Told();
  EXPECT_TRUE(first.starts_with(BeginningOf("caption.proof.solving"))) << first;
  EXPECT_TRUE(QTest::qWaitFor([&] { return Told() != first; }, 20'000)) << "as it goes on";
  EXPECT_NE(Told(), "");
  Press("btnStop");
  EXPECT_EQ(Told(), "");
}

TEST_F(FrmMainProofWordsTest, TellThatItRates) {
  OpenProven();
  Press("btnRate");
  EXPECT_TRUE(Told().starts_with(BeginningOf("caption.proof.rating"))) << Told();
  Press("btnStop");
  EXPECT_EQ(Told(), "");
}

TEST_F(FrmMainProofWordsTest, OfARatingGoWithTheNextWork) {
  OpenProven();
  for (const char* const next : {"btnRate", "btnSolve"}) {
    Press("btnRate");
    ASSERT_TRUE(WorkEnds());
    const QStringList lines = QString::fromStdString(Told()).split('\n');
    ASSERT_EQ(lines.size(), 4) << Told();
    EXPECT_EQ(lines[1], Word("caption.proof.odds", "20", "20"));
    Press(next);
    Press("btnStop");
    EXPECT_EQ(Told(), "") << next;
  }
}

// A hundred seconds are given, and seven tenths are used.
TEST_F(FrmMainProofWordsTest, OfARatingTellTheTimeThatIsLeftOver) {
  OpenProven();
  std::vector<ProofStanding> told;
  QObject::connect(&window->Proof(), &ProofDesk::Stands, window.get(),
                   [&told](const ProofStanding& standing) { told.push_back(standing); });
  Press("btnRate");
  ASSERT_TRUE(WorkEnds());
  const QStringList lines = QString::fromStdString(Told()).split('\n');
  ASSERT_EQ(lines.size(), 4) << Told();
  EXPECT_EQ(lines[0], Word("caption.proof.paws", "1", "5"));
  EXPECT_EQ(lines[2], Word("caption.proof.limit", "142,9"));
  EXPECT_EQ(lines[3], Word("caption.proof.escapes", "0"));
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.back().tries, 20);
  EXPECT_EQ(told.back().survived, 20);
  EXPECT_FALSE(told.back().fails);
  EXPECT_FALSE(told.back().record.empty());
}

TEST_F(FrmMainProofWordsTest, GoWithTheCaveThatTheyAreAbout) {
  const auto tellTheEnd = [this] {
    OpenCave(kHopeless);
    Press("btnSolve");
    ASSERT_TRUE(WorkEnds());
    ASSERT_EQ(Told(), Word("caption.proof.impossible").toStdString());
  };
  tellTheEnd();
  OpenCave(kHopeless);
  EXPECT_EQ(Told(), "") << "opened again";
  tellTheEnd();
  Wall(3, 3);
  EXPECT_EQ(Told(), "") << "drawn on";
  tellTheEnd();
  Wear("English");
  window->SetLW();
  EXPECT_EQ(Told(), "") << "in another language";
}

TEST_F(FrmMainProofWordsTest, AskHowTheRunCameToBe) {
  const auto asked = [this] { return Child<QLabel>("lblOffer").text(); };
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  EXPECT_EQ(asked(), Word("caption.proof.offer", "7"));
  window->Proof().Won(RecordOf(kProvenCave, test::kLongerWay));
  EXPECT_EQ(asked(), Word("caption.proof.offer", "9"));
  Press("btnLeave");
  Press("btnSolve");
  ASSERT_TRUE(WorkEnds());
  const QString found = asked();
  EXPECT_TRUE(Offers());
  QStringList could;
  for (int ticks = 7; ticks < 30; ++ticks) could << Word("caption.proof.offersolved", QString::number(ticks));
  EXPECT_TRUE(could.contains(found)) << found.toStdString();
}

TEST_F(FrmMainProofWordsTest, AreSaidOnceForAnOfferThatWasTaken) {
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  Press("btnTake");
  std::filesystem::remove(Path());
  Press("btnTake");
  EXPECT_FALSE(std::filesystem::exists(Path())) << "there is nothing to be taken any more";
}

TEST_F(FrmMainProofWordsTest, OfferTheDogOnceThePointerWasInTheCave) {
  EXPECT_FALSE(Enabled("btnTryDog"));
  Move(4, 3, Qt::NoButton);
  EXPECT_TRUE(Enabled("btnTryDog"));
  OpenCave(kHard);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  OpenCave(kProvenCave);
  EXPECT_FALSE(Enabled("btnTryDog"));
}

TEST_F(FrmMainProofWordsTest, OfferToRateAProofThatWinsAndNoOther) {
  OpenProven();
  EXPECT_TRUE(Enabled("btnRate"));
  Wall(5, 1);
  Answer();
  EXPECT_FALSE(Enabled("btnRate"));
}

TEST_F(FrmMainProofWordsTest, LeadNowhereWhereTheProofWins) {
  const QSignalSpy led(&Area(), &EditKom::LedByKeys);
  Press("btnGo");
  OpenProven();
  Child<QSpinBox>("numTick").setValue(3);
  Press("btnGo");
  EXPECT_EQ(led.count(), 0);
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 3);
  EXPECT_EQ(Verdict(), "Důkaz stále vyhrává: tiků 7, sekund 0,7.");
}

TEST_F(FrmMainProofWordsTest, ArePaintedOnThePictureAtOnce) {
  OpenProven();
  QCoreApplication::processEvents();
  test::Paints paints(Area());
  auto& way = Child<QCheckBox>("chkWay");
  way.setChecked(!way.isChecked());
  EXPECT_TRUE(QTest::qWaitFor([&paints] { return paints.count > 0; }));
}

TEST_F(FrmMainProofWordsTest, KeepTheProofOfACaveThatGotAnotherName) {
  OpenProven();
  Rename("Jina");
  window->close();
  SaveCollection();
  const std::string renamed = ProofPath(folder.Path() + "/sada.zk", "Jina");
  ASSERT_TRUE(std::filesystem::exists(renamed));
  EXPECT_EQ(*ReadWhole(renamed), RecordOf(kProvenCave, kWay));
}

TEST_F(FrmMainProofWordsTest, BringNoProofBackThatItsAuthorHasDeleted) {
  OpenProven();
  window->close();
  std::filesystem::remove(Path());
  SaveCollection();
  EXPECT_FALSE(std::filesystem::exists(Path())) << "the cave has kept its name";
}

TEST_F(FrmMainProofWordsTest, MakeNoProofOfACaveThatHasNone) {
  Rename("Jina");
  window->close();
  SaveCollection();
  EXPECT_FALSE(std::filesystem::exists(ProofPath(folder.Path() + "/sada.zk", "Jina")));
  EXPECT_FALSE(std::filesystem::exists(Path()));
}

}  // namespace
}  // namespace zorik
