#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QLabel>
#include <QPushButton>

#include "data/Result.h"
#include "platform/PathText.h"
#include "screens/StartScreen.h"
#include "support/AsNobody.h"
#include "support/DesktopStandIn.h"
#include "support/TrashFolder.h"

namespace zorik {
namespace {

using test::Box;
using test::DialogScript;
using test::InDialog;
using test::TrashFolder;

// What comes from outside of the start screen.
class StartOutside : public test::StartScreen {
 protected:
  void SetUp() override {
    Coll("a.zk", "Alfa");
    Player("Adam");
    Load();
  }

  // A collection somewhere else.
  QString Foreign(const std::string& file, const std::string& name) const {
    Coll(file, name);
    folder_.File("jinde/" + file, *ReadWhole(folder_.Root() + "/Caves/" + file));
    EXPECT_TRUE(QFile::remove(At("Caves/" + file)));
    return At("jinde/" + file);
  }

  static DialogScript::Act Copy(Qt::Key answer) { return Question("Text 112", {}, answer); }
  static DialogScript::Act Delete(Qt::Key answer) { return Question("Text 113", {}, answer); }

  // A question that begins so and names these.
  static DialogScript::Act Question(const QString& begin, const QStringList& names, Qt::Key answer) {
    return [=](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Text 194");
      const QString text = dialog.findChild<QLabel*>("lblText")->text();
      EXPECT_TRUE(text.startsWith(begin + "\n\n")) << text.toStdString();
      const QString words = QString(text).remove('\n');  // paths may be broken
      for (const QString& name : names) EXPECT_TRUE(words.contains(name)) << text.toStdString();
      QTest::keyClick(&dialog, answer);
    };
  }
};

TEST_F(StartOutside, TellsTheDesktopWhereTheProgramIsThatOpensItsFiles) {
  const QSettings store(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2");
  EXPECT_EQ(store.value("Path").toString(), QCoreApplication::applicationDirPath());
}

TEST_F(StartOutside, ACollectionIsCopiedAndTheCopyOpened) {
  const QString path = Foreign("x.zk", "Cizí");
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_N)};
  start_->AnotherColl(path);
  EXPECT_EQ(Files("Caves"), (QStringList{"a.zk", "x.zk"}));
  EXPECT_TRUE(QFile::exists(path));
  EXPECT_EQ(*ReadWhole(path.toStdString()), *ReadWhole(folder_.Root() + "/Caves/x.zk"));
  ASSERT_EQ(opened_->count(), 1);
  EXPECT_EQ(opened_->at(0), (QVariantList{At("Caves/x.zk"), "Adam"}));
  EXPECT_EQ(Colls().Labels(), (QStringList{"Alfa", "Cizí"}));
  EXPECT_EQ(Colls().Selected(), 1);
}

TEST_F(StartOutside, ACollectionOfTheSameNameIsCopiedWithATilde) {
  const QString path = Foreign("x.zk", "Cizí");
  const DialogScript script = {Copy(Qt::Key_Y),   Delete(Qt::Key_N), Copy(Qt::Key_Y),
                               Delete(Qt::Key_N), Copy(Qt::Key_Y),   Delete(Qt::Key_N)};
  for (int i = 0; i < 3; ++i) start_->AnotherColl(path);
  EXPECT_EQ(Files("Caves"), (QStringList{"a.zk", "x.zk", "x~.zk", "x~~.zk"}));
  EXPECT_EQ(opened_->at(2), (QVariantList{At("Caves/x~~.zk"), "Adam"}));
}

TEST_F(StartOutside, AnotherLetterCaseIsTheSameName) {
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_N)};
  folder_.File("jinde/A.ZK", "bytes");
  start_->AnotherColl(At("jinde/A.ZK"));
  EXPECT_EQ(Files("Caves"), (QStringList{"A~.ZK", "a.zk"}));
}

TEST_F(StartOutside, BothQuestionsNameTheCollectionAndItsFile) {
  const QString path = Foreign("x.zk", "<b>Cizí</b> & %1");
  const QStringList names = {"<b>Cizí</b> & %1", path};
  const DialogScript script = {Question("Text 112", names, Qt::Key_Y),
                               Question("Text 113", names, Qt::Key_N)};
  start_->AnotherColl(path);
  EXPECT_EQ(opened_->count(), 1);
}

TEST_F(StartOutside, TheSourceGoesToTheTrashWhenThePlayerLikes) {
  const TrashFolder trash(QString::fromStdString(folder_.Root()));
  const QString path = Foreign("x.zk", "Cizí");
  const std::string bytes = *ReadWhole(path.toStdString());
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_Y)};
  start_->AnotherColl(path);
  EXPECT_FALSE(QFile::exists(path));
  EXPECT_TRUE(QFile::exists(At("Caves/x.zk")));
  const auto thrown = ReadWhole(folder_.Root() + "/data/Trash/files/x.zk");
  ASSERT_TRUE(thrown);
  EXPECT_EQ(*thrown, bytes);
}

TEST_F(StartOutside, TheSourceIsDeletedWhereThereIsNoTrash) {
  const TrashFolder trash(QString::fromStdString(folder_.Root()));
  folder_.File("data", "a file where the trash should be");
  const QString path = Foreign("x.zk", "Cizí");
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_Y)};
  start_->AnotherColl(path);
  EXPECT_FALSE(QFile::exists(path));
  EXPECT_TRUE(QFile::exists(At("Caves/x.zk")));
}

TEST_F(StartOutside, ACollectionThatAnotherProgramMakesAppears) {
  Coll("c.zk", "Cyril");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Colls().Count() == 2; }));
  Colls().Select(1);
  Coll("b.zk", "Beta");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Colls().Count() == 3; }));
  EXPECT_EQ(Colls().Labels(), (QStringList{"Alfa", "Beta", "Cyril"}));
  EXPECT_EQ(Colls().Selected(), 2) << "what was selected stays so";
  EXPECT_TRUE(QFile::remove(At("Caves/b.zk")));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Colls().Count() == 2; }));
  EXPECT_EQ(Colls().Selected(), 1);
}

// The folder of that time is gone, and nobody watches the one in its place.
TEST_F(StartOutside, ACollectionThatNobodyWasToldOfAppearsWhenTheWindowIsActivated) {
  std::filesystem::remove_all(folder_.Root() + "/Caves");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Colls().Count() == 0; }));
  Coll("c.zk", "Cyril");
  QTest::qWait(400);
  ASSERT_EQ(Colls().Count(), 0);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  start_->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Colls().Count() == 1; }));
}

TEST_F(StartOutside, TheCollectionOfAFileIsSelectedIfItIsInTheList) {
  Coll("b.zk", "Beta");
  start_->FindColls();
  start_->SelectFile(At("Caves/b.zk"));
  EXPECT_EQ(Colls().Selected(), 1);
  start_->SelectFile(At("jinde/a.zk"));
  start_->SelectFile(QString());
  EXPECT_EQ(Colls().Selected(), 1);
}

TEST_F(StartOutside, ASourceThatCannotBeDeletedIsTold) {
  namespace fs = std::filesystem;
  const QString path = Foreign("x.zk", "Cizí");
  const std::string root = folder_.Root();
  fs::permissions(root, fs::perms::group_exec | fs::perms::others_exec, fs::perm_options::add);
  fs::permissions(root + "/Caves", fs::perms::all, fs::perm_options::add);
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_Y),
                               Box("Text 99", "Soubor se nepodařilo vymazat:\n" + path)};
  fs::permissions(root + "/jinde", fs::perms::owner_write, fs::perm_options::remove);
  {
    const test::AsNobody nobody;
    start_->AnotherColl(path);
  }
  fs::permissions(root + "/jinde", fs::perms::owner_write, fs::perm_options::add);
  EXPECT_TRUE(QFile::exists(path));
  EXPECT_EQ(opened_->at(0), (QVariantList{At("Caves/x.zk"), "Adam"}));
}

TEST_F(StartOutside, ACollectionThatIsNotCopiedIsOpenedWhereItLies) {
  const QString path = Foreign("x.zk", "Cizí");
  const DialogScript script = {Copy(Qt::Key_N)};
  start_->AnotherColl(path);
  EXPECT_EQ(Files("Caves"), QStringList{"a.zk"});
  EXPECT_EQ(opened_->at(0), (QVariantList{path, "Adam"}));
}

TEST_F(StartOutside, ACollectionInItsPlaceIsOpenedWithoutAQuestion) {
  start_->AnotherColl(At("Caves/a.zk"));
  start_->AnotherColl(At("Players/../Caves/a.zk"));
  EXPECT_EQ(opened_->count(), 2);
  EXPECT_EQ(Files("Caves"), QStringList{"a.zk"});
}

TEST_F(StartOutside, ACopyThatFailsLeavesTheCollectionWhereItIs) {
  const QString path = Foreign("x.zk", "Cizí");
  std::filesystem::remove_all(folder_.Root() + "/Caves");
  folder_.File("Caves", "a file");
  const DialogScript script = {
      Copy(Qt::Key_Y),
      Box("Text 99", "Soubor se nepodařilo uložit.\n" + At("Caves") + "\nTaková složka neexistuje.")};
  start_->AnotherColl(path);
  EXPECT_EQ(opened_->at(0), (QVariantList{path, "Adam"}));
}

TEST_F(StartOutside, ACollectionWithANameThatIsNoUtf8IsCopiedAndOpenedLikeAllOthers) {
  folder_.File("jinde/Sk\xE1la.zk", "bytes");
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_Y)};
  start_->OpenFromOutside(PathText(folder_.Root() + "/jinde/Sk\xE1la.zk"));
  EXPECT_TRUE(std::filesystem::exists(folder_.Root() + "/Caves/Sk\xE1la.zk"));
  EXPECT_FALSE(std::filesystem::exists(folder_.Root() + "/jinde/Sk\xE1la.zk"));
  EXPECT_EQ(opened_->at(0), (QVariantList{PathText(folder_.Root() + "/Caves/Sk\xE1la.zk"), "Adam"}));
}

// The toolkit's strings would turn one name into the other.
TEST_F(StartOutside, NoOtherFileIsDeletedInPlaceOfOneWhoseNameIsNoUtf8) {
  const std::vector<std::string> others{"jinde/Sk?la.zk", "jinde/Sk\xEF\xBF\xBDla.zk", "jinde/Skála.zk"};
  for (const std::string& other : others) folder_.File(other, "another");
  folder_.File("jinde/Sk\xE1la.zk", "bytes");
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_Y)};
  start_->AnotherColl(PathText(folder_.Root() + "/jinde/Sk\xE1la.zk"));
  EXPECT_FALSE(std::filesystem::exists(folder_.Root() + "/jinde/Sk\xE1la.zk"));
  for (const std::string& other : others)
    EXPECT_TRUE(std::filesystem::exists(folder_.Root() + "/" + other)) << other;
}

TEST_F(StartOutside, ACopyHasNoControlCharactersInItsName) {
  folder_.File("jinde/x\ny.zk", "bytes");
  const DialogScript script = {Copy(Qt::Key_Y), Delete(Qt::Key_N)};
  start_->AnotherColl(At("jinde/x\ny.zk"));
  EXPECT_EQ(Files("Caves"), (QStringList{"a.zk", "xy.zk"}));
}

TEST_F(StartOutside, APipeIsToldAndNotWaitedFor) {
  alarm(20);
  folder_.File("jinde/x", "");
  ASSERT_EQ(mkfifo((folder_.Root() + "/jinde/p.zk").c_str(), 0666), 0);
  const DialogScript script = {Box("Text 99", "Soubor nelze otevřít:\n" + At("jinde/p.zk"))};
  start_->AnotherColl(At("jinde/p.zk"));
  alarm(0);
  EXPECT_EQ(opened_->count(), 0);
}

TEST_F(StartOutside, NothingHappensWithoutAPath) {
  start_->AnotherColl(QString());
  start_->AnotherRepl(QString());
  start_->OpenFromOutside(QString());
  QTest::qWait(20);
  EXPECT_EQ(opened_->count() + played_->count(), 0);
}

TEST_F(StartOutside, WhatIsNotThereIsTold) {
  const QString path = At("jinde/neni.zk");
  const QString record = At("jinde/neni.zkr");
  const DialogScript script = {Box("Text 99", "Soubor nelze otevřít:\n" + path),
                               Box("Text 99", "Soubor nelze otevřít:\n" + record)};
  start_->AnotherColl(path);
  start_->AnotherRepl(record);
  EXPECT_EQ(opened_->count() + played_->count(), 0);
}

TEST_F(StartOutside, AColonStandsBeforeThePathThoughNoSkinCanEndAValueInOne) {
  auto keys = test::StartKeys();
  keys["caption.error.open"] = "The file cannot be opened";
  WearKeys(keys);
  const QString path = At("jinde/neni.zk");
  const DialogScript script = {Box("Text 99", "The file cannot be opened:\n" + path)};
  start_->AnotherColl(path);
}

TEST_F(StartOutside, FilesFromTheDesktopGoByTheirKind) {
  folder_.File("jinde/Zaznam.ZKR", "record");
  const DialogScript script = {Box("Text 99", "S tímto souborem si hra neporadí:\n" + At("jinde/data.zkd")),
                               Box("Text 99", "S tímto souborem si hra neporadí:\n" + At("jinde/bez"))};
  for (const char* file : {"jinde/Zaznam.ZKR", "Caves/a.zk", "jinde/data.zkd", "jinde/bez"}) {
    start_->OpenFromOutside(At(file));
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return opened_->count() == 1; }));
  EXPECT_EQ(played_->at(0), QVariantList{At("jinde/Zaznam.ZKR")});
  EXPECT_EQ(opened_->at(0), (QVariantList{At("Caves/a.zk"), "Adam"}));
}

TEST_F(StartOutside, HelpIsOpenedByTheDesktop) {
  folder_.File("Help/help.html", "<html>");
  const test::DesktopStandIn desktop(0);
  Click("help");
  EXPECT_EQ(desktop.Opened(), At("Help/help.html"));
}

TEST_F(StartOutside, HelpIsInTheLanguageOfTheSkinWhereThereIsOne) {
  folder_.File("Help/help.html", "<html>");
  auto keys = test::StartKeys();
  keys["help.folder"] = "en";
  WearKeys(keys);
  {
    const test::DesktopStandIn desktop(0);
    Key(Qt::Key_F1);
    EXPECT_EQ(desktop.Opened(), At("Help/help.html")) << "that language has no such page";
  }
  folder_.File("Help/en/help.html", "<html>");
  const test::DesktopStandIn desktop(0);
  Key(Qt::Key_F1);
  EXPECT_EQ(desktop.Opened(), At("Help/en/help.html"));
}

TEST_F(StartOutside, HelpThatIsNotThereIsTold) {
  const QString page = QDir::cleanPath(At("Skins/../Help/help.html"));
  const DialogScript script = {Box("Text 99", "Program pro tento soubor nebyl nalezen:\n" + page)};
  Key(Qt::Key_F1);
}

}  // namespace
}  // namespace zorik
