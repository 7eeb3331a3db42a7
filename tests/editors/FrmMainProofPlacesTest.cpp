// The places and the words that the page about the proof leads to, and what another cave leaves of them.
#include <QSpinBox>

#include "editors/ProofScreen.h"

namespace zorik {
namespace {

using test::kProvenCave;
using test::kWay;
using test::RecordOf;

class FrmMainProofPlacesTest : public test::ProofScreen {
 protected:
  FrmMainProofPlacesTest() {
    QObject::connect(&window->Proof(), &ProofDesk::TryCave, window.get(),
                     [this](const std::string& text) { tries.push_back(text); });
  }

  std::vector<std::string> tries;
};

TEST_F(FrmMainProofPlacesTest, LeadToTheTickBeforeTheBreak) {
  OpenProven();
  Wall(5, 1);
  Answer();
  Press("btnGo");
  EXPECT_EQ(Child<QSpinBox>("numTick").value(), 3) << "it breaks at tick 4";
}

TEST_F(FrmMainProofPlacesTest, TakeTheCellThatIsPointedAtForTheDog) {
  Move(4, 3, Qt::NoButton);
  Move(6, 2, Qt::NoButton);
  Action("mnuTryDog").trigger();
  ASSERT_EQ(tries.size(), 1U);
  EXPECT_EQ(tries[0], test::TextOf({"WWWWWWWWW", "W.;D;;;;T", "W;;;;;1;W", "W;;;;;;;W", "WWWWWWWWW"}));
}

TEST_F(FrmMainProofPlacesTest, ForgetTheCellAndTheOfferInAnotherCave) {
  Move(4, 3, Qt::NoButton);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Area(), &leave);
  window->Proof().Won(RecordOf(kProvenCave, kWay));
  ASSERT_TRUE(Offers());
  OpenCave(kProvenCave);
  EXPECT_FALSE(Offers());
  Action("mnuTryDog").trigger();
  EXPECT_TRUE(tries.empty());
}

TEST_F(FrmMainProofPlacesTest, TellThatTheFinishIsShutAndWhatWasMissingBefore) {
  OpenProven();
  Click(3, 1, Qt::RightButton);  // dirt where the gem was
  const std::string told = Verdict();
  EXPECT_NE(told.find("Důkaz selže v tiku 7 na políčku 9,\u00a02. Cíl je zavřený, chybějí drahokamy."),
            std::string::npos)
      << told;
  EXPECT_NE(told.find("Už v tiku 2 na políčku 4,\u00a02 chybí, co tam důkaz sebral nebo otevřel."),
            std::string::npos)
      << told;
}

}  // namespace
}  // namespace zorik
