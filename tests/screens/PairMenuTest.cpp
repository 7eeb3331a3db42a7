#include <QFileDialog>

#include "screens/PairMenu.h"
#include "screens/PairWindow.h"
#include "screens/PostMenu.h"

namespace zorik {
namespace {

class PairMenu : public test::PostMenu {
 protected:
  PairMenu() {
    Caves(2);
    Open();
    QObject::connect(window.get(), &FrmPoSt::PairWanted,
                     [this](const QPoint& at) { ShowPairOfRecords(skin, flow, 1, *window, at); });
  }

  // Lets a player win the first cave.
  void WinAs(const QString& player) {
    const std::string name = player.toStdString();
    std::filesystem::create_directories(folder.Root() + "/Players/" + name);
    Hra other(7);
    Flow his(other, {folder.Root() + "/Players", folder.Root() + "/Replays"}, 1);
    ASSERT_TRUE(his.OpenCollection(CollectionPath().toStdString(), name));
    ASSERT_TRUE(his.Start());
    test::StepToWin(other);
    ASSERT_TRUE(his.Win());
    ASSERT_TRUE(his.Store(his.Won()));
  }

  std::string RecordOf(const std::string& player) const {
    const std::string name = FileSystemName(RecordFileName("Sada", "c1"));
    return folder.Root() + "/Players/" + player + "/" + name;
  }

  // The names in the pair of records that opens, which is closed again.
  test::DialogScript::Act Note(QStringList& names) {
    return [&names](QWidget& dialog) {
      ASSERT_NE(qobject_cast<PairWindow*>(&dialog), nullptr)
          << dialog.findChild<QLabel*>("lblText")->text().toStdString();
      for (const QLabel* const label : dialog.findChildren<QLabel*>()) names += label->text();
      QTest::keyClick(&dialog, Qt::Key_Escape);
    };
  }

  // A question whose lines are these words, and its answer.
  static test::DialogScript::Act Answer(const QString& question, Qt::Key key) {
    return [question, key](QWidget& dialog) {
      auto* const label = dialog.findChild<QLabel*>("lblText");
      ASSERT_NE(label, nullptr) << dialog.windowTitle().toStdString();
      EXPECT_EQ(label->text().simplified().toStdString(), question.toStdString());
      QTest::keyClick(&dialog, key);
    };
  }

  // Takes a file from the box that asks for one.
  static test::DialogScript::Act TakeFile(const std::string& path) {
    return [path](QWidget& dialog) {
      auto* const box = qobject_cast<QFileDialog*>(&dialog);
      ASSERT_NE(box, nullptr) << dialog.windowTitle().toStdString();
      auto* const name = box->findChild<QLineEdit*>("fileNameEdit");
      name->setText(QString::fromStdString(path));
      QTest::keyClick(name, Qt::Key_Return);
    };
  }

  void Press() { PostMenu::Press(Qt::Key_V); }
};

const QString kQuestion = "Nikdo jiný tuto komnatu nevyhrál. Chceš druhý záznam vybrat ze souboru?";

TEST_F(PairMenu, ShowsThePlayersRecordBesideThatOfAnotherOneWhoIsChosen) {
  WinAs("Žofie");
  WinAs("Bara");
  WinAs("Cyril");
  QStringList names;
  test::DialogScript script{Note(names)};
  const QStringList lines{"Bara, bodů: 50", "Cyril, bodů: 50", "Záznam ze souboru"};
  EXPECT_EQ(Offered(1, [this] { Press(); }), lines);
  EXPECT_TRUE(names.contains("Žofie"));
  EXPECT_TRUE(names.contains("Cyril"));
  EXPECT_FALSE(names.contains("Bara"));
}

TEST_F(PairMenu, OpensNothingWhereNobodyIsChosen) {
  WinAs("Žofie");
  WinAs("Bara");
  test::DialogScript script{};
  EXPECT_EQ(Offered(kNone, [this] { Press(); }).size(), 2);
}

TEST_F(PairMenu, TellsAPlayerWhoHasNotWonTheCave) {
  WinAs("Bara");
  EXPECT_EQ(Message([this] { Press(); }),
            "Tuto komnatu nemáš vyhranou, takže není který záznam ukázat vedle jiného.");
}

TEST_F(PairMenu, TellsThatNobodyElseHasWonTheCaveAndTakesAFileThen) {
  WinAs("Žofie");
  WinAs("Bara");
  folder.File("Bara.zkr", *ReadWhole(RecordOf("Bara")));
  std::filesystem::remove(RecordOf("Bara"));
  {
    test::DialogScript script{Answer(kQuestion, Qt::Key_Escape)};
    Press();
  }
  QStringList names;
  test::DialogScript script{Answer(kQuestion, Qt::Key_Return), TakeFile(folder.Root() + "/Bara.zkr"),
                            Note(names)};
  Press();
  EXPECT_TRUE(names.contains("Bara"));
}

TEST_F(PairMenu, TellsWhichFileDoesNotGoWithThePlayersRecord) {
  WinAs("Žofie");
  WinAs("Bara");
  folder.File("jiny.zkr", "to není záznam");
  QString said;
  test::DialogScript script{TakeFile(folder.Root() + "/jiny.zkr"), [&said](QWidget& box) {
                              said = box.findChild<QLabel*>("lblText")->text();
                              QTest::keyClick(&box, Qt::Key_Return);
                            }};
  Offered(1, [this] { Press(); });
  EXPECT_TRUE(said.startsWith("Tvůj záznam a tento nejde ukázat vedle sebe.")) << said.toStdString();
  EXPECT_TRUE(said.contains("jiny.zkr")) << said.toStdString();
}

TEST_F(PairMenu, ShowsAWinThatCouldNotBeStored) {
  WinAs("Bara");
  Spoil();
  Prosel();
  ASSERT_FALSE(flow.Store(flow.Won()));
  flow.Choose(1);
  QStringList names;
  test::DialogScript script{Note(names)};
  Offered(0, [this] { Press(); });
  EXPECT_TRUE(names.contains("Žofie"));
  Mend();
}

TEST_F(PairMenu, OpensByItsButtonWhichIsThereForAWonCaveOnly) {
  EXPECT_FALSE(Button("pair").isVisible());
  WinAs("Žofie");
  WinAs("Bara");
  Open();
  ASSERT_TRUE(Button("pair").isVisible());
  EXPECT_EQ(Button("pair").toolTip(), "Dva záznamy vedle sebe (V)");
  QObject::connect(window.get(), &FrmPoSt::PairWanted,
                   [this](const QPoint& at) { ShowPairOfRecords(skin, flow, 1, *window, at); });
  test::DialogScript script{};
  EXPECT_EQ(Offered(kNone, [this] { Click("pair"); }).size(), 2);
}

// An older skin.
TEST_F(PairMenu, OpensByItsKeyWhereTheSkinHasNoButtonForIt) {
  const std::string path = folder.Root() + "/Skins/Default/Menu/skindata.txt";
  std::string table = *ReadWhole(path);
  const std::size_t line = table.find("pair.image=");
  ASSERT_NE(line, std::string::npos);
  table.erase(line, table.find('\n', line) + 1 - line);
  ASSERT_TRUE(WriteWhole(path, table));
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
  window->SkinIt();
  WinAs("Žofie");
  WinAs("Bara");
  test::DialogScript script{};
  EXPECT_EQ(Offered(kNone, [this] { Press(); }).size(), 2);
  EXPECT_FALSE(Button("pair").isVisible());
}

}  // namespace
}  // namespace zorik
