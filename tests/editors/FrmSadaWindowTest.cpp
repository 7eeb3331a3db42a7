// Where the parts of the collection editor stand, and what can be chosen when.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include "editors/FrmSada.h"
#include "editors/MenuLines.h"
#include "editors/SadaBoxes.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;

class FrmSadaWindowTest : public test::SadaWindowTest {
 protected:
  // Where a part stands in the window.
  QRect Place(const QWidget& part) const { return {part.mapTo(window.get(), QPoint()), part.size()}; }
  QToolButton* ButtonOf(const QAction* action) const {
    for (QToolButton* const button : List().parentWidget()->findChildren<QToolButton*>())
      if (button->defaultAction() == action) return button;
    return nullptr;
  }
  // The buttons below the list, from the left.
  std::vector<QToolButton*> Buttons() const {
    std::vector<QToolButton*> buttons{ButtonOf(Child<QMenu>("mnuAdd").menuAction())};
    for (const char* const name : {"mnuEdit", "mnuUp", "mnuDown", "mnuDelete"})
      buttons.push_back(ButtonOf(&Action(name)));
    return buttons;
  }
  QString Count() const { return Child<QLabel>("lblCount").text(); }
};

// The parts

TEST_F(FrmSadaWindowTest, HasTheTextsLeftOfTheListWhichIsWider) {
  OpenCaves({"A", "A"});
  window->resize(1000, 600);
  QCoreApplication::processEvents();
  const QRect boxes = Place(*window->findChild<SadaBoxes*>()), list = Place(List());
  EXPECT_LT(boxes.right(), list.left());
  EXPECT_NEAR(boxes.width() * 3, list.width() * 2, 6);
  EXPECT_EQ(Place(*window->centralWidget()).width(), window->width());
  const QRect names = Place(Child<QLabel>("lblNames")), count = Place(Child<QLabel>("lblCount"));
  EXPECT_EQ(list.left(), names.left());
  EXPECT_EQ(list.width(), names.width());
  EXPECT_TRUE(Child<QLabel>("lblNames").wordWrap());
  EXPECT_LT(list.bottom(), names.top());
  EXPECT_LT(names.bottom(), count.top());
  EXPECT_EQ(count.right(), list.right());
  EXPECT_GT(list.height(), window->height() / 2) << "it takes what room there is";
}

TEST_F(FrmSadaWindowTest, HasTheCommandsForCavesOnButtonsBelowTheList) {
  OpenCaves({"A", "B"});
  window->resize(1000, 600);
  QCoreApplication::processEvents();
  int left = Place(List()).left();
  for (const QToolButton* const button : Buttons()) {
    ASSERT_NE(button, nullptr);
    EXPECT_GT(Place(*button).top(), Place(List()).bottom()) << button->text().toStdString();
    EXPECT_GE(Place(*button).left(), left) << button->text().toStdString();
    EXPECT_EQ(button->focusPolicy(), Qt::TabFocus) << "a click leaves the keys to the list";
    left = Place(*button).right() + 1;
  }
  EXPECT_LT(left, Place(Child<QLabel>("lblCount")).left());
  EXPECT_LT(left, Place(List()).center().x() + List().width() / 4) << "the room is behind them";
  ASSERT_NE(Buttons().front(), nullptr);
  EXPECT_EQ(Buttons().front()->popupMode(), QToolButton::InstantPopup);
}

TEST_F(FrmSadaWindowTest, ShowsSignsBesideWhatIsUsedMost) {
  Open();
  for (const char* const name :
       {"mnuNew", "mnuOpen", "mnuSave", "mnuUp", "mnuDown", "mnuDelete", "mnuHelp(4)"})
    EXPECT_FALSE(Action(name).icon().isNull()) << name;
}

TEST_F(FrmSadaWindowTest, WritesTheNumbersOfCavesInTheTitleOfTheListAsItChanges) {
  OpenCaves({"A", "B"});
  EXPECT_EQ(Count(), "2 komnaty");
  Key(Qt::Key_F3);
  EXPECT_EQ(Count(), "3 komnaty");
  Action("mnuUndo").trigger();
  EXPECT_EQ(Count(), "2 komnaty");
  Action("mnuRedo").trigger();
  EXPECT_EQ(Count(), "3 komnaty");
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Count(), "1 komnata");
}

// What can be chosen

TEST_F(FrmSadaWindowTest, OffersOnlyWhatCanBeDoneWithTheSelectedCave) {
  OpenCaves({"A", "*B", "C"});
  struct Row {
    int selected;
    bool up, down, mark, marked;
  };
  for (const Row& row :
       {Row{1, false, true, false, true}, Row{2, true, true, true, true}, Row{3, true, false, true, false}}) {
    ClickCave(row.selected);
    EXPECT_EQ(Action("mnuUp").isEnabled(), row.up) << row.selected;
    EXPECT_EQ(Action("mnuDown").isEnabled(), row.down) << row.selected;
    EXPECT_EQ(Action("mnuMark").isEnabled(), row.mark) << row.selected;
    EXPECT_TRUE(Action("mnuMark").isCheckable());
    EXPECT_EQ(Action("mnuMark").isChecked(), row.marked) << row.selected;
    EXPECT_TRUE(Action("mnuCut").isEnabled() && Action("mnuDelete").isEnabled()) << row.selected;
  }
  ClickMark(3);
  EXPECT_TRUE(Action("mnuMark").isChecked());
}

TEST_F(FrmSadaWindowTest, OffersTheOnlyCaveNeitherForCuttingNorForDeleting) {
  OpenCaves({"A", "B"});
  for (const bool two : {true, false}) {
    EXPECT_EQ(Action("mnuCut").isEnabled(), two);
    EXPECT_EQ(Action("mnuDelete").isEnabled(), two);
    Action("mnuCut").trigger();
  }
  EXPECT_EQ(Rows(), Names{"*B"});
  EXPECT_FALSE(Action("mnuUp").isEnabled() || Action("mnuDown").isEnabled());
}

TEST_F(FrmSadaWindowTest, OffersToPasteOnceThereIsSomething) {
  OpenCaves({"A"});
  const auto offered = [this] {
    return std::pair(Action("mnuPaste").isEnabled(), Action("mnuPasteEnd").isEnabled());
  };
  EXPECT_EQ(offered(), std::pair(false, false));
  Action("mnuCopy").trigger();
  EXPECT_EQ(offered(), std::pair(true, true));
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(offered(), std::pair(true, true)) << "the copy outlives its collection";
}

// What it says

TEST_F(FrmSadaWindowTest, SpeaksTheLanguageOfItsSkinBeforeItOpens) {
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  MakeWindow();
  EXPECT_EQ(window->windowTitle(), "Zorík's collection editor - New collection[*]");
  EXPECT_EQ(Rows(), Names{"*New small cave"});
  EXPECT_EQ(Count(), "1 cave");
  EXPECT_FALSE(Action("mnuUndo").isEnabled() || Action("mnuMark").isEnabled());
}

TEST_F(FrmSadaWindowTest, SpeaksTheLanguageOfASkinThatIsWornMeanwhile) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Key(Qt::Key_F5);
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  window->SetLWEd();
  EXPECT_EQ(window->windowTitle(), "Zorík's collection editor - Sada - a.zk[*]");
  EXPECT_EQ(Count(), "2 caves");
  EXPECT_EQ(WithoutMnemonic(Action("mnuUndo").text()), "Undo: Up “B”");
  EXPECT_EQ(Action("mnuUp").toolTip(), "Up (F5)");
  EXPECT_NE(HintAt(List().lblPoc(2).center()), "");
  EXPECT_FALSE(HintAt(List().lblPoc(2).center()).contains("komnat"));
  EXPECT_EQ(Rows(), (Names{"*B", "*A"})) << "what is in the collection stays";
}

TEST_F(FrmSadaWindowTest, TakesWhatItSaidOfANewCaveBackWithTheNextChange) {
  OpenCaves({"A", "B"});
  Key(Qt::Key_F3);
  EXPECT_NE(window->statusBar()->currentMessage(), "");
  Key(Qt::Key_F6);
  EXPECT_EQ(window->statusBar()->currentMessage(), "");
}

// Coming and going

TEST_F(FrmSadaWindowTest, StandsBeforeAllOthersWhenItOpensAndComesBack) {
  QWidget other;
  const auto cover = [&other] {
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  };
  cover();
  window->Open(QString());
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  window->mnuEdit_Click();
  cover();
  window->CaveDone(test::OneStepCave("Jina"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

TEST_F(FrmSadaWindowTest, HasGoneWhenItTellsThatItIsShut) {
  Open();
  bool seen = true;
  QObject::connect(window.get(), &FrmSada::Closed, window.get(),
                   [this, &seen] { seen = window->isVisible(); });
  window->close();
  EXPECT_FALSE(seen);
  EXPECT_EQ(closed, 1);
}

TEST_F(FrmSadaWindowTest, TellsThatItWasSavedOnlyWhenItWas) {
  OpenCaves({"A"});
  int saved = 0;
  QObject::connect(window.get(), &FrmSada::Saved, window.get(), [&saved] { ++saved; });
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(saved, 1);
  dialogs.Cancel();
  Action("mnuSaveAs").trigger();
  EXPECT_EQ(saved, 1);
  EXPECT_TRUE(window->StoreCave(test::OneStepCave("Jina"), *window));
  EXPECT_EQ(saved, 2);
}

TEST_F(FrmSadaWindowTest, HasANameToKeepItsSizeAndAUsualOneAtFirst) {
  EXPECT_EQ(window->objectName(), "frmSada");
  EXPECT_GE(window->width(), 740);
  EXPECT_GE(window->height(), 400);
}

}  // namespace
}  // namespace zorik
