#include <QListWidget>
#include <QTabWidget>

#include "editors/DoubtPage.h"
#include "editors/ProofScreen.h"

namespace zorik {
namespace {

using test::kProvenCave;
using test::kWay;
using test::RecordOf;

// What the page of checks tells of the proof.
class FrmMainProofHintsTest : public test::ProofScreen {
 protected:
  void OpenChecks() const {
    Child<QTabWidget>("pages").setCurrentIndex(0);
    QCoreApplication::processEvents();
  }
  QListWidget& List() const { return Child<QListWidget>("lstDoubts"); }
  QStringList Hints() const {
    Answer();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Child<DoubtPage>("doubts").IsUpToDate(); }));
    QStringList hints;
    for (int row = 0; row < List().count(); ++row) hints << List().item(row)->text();
    hints.removeIf([](const QString& line) { return !line.contains("ůkaz"); });
    return hints;
  }
};

// Seven ticks of a cave that gives a hundred seconds.
const QString kLoose = "Čas komnaty je 142,9krát delší, než kolik potřebuje důkaz.";

TEST_F(FrmMainProofHintsTest, TellWhatTheProofShowsAndGoWithIt) {
  OpenChecks();
  EXPECT_EQ(Hints(), QStringList()) << "there is no proof";
  OpenProven();
  OpenChecks();
  EXPECT_EQ(Hints(), QStringList{kLoose});
  OpenCave({"WWWWWWWWW", "W1;;;D;;T", "W;;R;;;;W", "W;;;;;;;W", "WWWWWWWWW"}, false);
  OpenChecks();
  EXPECT_EQ(Hints(), QStringList()) << "another cave, that has none";
}

TEST_F(FrmMainProofHintsTest, LeadToTheCellAtWhichTheProofBreaks) {
  OpenProven();
  OpenChecks();
  Wall(5, 1);
  ASSERT_EQ(Hints(), QStringList{"Důkaz tuto komnatu nevyhraje. (6, 2)"});
  Move(1, 3, Qt::NoButton);
  const auto rows = List().findItems("Důkaz", Qt::MatchStartsWith);
  ASSERT_EQ(rows.size(), 1);
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().visualItemRect(rows[0]).center());
  EXPECT_EQ(Area().Marked(), QPoint(5, 1));
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Hints(), QStringList{kLoose});
}

TEST_F(FrmMainProofHintsTest, TellOfAProofThatIsOfAnotherCaveAltogether) {
  ASSERT_TRUE(StoreProof(Path(), "rubbish"));
  OpenCave(kProvenCave);
  OpenChecks();
  EXPECT_EQ(Hints(), QStringList{"Důkaz tuto komnatu nevyhraje."});
}

TEST_F(FrmMainProofHintsTest, TellOfAProofThatWaitsForLong) {
  Store((std::string(151, '.') + kWay).c_str());
  OpenCave(kProvenCave);
  OpenChecks();
  EXPECT_EQ(Hints(), QStringList({"Čas komnaty je 6,3krát delší, než kolik potřebuje důkaz.",
                                  "Důkaz od tiku 1 celých 15,1 s nic nedělá."}));
}

TEST_F(FrmMainProofHintsTest, TellOfBadOddsOnceTheProofIsRated) {
  const ProofStanding standing{.record = RecordOf(kProvenCave, kWay), .tries = 20, .survived = 17};
  Child<QTabWidget>("pages").setCurrentIndex(0);
  Child<DoubtPage>("doubts").LookAtProof(standing);
  EXPECT_EQ(Hints(), QStringList({kLoose, "S jinou náhodou plán důkazu vyhrál jen 17krát z 20."}));
  emit window->Proof().Stands({.record = RecordOf(kProvenCave, kWay), .tries = 20, .survived = 18});
  EXPECT_EQ(Hints(), QStringList{kLoose}) << "nine of ten will do";
}

}  // namespace
}  // namespace zorik
