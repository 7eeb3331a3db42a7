// The commands of the collection editor.
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

#include "data/Result.h"
#include "editors/FrmSada.h"
#include "editors/SadaScreen.h"
#include "screens/FrmLoading.h"

namespace zorik {
namespace {

using test::Names;

class FrmSadaTest : public test::SadaWindowTest {};

// New

TEST_F(FrmSadaTest, OpensWithANewCollection) {
  Open();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  EXPECT_EQ(Box("Text1").text(), "");
  EXPECT_EQ(Box("Text2").text(), "@");
  EXPECT_EQ(Text4().toPlainText(), "Bez popisu");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_TRUE(MarkSeen(1));
}

TEST_F(FrmSadaTest, WaitsForTheNameOfTheCollection) {
  Open();
  EXPECT_EQ(window->focusWidget(), &Box("Text3"));
  EXPECT_EQ(Box("Text3").selectedText(), "Nová sada");
}

TEST_F(FrmSadaTest, MakesANewCollectionAtOnceByCtrlN) {
  OpenCaves({"A", "B"});
  TypeName("Jinak");
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Box("Text3").text(), "Nová sada");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  EXPECT_EQ(Sada().FileName(), "");
  EXPECT_FALSE(window->isWindowModified());
}

// Caves

TEST_F(FrmSadaTest, CountsItsCavesInTheRightWords) {
  struct Row {
    int caves;
    const char* words;
  };
  for (const Row& row : {Row{1, "1 komnata"}, Row{2, "2 komnaty"}, Row{4, "4 komnaty"}, Row{5, "5 komnat"}}) {
    OpenMany(row.caves);
    EXPECT_EQ(Child<QLabel>("lblCount").text(), row.words);
  }
}

TEST_F(FrmSadaTest, HasTheCommandsForACaveInTheListsMenuToo) {
  OpenCaves({"A", "B"});
  const QPoint place = List().lblCave(2).center();
  QContextMenuEvent asked(QContextMenuEvent::Mouse, place, List().viewport()->mapToGlobal(place));
  QApplication::sendEvent(List().viewport(), &asked);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->actions().contains(&Action("mnuEdit")));
  menu->close();
}

TEST_F(FrmSadaTest, AddsASmallCaveAboveTheSelectedOneByF3) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Key(Qt::Key_F3);
  EXPECT_EQ(Rows(), (Names{"*A", "Nová malá komnata", "B"}));
  EXPECT_EQ(Sada().ListSelected(), 2);
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, AddsALargeCaveByTheMenu) {
  OpenCaves({"A"});
  Action("mnuAdd(1)").trigger();
  EXPECT_EQ(Rows(), (Names{"*Nová velká komnata", "*A"}));
}

TEST_F(FrmSadaTest, MovesACaveWithItsMarkByF5AndF6) {
  OpenCaves({"A", "B", "*C"});
  ClickCave(3);
  Key(Qt::Key_F5);
  EXPECT_EQ(Rows(), (Names{"*A", "*C", "B"}));
  EXPECT_TRUE(MarkSeen(2));
  EXPECT_FALSE(MarkSeen(3));
  Key(Qt::Key_F6);
  EXPECT_EQ(Rows(), (Names{"*A", "B", "*C"}));
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, OpensTheFirstCaveAgainWhenAClosedOneMovesThere) {
  OpenCaves({"A", "B", "C"});
  Key(Qt::Key_F6);
  EXPECT_EQ(Rows(), (Names{"*B", "*A", "C"}));
  EXPECT_TRUE(MarkSeen(1) && MarkSeen(2) && !MarkSeen(3));
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Line("a.zk", 0), "ESadaAB");
}

TEST_F(FrmSadaTest, ChangesNothingAtTheEndsOfTheList) {
  OpenCaves({"A", "B"});
  Key(Qt::Key_F5);
  EXPECT_FALSE(Action("mnuUp").isEnabled());
  ClickCave(2);
  Key(Qt::Key_F6);
  EXPECT_FALSE(Action("mnuDown").isEnabled());
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(FrmSadaTest, AsksByNameBeforeItDeletes) {
  OpenCaves({"A", "Jedna"});
  ClickCave(2);
  dialogs.Press("no");
  Key(Qt::Key_F8);
  EXPECT_EQ(Rows(), (Names{"*A", "Jedna"}));
  EXPECT_FALSE(window->isWindowModified());
  dialogs.Press("yes");
  Key(Qt::Key_F8);
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(dialogs.said, QStringList(2, "Opravdu vymazat komnatu 'Jedna' z této sady?"));
  EXPECT_EQ(dialogs.titles, QStringList(2, "Vymazat komnatu"));
}

TEST_F(FrmSadaTest, SelectsTheCaveBeforeADeletedLastOne) {
  OpenCaves({"A", "B", "C"});
  ClickCave(3);
  dialogs.Press("yes");
  Key(Qt::Key_F8);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(Sada().ListSelected(), 2);
}

TEST_F(FrmSadaTest, KeepsTheOnlyCaveWithoutAWord) {
  Open();
  Key(Qt::Key_F8);
  EXPECT_EQ(Sada().ListCount(), 1);
  EXPECT_TRUE(dialogs.said.isEmpty());
}

TEST_F(FrmSadaTest, CopiesAndPastesByKeysOfTheList) {
  OpenCaves({"A", "B"});
  EXPECT_FALSE(Action("mnuPaste").isEnabled()) << "nothing was copied yet";
  ClickCave(2);
  List().setFocus();
  Key(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  ClickCave(1);
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Names{"*B", "*A", "B"}));
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, LeavesTheClipboardKeysToTheTextBoxes) {
  OpenCaves({"A", "B"});
  Action("mnuCopy").trigger();
  ClickCave(2);
  int i = 1;
  for (const char* from : {"Text3", "Text1", "Text2", "Text4"}) {
    for (const char* to : {"Text3", "Text1", "Text2", "Text4"}) {
      const QString words = QString("slova %1").arg(i++);
      TypeInto(from, words);
      Key(Qt::Key_A, Qt::ControlModifier);
      Key(Qt::Key_Insert, Qt::ControlModifier);
      TypeInto(to, "jina ");
      Key(Qt::Key_Insert, Qt::ShiftModifier);
      EXPECT_EQ(Child<QWidget>(to).property(to == std::string("Text4") ? "plainText" : "text"),
                "jina " + words)
          << from << ' ' << to;
    }
  }
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(Sada().ClipCave(), test::OneStepCave("A"));
}

TEST_F(FrmSadaTest, RefusesTheNinetySecondCaveSilentlyButCountsAsChanged) {
  OpenMany(91);
  Key(Qt::Key_F3);
  EXPECT_EQ(Sada().ListCount(), 91);
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(window->statusBar()->currentMessage(), "");
  OpenMany(91);
  Action("mnuCopy").trigger();
  EXPECT_FALSE(window->isWindowModified());
  Action("mnuPaste").trigger();
  EXPECT_EQ(Sada().ListCount(), 91);
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, NamesNewCavesInTheLanguageOfASkinThatIsWornMeanwhile) {
  OpenCaves({"A"});
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  window->SetLWEd();
  Key(Qt::Key_F3);
  EXPECT_EQ(Rows().front(), "*New small cave");
}

// The cave editor

TEST_F(FrmSadaTest, HandsTheSelectedCaveToTheEditorAndCountsAsChanged) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Key(Qt::Key_F4);
  EXPECT_EQ(edited, Names{test::OneStepCave("B")});
  EXPECT_TRUE(changedWhileEdited);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(closed, 0);
}

TEST_F(FrmSadaTest, TellsTheEditorWhereTheCaveStandsAndWhatStandsBeforeIt) {
  OpenCaves({"A", "B", "A"});
  CaveOrigin origin;
  QObject::connect(window.get(), &FrmSada::EditCave, window.get(),
                   [&](const std::string& /*text*/, const CaveOrigin& from) { origin = from; });
  ClickCave(3);
  Key(Qt::Key_F4);
  EXPECT_EQ(origin.Number, 3);
  EXPECT_EQ(origin.NamesBefore, (Names{"A", "B"}));
}

TEST_F(FrmSadaTest, TakesTheEditedCaveBackIntoItsRow) {
  OpenCaves({"A", "B", "*C"});
  ClickCave(2);
  Action("mnuEdit").trigger();
  window->CaveDone(test::OneStepCave("Jina"));
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Rows(), (Names{"*A", "Jina", "*C"}));
  EXPECT_EQ(Sada().ListSelected(), 2);
}

TEST_F(FrmSadaTest, StaysWhenTheEditorGivesTheCaveBackAtOnce) {
  OpenCaves({"A"});
  QObject::connect(window.get(), &FrmSada::EditCave, window.get(), &FrmSada::CaveDone);
  Key(Qt::Key_F4);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Rows(), Names{"*A"});
}

TEST_F(FrmSadaTest, CountsAsChangedEvenIfTheCaveStaysAsItWas) {
  OpenCaves({"A"});
  Action("mnuEdit").trigger();
  window->CaveDone(edited.front());
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaTest, ShowsTheBusyNoticeWhileItWorks) {
  struct Notices : QObject {
    bool eventFilter(QObject* object, QEvent* event) override {
      const bool notice = dynamic_cast<FrmLoading*>(object) != nullptr;
      if (notice && event->type() == QEvent::Show) ++shown;
      if (notice && event->type() == QEvent::Hide) ++hidden;
      return false;
    }
    int shown = 0;
    int hidden = 0;
  } notices;
  OpenCaves({"A"});
  bool whileEdited = false;
  QObject::connect(window.get(), &FrmSada::EditCave, &notices,
                   [&] { whileEdited = notices.shown == 3 && notices.hidden == 2; });
  qApp->installEventFilter(&notices);
  dialogs.Type(Path("a.zk"));
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(notices.shown, 1);
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(notices.shown, 2);
  Key(Qt::Key_F4);
  EXPECT_TRUE(whileEdited);
  EXPECT_EQ(notices.hidden, 3);
}

// The congratulation

TEST_F(FrmSadaTest, EditsTheCongratulationByCtrlG) {
  OpenCaves({"A"});
  dialogs.Then([](QWidget& dialog) {
    auto* const text = dialog.findChild<QPlainTextEdit*>("Text1");
    EXPECT_EQ(text->toPlainText(), "Hura");
    text->selectAll();
    QTest::keyClicks(text, "Prvni");
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, "$P");
    QTest::mouseClick(dialog.findChild<SkinButton*>("ok"), Qt::LeftButton);
  });
  Key(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(Sada().CongratulationText(), "Prvni\r\n$P");
  EXPECT_TRUE(window->isWindowModified());
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Lines("a.zk").back(), "Prvni\r\n$P");
}

TEST_F(FrmSadaTest, DoesNotCountACongratulationThatNobodyTouchedAsChanged) {
  Chance chance;
  const std::vector<std::string> lines = {"ESadaA", "CEva", "@0", test::OneStepCave("A") + "---01",
                                          "Pro\x9A"
                                          "el jsi\nto, \x81\r\n$P"};
  folder.File("Caves/g.zk", ScrambleLines(lines, chance));
  Open(Path("g.zk"));
  dialogs.Then([](QWidget& dialog) {
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>("Text1")->toPlainText().startsWith("Prošel jsi\nto, "));
    QTest::mouseClick(dialog.findChild<SkinButton*>("ok"), Qt::LeftButton);
  });
  Key(Qt::Key_G, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(Sada().CongratulationText(), lines.back());
}

TEST_F(FrmSadaTest, RefusesACongratulationThatWouldBeReadAsACave) {
  OpenCaves({"A"});
  const auto ending = [](const QString& end) {
    return [end](QWidget& dialog) {
      auto* const text = dialog.findChild<QPlainTextEdit*>("Text1");
      ASSERT_NE(text, nullptr) << dialog.windowTitle().toStdString();
      text->moveCursor(QTextCursor::End);
      QTest::keyClicks(text, end);
      QTest::mouseClick(dialog.findChild<SkinButton*>("ok"), Qt::LeftButton);
    };
  };
  dialogs.Then(ending("-----")).Press("ok").Then(ending("ab")).Press("ok").Then(ending("c"));
  Action("mnuGratulace").trigger();
  EXPECT_EQ(dialogs.said, QStringList(2, "Gratulace nesmí končit třemi pomlčkami a dvěma dalšími znaky."));
  EXPECT_EQ(Sada().CongratulationText(), "Hura-----abc");
  dialogs.Then(ending("-----")).Press("ok").Cancel();
  Action("mnuGratulace").trigger();
  EXPECT_EQ(Sada().CongratulationText(), "Hura-----abc");
  Key(Qt::Key_S, Qt::ControlModifier);
  const auto played = ReadForPlay(Bytes("a.zk"));
  ASSERT_TRUE(played);
  EXPECT_EQ(played->Congratulation, "Hura-----abc");
}

TEST_F(FrmSadaTest, DropsOrKeepsTheCongratulationAsItWas) {
  OpenCaves({"A"});
  dialogs.Then([](QWidget& dialog) {
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("Text1"), "Jinak");
    QTest::mouseClick(dialog.findChild<SkinButton*>("close"), Qt::LeftButton);
  });
  Action("mnuGratulace").trigger();
  dialogs.Press("ok");
  Action("mnuGratulace").trigger();
  EXPECT_EQ(Sada().CongratulationText(), "Hura");
  EXPECT_FALSE(window->isWindowModified());
}

}  // namespace
}  // namespace zorik
