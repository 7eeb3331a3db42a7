#include <gtest/gtest.h>

#include <QFileDialog>

#include "screens/WinScreens.h"

namespace zorik {
namespace {

using test::InDialog;
using test::kPoints;

// Wins that cannot be stored, as a file stands in the place of the player's folder.
class WinFlowUnstored : public test::WinScreens {
 protected:
  void SetUp() override {
    Start({"a", "b"});
    Spoil();
  }

  void WinAndAnswer(const test::DialogScript::Act& answer) {
    Win(1);
    const test::DialogScript script = {answer};
    CloseScore();
  }
};

TEST_F(WinFlowUnstored, AreKeptForLater) {
  WinAndAnswer(test::Press(Qt::Key_L));
  CloseScore();
  ASSERT_EQ(flow.Unstored().All().size(), 1U);
  EXPECT_EQ(flow.Unstored().All()[0].Run.Score, kPoints);
  Mend();
  flow.Unstored().StoreAll();
  EXPECT_TRUE(Stored(1));
  EXPECT_TRUE(flow.Unstored().All().empty());
}

TEST_F(WinFlowUnstored, AreOfferedUnderTheNameThatTheLanguageHasForTheProgram) {
  const std::string language = folder.Root() + "/Skins/Default/Menu/cestina.txt";
  constexpr int kHead = 2;
  QList<QByteArray> lines = QByteArray::fromStdString(*ReadWhole(language)).split('\n');
  lines[kHead + static_cast<int>(TextId::Program)] = "Pejsek";
  ASSERT_TRUE(WriteWhole(language, lines.join('\n').toStdString()));
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins"}).applied);
  WinAndAnswer([](QWidget& box) {
    EXPECT_EQ(box.windowTitle(), "Pejsek");
    QTest::keyClick(&box, Qt::Key_L);
  });
}

TEST_F(WinFlowUnstored, AreTriedAgainAsOftenAsThePlayerLikes) {
  Win(1);
  const auto again = test::Press(Qt::Key_R);
  const test::DialogScript script = {again, again, [&](QWidget& box) {
                                       Mend();
                                       again(box);
                                     }};
  CloseScore();
  EXPECT_TRUE(Stored(1));
  EXPECT_TRUE(flow.Unstored().All().empty());
}

TEST_F(WinFlowUnstored, TakeNoOtherCavesRecordsPlaceWithoutAQuestionWhenTheyAreTriedAgain) {
  Mend();
  Collection({"a?b", "a:b"});
  Begin();
  Spoil();
  std::string other;
  Win(1);
  {
    const test::DialogScript script = {[&](QWidget& box) {
                                         Mend();
                                         Record(2, 5);
                                         other = *ReadWhole(RecordPath(1));
                                         QTest::keyClick(&box, Qt::Key_R);
                                       },
                                       test::Press(Qt::Key_N), test::Press(Qt::Key_L)};
    CloseScore();
  }
  EXPECT_EQ(*ReadWhole(RecordPath(1)), other);
  EXPECT_EQ(flow.Unstored().All().size(), 1U);
}

TEST_F(WinFlowUnstored, AreSavedElsewhereAndStillKept) {
  const QString place = QString::fromStdString(folder.Root() + "/jinde.zkr");
  Win(1);
  {
    const test::DialogScript script = {test::Press(Qt::Key_S), [&](QWidget& dialog) {
                                         auto& box = dynamic_cast<QFileDialog&>(dialog);
                                         box.selectFile(place);
                                         static_cast<QDialog&>(box).accept();
                                       }};
    CloseScore();
  }
  CloseScore();
  RecordLines lines(*ReadWhole(place.toStdString()));
  EXPECT_EQ(ReadRecordHead(lines).Score, kPoints);
  EXPECT_EQ(flow.Unstored().All().size(), 1U) << "it is not among the player's records yet";
  EXPECT_TRUE(flow.Unstored().AtRisk().empty());
  const InDialog question([](QWidget& box) { box.close(); });
  EXPECT_TRUE(keeper_.MayEnd(window.get()));
  EXPECT_FALSE(question.Opened());
}

TEST_F(WinFlowUnstored, OfTwoCavesAreBothKept) {
  WinAndAnswer(test::Press(Qt::Key_L));
  CloseScore();
  ASSERT_EQ(Text("lblCaveName"), "b");
  Win(2);
  {
    const test::DialogScript script = {test::Press(Qt::Key_L)};
    CloseScore();
  }
  CloseScore();
  EXPECT_EQ(flow.Unstored().All().size(), 2U);
  Mend();
  EXPECT_TRUE(keeper_.MayEnd(window.get()));
  EXPECT_TRUE(Stored(1));
  EXPECT_TRUE(Stored(2));
}

TEST_F(WinFlowUnstored, AreComparedWithTheNextWinOfTheirCave) {
  WonRun better{flow.ChosenSlot(), kPoints + 1, "the better record"};
  flow.Unstored().Keep(better);
  Win(1);
  {
    const test::DialogScript script = {[](QWidget& box) {
      EXPECT_TRUE(box.findChild<QLabel*>("lblText")->text().startsWith("Při minulém hraní"));
      QTest::keyClick(&box, Qt::Key_N);
    }};
    CloseScore();
  }
  CloseScore();
  ASSERT_EQ(flow.Unstored().All().size(), 1U);
  EXPECT_EQ(flow.Unstored().All()[0].Run.Bytes, better.Bytes);
}

TEST_F(WinFlowUnstored, AreNamedBeforeTheGameEnds) {
  WinAndAnswer(test::Press(Qt::Key_L));
  CloseScore();
  const auto box = [](Qt::Key key) {
    return [key](QWidget& dialog) {
      EXPECT_TRUE(dialog.findChild<QLabel*>("lblText")->text().endsWith("\nSada - a"));
      QTest::keyClick(&dialog, key);
    };
  };
  {
    const test::DialogScript script = {box(Qt::Key_R), box(Qt::Key_Escape)};
    EXPECT_FALSE(keeper_.MayEnd(window.get())) << "trying again did not help, and Esc stays";
  }
  {
    const test::DialogScript script = {box(Qt::Key_Q)};
    EXPECT_TRUE(keeper_.MayEnd(window.get()));
  }
  const test::DialogScript script = {[&](QWidget& dialog) {
    Mend();
    QTest::keyClick(&dialog, Qt::Key_Return);
  }};
  EXPECT_TRUE(keeper_.MayEnd(window.get()));
  EXPECT_TRUE(Stored(1));
}

TEST_F(WinFlowUnstored, NeverTakeThePlaceOfAnotherCaveUnasked) {
  Mend();
  Collection({"a?b", "a:b"});
  Record(2, 5);
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  flow.Unstored().Keep({flow.ChosenSlot(), 70, "the record"});
  flow.Unstored().StoreAll();
  EXPECT_EQ(flow.Unstored().All().size(), 1U);
  EXPECT_NE(*ReadWhole(RecordPath(2)), "the record");
}

// A box can be read with twelve names; of more it says that there are more.
TEST_F(WinFlowUnstored, AreNamedAtTheEndUpToTwelve) {
  Mend();
  std::vector<QString> names;
  for (int i = 1; i <= 13; ++i) names.push_back("jeskyně " + QString::number(i) + ".");
  Start(names);
  Spoil();
  const auto listed = [this] {
    QString said;
    const test::DialogScript script = {[&said](QWidget& box) {
      said = box.findChild<QLabel*>("lblText")->text();
      QTest::keyClick(&box, Qt::Key_Escape);
    }};
    EXPECT_FALSE(keeper_.MayEnd(nullptr));
    return said;
  };
  for (int cave = 1; cave <= 13; ++cave) {
    Win(cave);
    {
      const test::DialogScript later = {test::Press(Qt::Key_L)};
      CloseScore();
    }
    CloseScore();
    if (cave < 12) continue;
    const QString said = listed();
    EXPECT_EQ(said.count("jeskyně"), 12) << said.toStdString();
    EXPECT_EQ(said.contains(QChar(0x2026)), cave > 12) << said.toStdString();
  }
}

}  // namespace
}  // namespace zorik
