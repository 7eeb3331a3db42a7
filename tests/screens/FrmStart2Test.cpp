#include <QFileDialog>

#include "platform/PathText.h"
#include "screens/FrmStart2.h"
#include "screens/StartScreen.h"

namespace zorik {
namespace {

using test::Box;
using test::DialogScript;
using test::FingerBox;
using test::InDialog;
using test::Press;
using test::Type;

using FrmStart2Test = test::StartScreen;

// A file chosen in the box for files.
DialogScript::Act Choose(const QString& path) {
  return [path](QWidget& dialog) {
    auto* const box = qobject_cast<QFileDialog*>(&dialog);
    ASSERT_NE(box, nullptr) << dialog.windowTitle().toStdString();
    box->selectFile(path);
    static_cast<QDialog*>(box)->accept();
  };
}

TEST_F(FrmStart2Test, ListsTheCollectionsByNameInTheOrderOfTheirFiles) {
  Player("Adam");
  for (int i = 9; i >= 0; --i)
    Coll(std::string(1, static_cast<char>('a' + i)) + ".zk", "Sada " + std::to_string(i));
  folder_.File("Caves/junk.txt", "junk");
  Load();
  QStringList expected;
  for (int i = 0; i < 10; ++i) expected.push_back("Sada " + QString::number(i));
  EXPECT_EQ(Colls().Labels(), expected);
}

TEST_F(FrmStart2Test, SelectsTheFirstCollection) {
  Player("Adam");
  Coll("a.zk", "Alfa");
  Coll("b.zk", "Beta");
  Load();
  EXPECT_EQ(Colls().Selected(), 0);
}

TEST_F(FrmStart2Test, AFolderWithoutCollectionsGivesAnEmptyListAndAMessage) {
  Player("Adam");
  Load();
  EXPECT_EQ(Colls().Count(), 0);
  const DialogScript script = {Box("Text 99", "Nenašla se žádná sada komnat.")};
  Click("play");
  Key(Qt::Key_Down);
  EXPECT_EQ(opened_->count(), 0);
}

TEST_F(FrmStart2Test, ShowsTheScrollButtonOnlyWhenTheRowsDoNotFit) {
  Player("Adam");
  for (int i = 0; i < 5; ++i) Coll(std::to_string(i) + ".zk", "S");
  Load();
  EXPECT_FALSE(Find<QWidget>("vscroll").isVisible());
  Coll("9.zk", "S");
  start_->FindColls();
  EXPECT_TRUE(Find<QWidget>("vscroll").isVisible());
}

TEST_F(FrmStart2Test, ShowsNoScrollButtonThatTheSkinGivesNoPlace) {
  Player("Adam");
  for (int i = 0; i < 9; ++i) Coll(std::to_string(i) + ".zk", "S");
  auto keys = test::StartKeys();
  keys.erase("start.vscroll.left");
  WearKeys(keys);
  Load();
  EXPECT_TRUE(Colls().Overflows());
  EXPECT_FALSE(Find<QWidget>("vscroll").isVisible());
}

TEST_F(FrmStart2Test, ScrollsByTheHalvesOfTheButtons) {
  for (int i = 0; i < 9; ++i) {
    Coll(std::to_string(i) + ".zk", "S");
    Player("Hrac " + std::to_string(i));
  }
  Load();
  const auto half = [this](const char* name, bool second) {
    QWidget& button = Find<QWidget>(name);
    const bool tall = button.height() > button.width();
    const QPoint way = tall ? QPoint(0, button.height() / 4) : QPoint(button.width() / 4, 0);
    QTest::mouseClick(&button, Qt::LeftButton, {}, button.rect().center() + (second ? way : -way));
  };
  const int row = Colls().PlaceOf(0).top();
  half("vscroll", true);
  EXPECT_EQ(Colls().PlaceOf(0).top(), row - kRowHeight);
  half("vscroll", false);
  EXPECT_EQ(Colls().PlaceOf(0).top(), row);
  const int label = Plrs().PlaceOf(0).left();
  half("hscroll", true);
  EXPECT_LT(Plrs().PlaceOf(0).left(), label);
  half("hscroll", false);
  EXPECT_EQ(Plrs().PlaceOf(0).left(), label);
}

TEST_F(FrmStart2Test, CallsACollectionThatIsGarbageByItsFile) {
  Player("Adam");
  folder_.File("Caves/smeti.zk", "garbage\x01\x02\r\n\xFF\xFE");
  folder_.File("Caves/prazdna.zk", "");
  Load();
  EXPECT_EQ(Colls().Labels(), (QStringList{"prazdna", "smeti"}));
}

TEST_F(FrmStart2Test, SelectsTheLastPlayerAgain) {
  for (const char* name : {"Adam", "Bára", "Cyril"}) Player(name);
  Load();
  EXPECT_EQ(start_->Player(), "Adam");
  Plrs().Select(2);
  EXPECT_EQ(ReadPosledniHrac(), 2);
  Load();
  EXPECT_EQ(start_->Player(), "Cyril");
}

TEST_F(FrmStart2Test, SelectsTheFirstPlayerWhenTheLastIsBeyondTheList) {
  Player("Adam");
  Player("Bára");
  StorePosledniHrac(2);
  Load();
  EXPECT_EQ(start_->Player(), "Adam");
  EXPECT_EQ(ReadPosledniHrac(), 0) << "a selection is stored";
}

TEST_F(FrmStart2Test, ShowsPlayersBetweenQuotes) {
  Player("Adam");
  Player("Bára");
  Load();
  EXPECT_EQ(Plrs().Labels(), (QStringList{" « Adam » ", " « Bára » "}));
}

TEST_F(FrmStart2Test, AsksForAPlayerWhenThereIsNone) {
  Coll("a.zk", "Alfa");
  const DialogScript script = {Type("Adam"), Box("Text 114", "Hráč Adam byl přidán.")};
  Load();
  EXPECT_EQ(start_->Player(), "Adam");
  EXPECT_EQ(Files("Players"), QStringList{"Adam"});
}

TEST_F(FrmStart2Test, StaysUsableWithoutAPlayerAndAsksAgainBeforePlaying) {
  Coll("a.zk", "Alfa");
  const DialogScript script = {Press(Qt::Key_Escape), Press(Qt::Key_Escape), Type("Eva"),
                               Box("Text 114", "Hráč Eva byl přidán.")};
  Load();
  EXPECT_TRUE(start_->isVisible());
  EXPECT_EQ(start_->Player(), "");
  Click("play");
  EXPECT_EQ(opened_->count(), 0);
  Click("play");
  ASSERT_EQ(opened_->count(), 1);
  EXPECT_EQ(opened_->at(0), (QVariantList{At("Caves/a.zk"), "Eva"}));
}

TEST_F(FrmStart2Test, SelectsANewPlayerAndStoresThat) {
  Player("Adam");
  Player("Cyril");
  Load();
  const DialogScript script = {Type("Bára"), Box("Text 114", "Hráč Bára byl přidán.")};
  Click("addplayer");
  EXPECT_EQ(start_->Player(), "Bára");
  EXPECT_EQ(ReadPosledniHrac(), 1);
}

TEST_F(FrmStart2Test, ShowsTheStatisticsOfTheSelectedPlayer) {
  Player("Adam");
  Player("Cyril");
  Load();
  Key(Qt::Key_Right);
  QStringList shown;
  const auto look = [&shown](QWidget& dialog) {
    shown += dialog.objectName() + ": " + dialog.findChild<QLabel*>("lblCaption")->text();
    QTest::keyClick(&dialog, Qt::Key_Escape);
  };
  const DialogScript script = {look};
  Key(Qt::Key_F3);
  EXPECT_EQ(shown, QStringList{"statistics: Statistika: Cyril"});
}

TEST_F(FrmStart2Test, MakesTheFolderOfWhatIsLeftOfAName) {
  Player("Adam");
  Load();
  const DialogScript script = {Type("a?b*"), Box("Text 114", "Hráč ab byl přidán.")};
  Click("addplayer");
  EXPECT_EQ(Files("Players"), (QStringList{"Adam", "ab"}));
}

TEST_F(FrmStart2Test, AddsNoPlayerForANameOfForbiddenCharacters) {
  Player("Adam");
  Load();
  for (const char* name : {"???", "", "   ", "..", "Юрий"}) {
    const DialogScript script = {Type(name)};
    Click("addplayer");
    EXPECT_EQ(Files("Players"), QStringList{"Adam"}) << name;
  }
}

TEST_F(FrmStart2Test, TellsThatAPlayerIsThereAlready) {
  Player("Žofie");
  Load();
  const DialogScript script = {Type("žofie"), Box("Text 48", "Hráče žofie nelze přidat.\nZkus jiné jméno.")};
  Click("addplayer");
  EXPECT_EQ(Files("Players"), QStringList{"Žofie"});
  EXPECT_EQ(start_->Player(), "Žofie");
}

TEST_F(FrmStart2Test, OpensCollectionsAndPlayersOfOldArchives) {
  Player("Hr\xE1\xE8");
  Coll("Sk\xE1la.zk", "Skála");
  Load();
  EXPECT_EQ(Plrs().Labels(), QStringList{" « Hráč » "});
  EXPECT_EQ(Colls().Labels(), QStringList{"Skála"});
  Key(Qt::Key_Return);
  ASSERT_EQ(opened_->count(), 1);
  EXPECT_EQ(PathBytes(opened_->at(0)[0].toString()), folder_.Root() + "/Caves/Sk\xE1la.zk");
  EXPECT_EQ(PathBytes(opened_->at(0)[1].toString()), "Hr\xE1\xE8");
  Click("fingerEditor");
  Key(Qt::Key_Return);
  ASSERT_EQ(edited_->count(), 1);
  EXPECT_EQ(PathBytes(edited_->at(0)[0].toString()), folder_.Root() + "/Caves/Sk\xE1la.zk");
}

TEST_F(FrmStart2Test, PutsWhateverTheNameIsIntoTheMessageOnce) {
  Player("Adam");
  Load();
  const DialogScript script = {Type("$P #1"), Box("Text 114", "Hráč $P #1 byl přidán.")};
  Click("addplayer");
}

TEST_F(FrmStart2Test, MakesTheFolderOfPlayersWhenItIsMissing) {
  std::filesystem::remove_all(folder_.Root() + "/Players");
  const DialogScript script = {Press(Qt::Key_Escape)};
  Load();
  EXPECT_TRUE(QFileInfo(At("Players")).isDir());
}

TEST_F(FrmStart2Test, GoesOnWhereNoFolderOfPlayersCanBe) {
  std::filesystem::remove_all(folder_.Root() + "/Players");
  folder_.File("Players", "a file");
  Coll("a.zk", "Alfa");
  const QString said = "Hráče Adam nelze přidat.\nDo této složky se nepodařilo nic zapsat:\n" + At("Players");
  const DialogScript script = {Type("Adam"), Box("Text 48", said), Press(Qt::Key_Escape)};
  Load();
  EXPECT_TRUE(start_->isVisible());
  EXPECT_EQ(Colls().Count(), 1);
}

TEST_F(FrmStart2Test, ListsNoPlayerThatNoNameCanReach) {
  Player("Adam");
  Player("Юрий");
  Player(".skryty");
  folder_.File("Players/soubor", "no folder");
  Load();
  EXPECT_EQ(Plrs().Labels(), QStringList{" « Adam » "});
}

class Opening : public FrmStart2Test {
 protected:
  void SetUp() override {
    Coll("a.zk", "Alfa");
    Coll("b.zk", "Beta");
    Player("Adam");
    Load();
  }

  QPoint Row(int place) const { return Colls().PlaceOf(place).center(); }
  QStringList ChosenFingers() const {
    QStringList names;
    for (const auto* const finger : start_->findChildren<QAbstractButton*>()) {
      if (finger->isChecked()) names << finger->objectName();
    }
    return names;
  }
};

TEST_F(Opening, APressOnARowOnlySelects) {
  QTest::mouseClick(Colls().viewport(), Qt::LeftButton, {}, Row(1));
  EXPECT_EQ(Colls().Selected(), 1);
  EXPECT_EQ(opened_->count(), 0);
}

TEST_F(Opening, ADoubleClickEnterSpaceAndThePlayButtonOpen) {
  QTest::mouseClick(Colls().viewport(), Qt::LeftButton, {}, Row(0));
  QTest::mouseDClick(Colls().viewport(), Qt::LeftButton, {}, Row(0));
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) Key(key);
  Click("play");
  EXPECT_EQ(opened_->count(), 5);
  for (const QVariantList& call : *opened_) EXPECT_EQ(call, (QVariantList{At("Caves/a.zk"), "Adam"}));
}

TEST_F(Opening, ArrowsChooseCollectionAndPlayer) {
  Player("Bára");
  start_->FindPlrs();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_Right);
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->at(0), (QVariantList{At("Caves/b.zk"), "Bára"}));
  Key(Qt::Key_Up);
  Key(Qt::Key_Up);
  Key(Qt::Key_Left);
  Key(Qt::Key_Left);
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->at(1), (QVariantList{At("Caves/a.zk"), "Adam"}));
  Key(Qt::Key_End);
  EXPECT_EQ(Colls().Selected(), 1);
  Key(Qt::Key_PageUp);
  EXPECT_EQ(Colls().Selected(), 0);
}

TEST_F(Opening, ACollectionThatVanishedIsToldAndLeavesTheList) {
  ASSERT_TRUE(QFile::remove(At("Caves/a.zk")));
  const DialogScript script = {Box("Text 99", "Soubor nelze otevřít:\n" + At("Caves/a.zk"))};
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->count(), 0);
  EXPECT_EQ(Colls().Labels(), QStringList{"Beta"});
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->count(), 1);
}

TEST_F(Opening, TheEditorGetsTheSelectedCollectionOrNone) {
  Key(Qt::Key_3);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(edited_->at(0), (QVariantList{At("Caves/b.zk"), "Adam"}));
  std::filesystem::remove_all(folder_.Root() + "/Caves");
  start_->FindColls();
  Key(Qt::Key_Return);
  EXPECT_EQ(edited_->at(1), (QVariantList{QString(), "Adam"}));
}

TEST_F(Opening, AReplayIsChosenAmongThePlayersRecords) {
  folder_.File("Players/Adam/x.zkr", "record");
  Key(Qt::Key_2);
  const DialogScript script = {[this](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Text 110");
    auto& box = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(box.directory().path(), At("Players/Adam"));
    EXPECT_EQ(box.nameFilters(), QStringList{"Text 109 (*.zkr)"});
    Choose(At("Players/Adam/x.zkr"))(dialog);
  }};
  Key(Qt::Key_Return);
  EXPECT_EQ(played_->at(0), QVariantList{At("Players/Adam/x.zkr")});
  EXPECT_EQ(opened_->count(), 0);
}

TEST_F(Opening, ADialogForAFileMayBeCancelled) {
  const DialogScript script = {Press(Qt::Key_Escape), Press(Qt::Key_Escape)};
  Key(Qt::Key_2);
  Key(Qt::Key_Return);
  Key(Qt::Key_4);
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->count() + played_->count() + edited_->count(), 0);
}

TEST_F(Opening, ANameThatIsNoFilesIsToldAndTheDialogStays) {
  const QString path = At("Caves/neni.zk");
  Key(Qt::Key_4);
  bool told = false;
  const DialogScript script = {[&](QWidget& dialog) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText("neni.zk");
    const DialogScript inner = {[&](QWidget& box) {
      told = true;
      Box("Text 111", "Soubor nelze otevřít:\n" + path)(box);
    }};
    dynamic_cast<QDialog&>(dialog).accept();
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
  }};
  Key(Qt::Key_Return);
  EXPECT_TRUE(told);
  EXPECT_EQ(opened_->count() + played_->count(), 0);
}

TEST_F(Opening, TheFourthChoiceOpensCollectionsAndRecordsFromFiles) {
  folder_.File("jinde/x.zkr", "record");
  folder_.File("jinde/y.zk", "collection");
  Key(Qt::Key_4);
  const DialogScript script = {
      [this](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Text 111");
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).nameFilters(),
                  (QStringList{"Text 111 (*.zk)", "Text 109 (*.zkr)"}));
        Choose(At("jinde/y.zk"))(dialog);
      },
      [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Text 194");
        QTest::keyClick(&dialog, Qt::Key_N);
      },
      [this](QWidget& dialog) {
        dynamic_cast<QFileDialog&>(dialog).selectNameFilter("Text 109 (*.zkr)");
        Choose(At("jinde/x.zkr"))(dialog);
      },
  };
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->at(0), (QVariantList{At("jinde/y.zk"), "Adam"}));
  Key(Qt::Key_Return);
  EXPECT_EQ(played_->at(0), QVariantList{At("jinde/x.zkr")});
}

TEST_F(Opening, FingersChooseTheModeAndADoubleClickActs) {
  for (const char* const finger : {"finger4", "fingerEditor", "fingerRePlay", "fingerPlay"}) {
    Click(finger);
    EXPECT_EQ(ChosenFingers(), QStringList{finger});
  }
  Click("fingerEditor");
  QTest::mouseDClick(&Find<QWidget>("fingerEditor"), Qt::LeftButton);
  EXPECT_EQ(ChosenFingers(), QStringList{"fingerEditor"});
  EXPECT_EQ(edited_->count(), 1);
}

TEST_F(Opening, TabGoesRoundTheModes) {
  for (const char* const finger : {"fingerRePlay", "fingerEditor", "finger4", "fingerPlay"}) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(ChosenFingers(), QStringList{finger});
  }
  Key(Qt::Key_Backtab);
  EXPECT_EQ(ChosenFingers(), QStringList{"finger4"});
}

TEST_F(Opening, InsertAsksForANewPlayer) {
  const DialogScript script = {Press(Qt::Key_Escape)};
  Key(Qt::Key_Insert);
}

TEST_F(Opening, EscDoesNotEndTheProgram) {
  const QSignalSpy quit(start_.get(), &FrmStart2::Quit);
  Key(Qt::Key_Escape);
  EXPECT_TRUE(start_->isVisible());
  EXPECT_EQ(quit.count(), 0);
}

TEST_F(Opening, TheCloseButtonAndTheDesktopsCloseQuit) {
  const QSignalSpy quit(start_.get(), &FrmStart2::Quit);
  Click("close");
  EXPECT_EQ(quit.count(), 1);
  EXPECT_TRUE(start_->isVisible()) << "the game may have a reason to stay";
  start_->close();
  EXPECT_EQ(quit.count(), 2);
}

TEST_F(Opening, ShowingItAgainReadsTheFoldersAnewAndKeepsTheSelection) {
  Colls().Select(1);
  start_->hide();
  Coll("aa.zk", "Nova");
  Player("Aaron");
  start_->show();
  EXPECT_EQ(Colls().Labels(), (QStringList{"Alfa", "Nova", "Beta"}));
  EXPECT_EQ(Colls().Selected(), 2);
  EXPECT_EQ(Plrs().Labels(), (QStringList{" « Aaron » ", " « Adam » "}));
  EXPECT_EQ(start_->Player(), "Adam");
  EXPECT_EQ(ReadPosledniHrac(), 1);
}

TEST_F(Opening, LettersSelectACollectionAndDigitsStillChooseTheMode) {
  Colls().SetLabels({"Alfa", "1 pes", "Beta"});
  Colls().Select(0);
  QTest::keyClicks(start_.get(), "b");
  EXPECT_EQ(Colls().Selected(), 2);
  Key(Qt::Key_2);
  EXPECT_EQ(ChosenFingers(), QStringList{"fingerRePlay"});
  QTest::keyClicks(start_.get(), "1");
  EXPECT_EQ(ChosenFingers(), QStringList{"fingerPlay"});
  EXPECT_EQ(Colls().Selected(), 2);
}

TEST_F(Opening, APressOnAListDoesNotDragTheWindow) {
  const QPoint place = start_->pos();
  for (QWidget* const part : {Colls().viewport(), Plrs().viewport()}) {
    QTest::mousePress(part, Qt::LeftButton, {}, part->rect().center());
    QTest::mouseMove(part, part->rect().center() + QPoint(60, 60));
    QTest::mouseRelease(part, Qt::LeftButton, {}, part->rect().center() + QPoint(60, 60));
  }
  EXPECT_EQ(start_->pos(), place);
}

}  // namespace
}  // namespace zorik
