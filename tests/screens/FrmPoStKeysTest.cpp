// The keys of the selection screen, those without a use among them, and its menus where it has no buttons.
#include <QContextMenuEvent>
#include <QSignalSpy>

#include "screens/DialogScript.h"
#include "screens/PostList.h"

namespace zorik {
namespace {

class FrmPoStKeys : public test::PostList {
 protected:
  // Whether the screen has a use for a key, with the letter that it types.
  bool Takes(Qt::Key key, const QString& text = {}, bool held = false) const {
    QKeyEvent event(QEvent::KeyPress, key, {}, text, held);
    event.accept();
    QApplication::sendEvent(window.get(), &event);
    return event.isAccepted();
  }
};

// A letter that is a command is none of a name, whether the command has something to do or not.
TEST_F(FrmPoStKeys, SelectNoCaveByTheLettersOfCommands) {
  const std::vector<std::pair<Qt::Key, QString>> letters{{Qt::Key_E, "e"}, {Qt::Key_S, "s"}, {Qt::Key_W, "w"},
                                                         {Qt::Key_T, "t"}, {Qt::Key_M, "m"}, {Qt::Key_U, "u"},
                                                         {Qt::Key_D, "d"}, {Qt::Key_V, "v"}, {Qt::Key_Z, "z"},
                                                         {Qt::Key_R, "r"}, {Qt::Key_G, "g"}};
  Caves(2);
  Open();
  std::vector<CaveList::Row> rows = List().Rows();
  for (const auto& [key, letter] : letters) {
    rows[1].name = letter + "1";
    List().SetRows(rows);
    EXPECT_TRUE(Takes(key, letter)) << letter.toStdString();
    EXPECT_EQ(List().Selected(), 1) << letter.toStdString();
  }
  EXPECT_TRUE(Takes(Qt::Key_Space, " "));
  EXPECT_TRUE(Takes(Qt::Key_F1));
  EXPECT_TRUE(Takes(Qt::Key_Escape));
  rows[1].name = "Komora";
  List().SetRows(rows);
  EXPECT_TRUE(Takes(Qt::Key_K, "k"));
  EXPECT_EQ(List().Selected(), 2);
}

TEST_F(FrmPoStKeys, AreLeftToOthersWhereTheyHaveNoUse) {
  Caves(2);
  Open();
  EXPECT_FALSE(Takes(Qt::Key_F9));
  for (const auto chord : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_T, chord, "t");
    event.accept();
    QApplication::sendEvent(window.get(), &event);
    EXPECT_FALSE(event.isAccepted());
  }
}

TEST_F(FrmPoStKeys, ThatStayDownStepThroughTheListAndDoNothingElse) {
  Caves(3);
  Open();
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  QSignalSpy back(window.get(), &FrmPoSt::Back);
  EXPECT_FALSE(Takes(Qt::Key_Return, "\r", true));
  EXPECT_FALSE(Takes(Qt::Key_S, "s", true));
  EXPECT_FALSE(Takes(Qt::Key_Escape, {}, true));
  EXPECT_EQ(played.count() + back.count() + openedFiles.size(), 0);
  EXPECT_TRUE(Takes(Qt::Key_Down, {}, true));
  EXPECT_TRUE(Takes(Qt::Key_Down, {}, true));
  EXPECT_EQ(List().Selected(), 3);
}

TEST_F(FrmPoStKeys, HaveNoUseBeforeACollectionIsOpen) {
  window = std::make_unique<FrmPoSt>(skin, flow, LetterOpeners{});
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  QSignalSpy back(window.get(), &FrmPoSt::Back);
  QSignalSpy ghost(window.get(), &FrmPoSt::GhostWanted);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_D, Qt::Key_Down})
    EXPECT_FALSE(Takes(key)) << key;
  QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(7, 9));
  QApplication::sendEvent(window.get(), &menu);
  window->SkinIt();
  EXPECT_EQ(played.count() + back.count() + ghost.count(), 0);
  EXPECT_EQ(Text("Label4"), "");
}

TEST_F(FrmPoStKeys, OpenTheMenusAtTheListWhereTheSkinHasNoButtonsForThem) {
  Caves(1);
  Record(1, 10);
  Open();
  QSignalSpy ghost(window.get(), &FrmPoSt::GhostWanted);
  QSignalSpy pair(window.get(), &FrmPoSt::PairWanted);
  const auto middle = [](const QWidget& part) { return part.mapToGlobal(part.rect().center()); };
  Press(Qt::Key_D);
  Press(Qt::Key_V);
  Button("ghost").hide();
  Button("pair").hide();
  Press(Qt::Key_D);
  Press(Qt::Key_V);
  ASSERT_EQ(ghost.count(), 2);
  ASSERT_EQ(pair.count(), 2);
  EXPECT_EQ(ghost[0][0].toPoint(), middle(Button("ghost")));
  EXPECT_EQ(pair[0][0].toPoint(), middle(Button("pair")));
  EXPECT_EQ(ghost[1][0].toPoint(), middle(List()));
  EXPECT_EQ(pair[1][0].toPoint(), middle(List()));
  QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(70, 90));
  QApplication::sendEvent(window.get(), &menu);
  ASSERT_EQ(ghost.count(), 3);
  EXPECT_EQ(ghost[2][0].toPoint(), QPoint(70, 90));
}

TEST_F(FrmPoStKeys, StoreOnlyWhatIsNotStored) {
  Caves(2);
  Record(1, 10);
  Open();
  QSignalSpy store(window.get(), &FrmPoSt::StoreWanted);
  ClickRow(1);
  EXPECT_TRUE(Takes(Qt::Key_U, "u"));
  QTest::mouseClick(&Label("lblRecord"), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(store.count(), 0);
  EXPECT_EQ(Label("lblRecord").toolTip(), QString::fromStdString(RecordPath(1)));
  EXPECT_FALSE(Label("lblRecord").IsLink());
  ClickRow(2);
  EXPECT_EQ(Label("lblRecord").toolTip(), "") << "nothing lies anywhere yet";
  EXPECT_EQ(Text("lblRecord"), "");
  Spoil();
  flow.Unstored().Keep({flow.ChosenSlot(), 70, "the record"});
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  Mend();
  ClickRow(2);
  EXPECT_TRUE(Label("lblRecord").IsLink());
  EXPECT_EQ(Label("lblRecord").toolTip(), "") << "nor now";
  QTest::mouseClick(&Label("lblRecord"), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_TRUE(Takes(Qt::Key_U, "u"));
  EXPECT_EQ(store.count(), 2);
}

// The desktop may find out that no program opens a letter when this screen has gone.
TEST_F(FrmPoStKeys, ALetterThatNothingOpensIsToldToNobodyWhenTheScreenHasGone) {
  Caves(1);
  OpenFailed late;
  LetterOpeners openers;
  openers.file = [&late](const QString& /*path*/, const OpenFailed& failed) { late = failed; };
  window = std::make_unique<FrmPoSt>(skin, flow, openers);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  const test::DialogScript nothing = {};
  Press(Qt::Key_S);
  ASSERT_TRUE(late);
  window.reset();
  late();
  QCoreApplication::processEvents();
}

TEST_F(FrmPoStKeys, GoToTheScreenThatHasJustOpened) {
  Caves(1);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Open();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

}  // namespace
}  // namespace zorik
