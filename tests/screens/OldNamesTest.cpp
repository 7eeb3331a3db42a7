#include <QFileDialog>
#include <QListWidget>

#include "platform/PathText.h"
#include "screens/DesktopServices.h"
#include "screens/DialogScript.h"
#include "screens/OldNames.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

class OldNamesTest : public testing::Test {
 protected:
  QString Ask(const std::string& folder, const test::DialogScript::Act& act) {
    test::DialogScript script{act};
    return AskForFile(skin_.Skin(), nullptr, "Title", PathText(folder), {"Sady (*.zk)", "Záznamy (*.zkr)"});
  }
  static QListWidget* List(QWidget& dialog) { return dialog.findChild<QListWidget*>("oldNames"); }
  static QStringList Rows(QWidget& dialog) {
    QStringList rows;
    for (int i = 0; i < List(dialog)->count(); ++i) rows.push_back(List(dialog)->item(i)->text());
    return rows;
  }

  test::TestSkin skin_;
  test::Folder folder_;
};

TEST_F(OldNamesTest, AreNotThereWhereAllNamesAreUtf8) {
  folder_.File("Caves/kůň.zk", "x");
  folder_.File("Caves/k\xF9\xF2.txt", "x");
  Ask(folder_.Root() + "/Caves", [](QWidget& dialog) {
    EXPECT_TRUE(List(dialog)->isHidden());
    dialog.close();
  });
}

TEST_F(OldNamesTest, AreListedByTheKindThatIsChosenAndCanBeChosen) {
  folder_.File("Caves/k\xF9\xF2.zk", "x");
  folder_.File("Caves/k\xF9\xF2.zkr", "x");
  folder_.File("Caves/Hr\xE1\xE8/a.zk", "x");
  folder_.File("Caves/Hráč/b.zk", "x");
  const QString chosen = Ask(folder_.Root() + "/Caves", [](QWidget& dialog) {
    EXPECT_TRUE(List(dialog)->isVisible());
    EXPECT_EQ(Rows(dialog), (QStringList{"kůň.zk", "Hráč/a.zk"}));
    auto& box = dynamic_cast<QFileDialog&>(dialog);
    emit box.filterSelected("");
    List(dialog)->setCurrentRow(1);
    QTest::keyClick(List(dialog), Qt::Key_Return);
  });
  EXPECT_EQ(PathBytes(chosen), folder_.Root() + "/Caves/Hr\xE1\xE8/a.zk");
}

TEST_F(OldNamesTest, FollowTheBoxIntoAnotherFolder) {
  folder_.File(
      "Players/Ada/S\xE1"
      "da.zk",
      "x");
  const std::string ada = folder_.Root() + "/Players/Ada";
  const QString chosen = Ask(folder_.Root() + "/Players", [&](QWidget& dialog) {
    EXPECT_TRUE(List(dialog)->isHidden());
    auto& box = dynamic_cast<QFileDialog&>(dialog);
    box.setDirectory(QString::fromStdString(ada));
    emit box.directoryEntered(QString::fromStdString(ada));
    EXPECT_EQ(Rows(dialog), QStringList{"Sáda.zk"});
    emit List(dialog)->itemActivated(List(dialog)->item(0));
  });
  EXPECT_EQ(PathBytes(chosen), ada +
                                   "/S\xE1"
                                   "da.zk");
}

TEST_F(OldNamesTest, OfAFolderLeadToTheOneAboveIt) {
  EXPECT_EQ(FolderForBox(PathText("/home/Kůň/Hráč")), "/home/Kůň/Hráč");
  EXPECT_EQ(FolderForBox(PathText("/home/Kůň/Hr\xE1\xE8")), "/home/Kůň");
  EXPECT_EQ(FolderForBox(PathText("/home/K\xF9\xF2/Players/Ada")), "/home");
}

}  // namespace
}  // namespace zorik
