#include <gtest/gtest.h>

#include "screens/GameScreen.h"
#include "screens/PlayFlow.h"
#include "support/Scene.h"

namespace zorik {
namespace {

using test::Answers;
using test::OneLine;
using test::OneStepCave;
using test::Wait;

class PlayFlowTest : public testing::Test, public test::GameScreen {
 protected:
  void Open(const std::vector<std::string>& caves) {
    folder.Collection("a.zk", "Alfa", caves);
    auto session = Session::OpenFirst(folder.Paths());
    ASSERT_TRUE(session);
    flow = std::make_unique<PlayFlow>(std::move(*session), skin, *window);
    Show();
    flow->OpenCave(1);
  }

  std::string RecordPath() const { return folder.Root() + "/Players/Hráč/Alfa - Jedna.zkr"; }

  std::unique_ptr<PlayFlow> flow;
};

TEST_F(PlayFlowTest, StoresAWinAndGoesOnToTheNextCave) {
  Open({OneStepCave("Jedna"), OneStepCave("Druhá")});
  const Answers answers(0);
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return flow->CaveNumber() == 2; }));
  ASSERT_EQ(answers.said.size(), 1);
  EXPECT_TRUE(answers.said[0].contains("Komnata je vyřešena!")) << answers.said[0].toStdString();
  Hra replay;
  ASSERT_FALSE(Replay(replay, *ReadWhole(RecordPath())));
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running) end = Tick(replay, {});
  EXPECT_EQ(end, TickEnd::Won);
}

TEST_F(PlayFlowTest, ReplaysTheStoredRecordAndTellsItsResult) {
  Open({OneStepCave("Jedna"), OneStepCave("Druhá")});
  Answers answers(0);
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return flow->CaveNumber() == 2; }));
  QTest::keyClick(window.get(), Qt::Key_PageUp);
  ASSERT_EQ(flow->CaveNumber(), 1);
  answers.said.clear();
  QTest::keyClick(window.get(), Qt::Key_F5);
  EXPECT_TRUE(window->windowTitle().contains("...záznam pro hráče Hráč"));
  ASSERT_TRUE(Wait([&] { return !answers.said.empty(); }));
  EXPECT_TRUE(answers.said[0].startsWith("Záznam dovedl Zoríka do cíle!")) << answers.said[0].toStdString();
  ASSERT_TRUE(Wait([&] { return !window->Machine().ReplayPlaying; }));
  EXPECT_EQ(flow->CaveNumber(), 1);
}

TEST_F(PlayFlowTest, SaysThatThereIsNoRecord) {
  Open({OneStepCave("Jedna")});
  const Answers answers(0);
  QTest::keyClick(window.get(), Qt::Key_F5);
  ASSERT_EQ(answers.said.size(), 1);
  EXPECT_EQ(OneLine(answers.said[0]), "Tuto komnatu jsi ještě nevyřešil, nemá tedy žádný záznam.");
  EXPECT_FALSE(window->Machine().ReplayPlaying);
}

TEST_F(PlayFlowTest, AsksBeforeAWorseRunReplacesABetterOne) {
  // The better run had the same way to go, and a record's score is believed.
  Open({OneStepCave("Jedna"), OneStepCave("Druhá")});
  Answers answers(1);  // no
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return flow->CaveNumber() == 2; }));
  std::string record = *ReadWhole(RecordPath());
  Chance chance;
  record.replace(0, record.find("\r\n") + 2, "");
  record.replace(0, record.find("\r\n") + 2, BuildRecordHead("Alfa", 99999, "Hr\xE1\xE8", chance));
  ASSERT_TRUE(WriteWhole(RecordPath(), record));
  flow->OpenCave(1);
  answers.said.clear();
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return flow->CaveNumber() == 2; }));
  ASSERT_EQ(answers.said.size(), 2);
  EXPECT_EQ(OneLine(answers.said[0]),
            "Při minulém hraní této komnaty jsi získal více bodů. Přepsat starý záznam novým?");
  EXPECT_TRUE(answers.said[1].endsWith("Zůstal starý záznam."));
  EXPECT_EQ(*ReadWhole(RecordPath()), record);
}

TEST_F(PlayFlowTest, CongratulatesAfterTheLastCave) {
  Open({OneStepCave("Jedna", 50)});
  const Answers answers(0);
  ASSERT_TRUE(TicksPass(1));
  QTest::keyClick(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return answers.said.size() == 2; }));
  // A second that has begun does not count, and no gem was needed.
  EXPECT_EQ(answers.said[1], "Hotovo, 49");
}

}  // namespace
}  // namespace zorik
