#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "data/Cp1250.h"
#include "data/Result.h"
#include "editors/EditorScreen.h"
#include "editors/FrmMain.h"

namespace zorik {
namespace {

using test::Boxes;
using test::CaveTextOf;
using test::Full;
using test::InDialogNamed;
using test::Picture;

const Picture kRoom = {"WWWWWW", "W1...W", "W....W", "W...AW", "WWWWWW"};

class FrmMainTest : public testing::Test, public test::EditorScreen {
 protected:
  FrmMainTest() { Open(kRoom); }

  void ClickLabel(const char* name) const { QTest::mouseClick(&Child<QToolButton>(name), Qt::LeftButton); }

  // Gives the cave a description by the dialog of properties.
  void Describe(const QString& text) const {
    InDialogNamed dialog("frmFormality", [&text](QWidget& it) {
      it.findChild<QPlainTextEdit*>("Text4")->setPlainText(text);
      QTest::mouseClick(it.findChild<QPushButton*>("Command1"), Qt::LeftButton);
    });
    ClickLabel("Label3");
    EXPECT_TRUE(dialog.opened);
  }
};

// Captions

TEST_F(FrmMainTest, HasItsCaptionsFromTheSkin) {
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor komnat - Test[*]");
  EXPECT_EQ(Child<QToolButton>("Label7").text(), " Úpravy ");
  EXPECT_EQ(Child<QToolButton>("Label3").text(), " Vlastnosti ");
  EXPECT_EQ(Child<QToolButton>("Label8").text(), " Odzkoušet ");
  EXPECT_EQ(Child<QToolButton>("Command1").toolTip(), "Program kočky");
  EXPECT_EQ(Child<QToolButton>("Command2").toolTip(), "Výběr Zoríka");
  EXPECT_EQ(Child<QLabel>("Label1").toolTip(), "Počet buněk améby");
}

TEST_F(FrmMainTest, ChangesItsCaptionsWithTheSkin) {
  Wear("English");
  window->SetLW();
  EXPECT_EQ(window->windowTitle(), "Zorík's cave editor - Test[*]");
  EXPECT_EQ(Child<QToolButton>("Label7").text(), " Edit ");
  EXPECT_EQ(Child<QToolButton>("Label3").text(), " Properties ");
  EXPECT_EQ(Child<QToolButton>("Label8").text(), " Test ");
  EXPECT_EQ(Child<QToolButton>("Command1").toolTip(), "Cat program");
  EXPECT_EQ(Action("mnuRestore").text(), "Restore the original");
  EXPECT_EQ(Action("Dog(4)").text(), "Dog 4");
  EXPECT_EQ(Action("mnuOkraj").text(), "Make a frame of “Boulder”");
}

// Titles

TEST_F(FrmMainTest, NamesTheCaveAndItsFileInTheTitle) {
  EXPECT_EQ(window->Edit(CaveTextOf(kRoom), {"/a/b/moje.zk", "Sada", 3}), FrmMain::Start::Editing);
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor komnat - 3. Test - moje.zk[*]");
  EXPECT_EQ(window->Origin().File, "/a/b/moje.zk");
}

TEST_F(FrmMainTest, NamesTheCollectionOfACaveThatHasNoFileYet) {
  EXPECT_EQ(window->Edit(CaveTextOf(kRoom), {"", "Nov\xE1 sada", 1}), FrmMain::Start::Editing);
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor komnat - 1. Test - Nová sada[*]");
  window->Stored(CaveTextOf(kRoom), {"/a/moje.zk", "Nov\xE1 sada", 1});
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor komnat - 1. Test - moje.zk[*]");
}

TEST_F(FrmMainTest, KeepsTheFileInTheTitleInSightBehindALongName) {
  const Boxes boxes;
  test::Numbers numbers;
  numbers.name = std::string(190, 'x');
  EXPECT_EQ(window->Edit(CaveTextOf(kRoom, numbers), {"/a/moje.zk", "Sada", 1}), FrmMain::Start::Editing);
  EXPECT_TRUE(window->windowTitle().endsWith("… - moje.zk[*]"));
  EXPECT_LT(window->windowTitle().size(), 120);
}

TEST_F(FrmMainTest, MarksACaveThatIsAnotherOneThanThatOfTheCollection) {
  Open(kRoom);
  EXPECT_FALSE(window->isWindowModified());
  Click(1, 1);
  EXPECT_TRUE(window->isWindowModified());
  Action("mnuUndo").trigger();
  EXPECT_FALSE(window->isWindowModified());
}

// Opening

TEST_F(FrmMainTest, ShowsACaveWithoutASayWhenNothingIsWrong) {
  const Boxes boxes;
  Open(kRoom);
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(boxes.said.isEmpty());
}

TEST_F(FrmMainTest, WarnsOfWhatWasPutRightAtOpening) {
  const Boxes boxes;
  test::Numbers numbers;
  numbers.magicTime = 0;
  numbers.permeability = 9;
  numbers.name = "zorik a diamant";
  Open(kRoom, numbers);
  EXPECT_EQ(boxes.titles, QStringList("Upozornění"));
  EXPECT_EQ(boxes.said, QStringList("Tyto údaje byly opraveny: Jak dlouho bude kouzelná zeď kouzlit = 1 "
                                    "(bylo 0) Propustnost bláta = 8 (bylo 9) Název = \"Zorík a drahokam\" "
                                    "(bylo \"zorik a diamant\") Otevřít komnatu s těmito změnami? Jinak "
                                    "zůstane, jak je."));
  EXPECT_EQ(ToUtf8(window->Model().Cave().Name), "Zorík a drahokam");
}

TEST_F(FrmMainTest, WarnsOfAColouringThatBecameAnother) {
  const Boxes boxes;
  test::Numbers numbers;
  numbers.colouring = 5;
  Open(kRoom, numbers);
  ASSERT_EQ(boxes.said.size(), 1);
  EXPECT_TRUE(boxes.said[0].contains(" Zabarvení komnaty = Klasická (bylo Chladná) "));
}

TEST_F(FrmMainTest, OpensNoLargerCaveThatTheAuthorWillNotHaveCut) {
  Picture large = Full(100, 60, 'D');
  large[1][1] = '1';
  QString said;
  const auto answer = [&said](const char* button) {
    return InDialogNamed(QString(), [&said, button](QWidget& box) {
      said = box.findChild<QLabel*>("lblText")->text().simplified();
      box.findChild<SkinButton*>(button)->click();
    });
  };
  {
    const auto dialog = answer("no");
    EXPECT_EQ(window->Edit(CaveTextOf(large)), FrmMain::Start::Declined);
    EXPECT_TRUE(dialog.opened);
  }
  EXPECT_EQ(said,
            "Tyto údaje byly opraveny: Šířka komnaty = 80 (bylo 100) Výška komnaty = 50 (bylo 60) "
            "Otevřít komnatu s těmito změnami? Jinak zůstane, jak je.");
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(done.empty());
  const auto dialog = answer("yes");
  EXPECT_EQ(window->Edit(CaveTextOf(large)), FrmMain::Start::Editing);
  EXPECT_TRUE(window->isVisible());
  window->close();
  ASSERT_EQ(done.size(), 1U);
  EXPECT_EQ(ParseCaveText(done[0])->Width, 80);
}

TEST_F(FrmMainTest, ShowsOfLongTextsWhatHasChangedInThem) {
  const Boxes boxes;
  CaveRecord cave = *ParseCaveText(CaveTextOf(kRoom));
  cave.Name = "Komnata";
  cave.Description = std::string(100, 'X') + " zorik " + std::string(70, 'Y');
  OpenText(*BuildCaveText(cave));
  ASSERT_EQ(boxes.said.size(), 1);
  const QString before = "…" + QString(19, 'X') + ' ';
  const QString behind = ' ' + QString(54, 'Y') + "…";
  QString said = boxes.said[0];
  said.remove('\n').remove(' ');
  QString wanted = "Popis=\"" + before + "Zorík" + behind + "\"(bylo\"" + before + "zorik" + behind + "\")";
  EXPECT_TRUE(said.contains(wanted.remove(' '))) << said.toStdString();
}

TEST_F(FrmMainTest, AsksInTheSkinsLanguage) {
  Wear("English");
  window->SetLW();
  const Boxes boxes;
  Open({"WWWWW", "WH1.W", "W...W", "W...W", "WWWWW"});
  EXPECT_EQ(boxes.said, QStringList("These values were corrected: Zorík No. 1 = 1 (was 2) Open the cave with "
                                    "these changes? Otherwise it stays as it is."));
}

TEST_F(FrmMainTest, KeepsWhatItHasWhenACaveIsDamaged) {
  EXPECT_EQ(window->Edit("abc"), FrmMain::Start::Unreadable);
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(FrmMainTest, TakesTheFirstToolsAndTheFirstDogForEachCave) {
  Pick(9);
  Pick(8, Qt::RightButton);
  Action("Dog(5)").trigger();
  Open(kRoom);
  EXPECT_EQ(Tool(ToolButton::Left), 2);
  EXPECT_EQ(Tool(ToolButton::Right), 1);
  EXPECT_EQ(Tool(ToolButton::Middle), 3);
  EXPECT_EQ(Tiles().CurrentDog(), 1);
  EXPECT_TRUE(Action("Dog(1)").isChecked());
}

TEST_F(FrmMainTest, ShowsACaveInItsColours) {
  const auto grab = [this] { return Area().grab().toImage(); };
  const QImage classic = grab();
  test::Numbers numbers;
  numbers.colouring = 10;
  Open(kRoom, numbers);
  EXPECT_NE(grab(), classic);
  Open(kRoom);
  EXPECT_EQ(grab(), classic);
}

// Leaving

TEST_F(FrmMainTest, HandsTheCaveBackWhenItIsLeft) {
  Click(2, 2);
  window->close();
  EXPECT_FALSE(window->isVisible());
  ASSERT_EQ(done.size(), 1U);
  Picture drawn = kRoom;
  drawn[2][2] = 'R';
  EXPECT_EQ(done[0], CaveTextOf(drawn));
  EXPECT_EQ(closed, 1);
}

TEST_F(FrmMainTest, IsLeftWithEsc) {
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_EQ(done, std::vector<std::string>{CaveTextOf(kRoom)});
  EXPECT_EQ(closed, 1);
}

TEST_F(FrmMainTest, HandsBackLettersThatItDoesNotKnow) {
  const Picture odd = {"WWWWW", "W1$.W", "WxC\xFFW", "W0.AW", "WWWWW"};
  Open(odd);
  window->close();
  EXPECT_EQ(done, std::vector<std::string>{CaveTextOf(odd)});
}

TEST_F(FrmMainTest, HandsBackACaveWithoutADogAndWithoutAFinishWithoutASay) {
  const Boxes boxes;
  const Picture bare = Full(6, 5, ';');
  Open(bare);
  window->close();
  EXPECT_EQ(done, std::vector<std::string>{CaveTextOf(bare)});
  EXPECT_TRUE(boxes.said.isEmpty());
}

TEST_F(FrmMainTest, HandsBackACaveOf80By50) {
  Picture picture = Full(80, 50, ';');
  picture[49][79] = '1';
  Open(picture);
  window->close();
  EXPECT_EQ(done, std::vector<std::string>{CaveTextOf(picture)});
}

TEST_F(FrmMainTest, StaysOpenWhenTheNameIsTooLongForAFile) {
  const auto name = [this](int letters) {
    InDialogNamed dialog("frmFormality", [letters](QWidget& it) {
      it.findChild<QLineEdit*>("Text3")->setText(QString(letters, 'X'));
      QTest::mouseClick(it.findChild<QPushButton*>("Command1"), Qt::LeftButton);
    });
    ClickLabel("Label3");
  };
  name(191);
  const Boxes boxes;
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(boxes.said, QStringList("Údaj „Název“ je na soubor příliš dlouhý. Zkraťte jej, prosím."));
  name(190);
  window->close();
  EXPECT_EQ(done.size(), 1U);
}

TEST_F(FrmMainTest, StaysOpenAndNamesTheFieldThatAFileHasNoRoomFor) {
  Describe(QString(191, 'X'));
  Boxes boxes;
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(done.empty());
  EXPECT_EQ(closed, 0);
  EXPECT_EQ(boxes.said, QStringList("Údaj „Popis“ je na soubor příliš dlouhý. Zkraťte jej, prosím."));
  Describe(QString(190, 'X'));
  window->close();
  EXPECT_EQ(done.size(), 1U);
}

// Test run

TEST_F(FrmMainTest, HandsTheCaveToATestRunAndHides) {
  ClickLabel("Label8");
  EXPECT_EQ(tested, std::vector<std::string>{CaveTextOf(kRoom)});
  EXPECT_FALSE(shownInTest);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(closed, 0);
}

TEST_F(FrmMainTest, ShowsAsBeforeAfterATestRun) {
  Open(Full(60, 40, '2'));
  Open([] {
    Picture picture = Full(60, 40, ';');
    picture[3][3] = '1';
    return picture;
  }());
  Child<QScrollBar>("HScroll1").setValue(7);
  Click(5, 5);
  Pick(9);
  const QRect place = window->geometry();
  const Picture letters = Letters();
  ClickLabel("Label8");
  window->ComeBack();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->geometry(), place);
  EXPECT_EQ(Letters(), letters);
  EXPECT_EQ(Child<QScrollBar>("HScroll1").value(), 7);
  EXPECT_EQ(Tool(ToolButton::Left), 9);
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(window->Model().At(5, 5), ';');
}

TEST_F(FrmMainTest, TestsNoCaveWithoutADog) {
  const Boxes boxes;
  Open({"WWWWW", "W...W", "W.0.W", "W...W", "WWWWW"});
  ClickLabel("Label8");
  EXPECT_TRUE(tested.empty());
  EXPECT_EQ(boxes.titles, QStringList("Nelze otestovat"));
  EXPECT_EQ(boxes.said, QStringList("Nenalezen žádný Zorík."));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmMainTest, TestsNoCaveInWhichADogIsMissing) {
  const Boxes boxes;
  Open({"WWWWW", "W1.3W", "W...W", "W...W", "WWWWW"});
  QTest::keyClick(window.get(), Qt::Key_F5);
  EXPECT_TRUE(tested.empty());
  EXPECT_EQ(boxes.titles, QStringList("Nelze otestovat"));
  EXPECT_EQ(boxes.said, QStringList("Nenalezen Zorík 2."));
}

TEST_F(FrmMainTest, TestsNoCaveThatCannotBeATextAndSaysWhy) {
  Describe(QString(191, 'X'));
  const Boxes boxes;
  ClickLabel("Label8");
  EXPECT_TRUE(tested.empty());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(boxes.said.size(), 1);
}

// The cat's program

TEST_F(FrmMainTest, TakesTheCatsProgram) {
  newScript = "*A-1/Z";
  ClickLabel("Command1");
  EXPECT_EQ(scripts, std::vector<std::string>{""});
  EXPECT_EQ(window->Model().Cave().Script, "*A-1/Z");
  ClickLabel("Command1");
  EXPECT_EQ(scripts.back(), "*A-1/Z");
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(window->Model().Cave().Script, "");
}

TEST_F(FrmMainTest, KeepsTheCatsProgramWhenItsEditorAnswersNothing) {
  test::Numbers numbers;
  numbers.script = "*A/Z";
  Open(kRoom, numbers);
  QTest::keyClick(window.get(), Qt::Key_F6);
  EXPECT_EQ(scripts, std::vector<std::string>{"*A/Z"});
  EXPECT_EQ(window->Model().Cave().Script, "*A/Z");
  EXPECT_FALSE(window->Model().CanUndo());
}

// Properties

TEST_F(FrmMainTest, TakesTheSizeFromThePropertiesAndCutsIt) {
  InDialogNamed dialog("frmFormality", [](QWidget& it) {
    it.findChild<QLineEdit*>("Text1")->setText("99");
    it.findChild<QLineEdit*>("Text2")->setText("7");
    QTest::keyClick(it.findChild<QLineEdit*>("Text2"), Qt::Key_Return);
  });
  const Boxes boxes;
  QTest::keyClick(window.get(), Qt::Key_F4);
  EXPECT_TRUE(dialog.opened);
  EXPECT_TRUE(boxes.said.isEmpty()) << "the dialog lets 99 columns pass";
  EXPECT_EQ(window->Model().Width(), 80);
  EXPECT_EQ(window->Model().Height(), 7);
  EXPECT_EQ(Area().size(), QSize(80 * 26, 7 * 26));
  Action("mnuUndo").trigger();
  EXPECT_EQ(Area().size(), QSize(6 * 26, 5 * 26));
}

// Size and keys

TEST_F(FrmMainTest, RemembersItsSize) {
  window->resize(800, 600);
  window->close();
  MakeWindow();
  EXPECT_EQ(window->size(), QSize(800, 600));
}

TEST_F(FrmMainTest, IsWalkedThroughWithTab) {
  QStringList way;
  window->findChild<QToolButton*>("Label7")->setFocus();
  for (int i = 0; i < 7; ++i) {
    way << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(way, QStringList({"Label7", "Label3", "Label8", "Command1", "Command2", "imgS", "EditKom"}));
}

}  // namespace
}  // namespace zorik
