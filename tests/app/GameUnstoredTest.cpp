#include "app/GameScreens.h"
#include "data/Result.h"
#include "support/Spoiled.h"

namespace zorik::test {
namespace {

// Wins that cannot be stored, as a file stands in the place of the player's folder.
class GameUnstored : public GameTest {
 protected:
  std::string PlayerFolder() const { return folder.Root() + "/Players/Ada"; }
  void Spoil() const { test::Spoil(PlayerFolder()); }
  void Mend() const { test::Mend(PlayerFolder()); }
  static bool Stored(std::size_t row) {
    return Screen<FrmPoSt>()->findChild<CaveList*>()->Rows()[row].stored;
  }

  // Wins the selected cave, and leaves its record for later.
  void WinForLater() const {
    Press(Screen<FrmPoSt>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    Press(Screen<HraWindow>(), Qt::Key_Right);
    ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
    {
      const DialogScript script = {test::Press(Qt::Key_L)};
      Press(Screen<FrmAnalyze>(), Qt::Key_Return);
    }
    ReadScores();
  }
};

TEST_F(GameUnstored, AreMarkedInTheListAndStoredByTheSameQuestion) {
  OpenCollection();
  Spoil();
  WinForLater();
  EXPECT_FALSE(Stored(0));
  EXPECT_TRUE(Stored(1));
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  const DialogScript script = {[this](QWidget& box) {
    Mend();
    QTest::keyClick(&box, Qt::Key_Return);
  }};
  Press(Screen<FrmPoSt>(), Qt::Key_U);
  EXPECT_TRUE(ReadWhole(RecordPath()));
  EXPECT_TRUE(Stored(0));
}

TEST_F(GameUnstored, OfTwoCavesAreStoredWhenTheListIsOpenedAnew) {
  OpenCollection();
  Spoil();
  WinForLater();
  WinForLater();
  EXPECT_FALSE(Stored(0) || Stored(1));
  Mend();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  OpenCollection();
  EXPECT_TRUE(Stored(0) && Stored(1));
  EXPECT_TRUE(ReadWhole(RecordPath()));
  EXPECT_TRUE(ReadWhole(PlayerFolder() + "/Alfa - Druha.zkr"));
}

TEST_F(GameUnstored, KeepTheGameFromEndingUnasked) {
  OpenCollection();
  Spoil();
  WinForLater();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  {
    const DialogScript script = {[](QWidget& box) {
      EXPECT_TRUE(box.findChild<QLabel*>("lblText")->text().contains("Alfa - Jedna"));
      QTest::keyClick(&box, Qt::Key_Escape);
    }};
    Close(Screen<FrmStart2>());
  }
  EXPECT_TRUE(Shows<FrmStart2>());
  const DialogScript script = {test::Press(Qt::Key_Q)};
  Close(Screen<FrmStart2>());
  EXPECT_FALSE(Shows<FrmStart2>());
}

}  // namespace
}  // namespace zorik::test
