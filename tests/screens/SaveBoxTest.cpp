#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>

#include "screens/DialogScript.h"
#include "screens/SaveBox.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

using test::DialogScript;

// The box for a new file, in a folder of its own.
class SaveBox : public testing::Test {
 protected:
  QString At(const QString& name) const { return QString::fromStdString(folder_.Root()) + "/Caves/" + name; }

  DialogScript::Act Choose(const QString& name) const {
    return [path = At(name)](QWidget& dialog) {
      auto* const field = dialog.findChild<QLineEdit*>("fileNameEdit");
      ASSERT_NE(field, nullptr) << dialog.windowTitle().toStdString();
      field->setText(path);
      static_cast<QDialog&>(dialog).accept();
    };
  }

  static DialogScript::Act Close() {
    return [](QWidget& dialog) { dialog.close(); };
  }

  QString Asked(std::initializer_list<DialogScript::Act> acts) {
    const DialogScript script(acts);
    return AskForNewFile(skin_, nullptr, {"Uložit", "Sada komnat", "zk", At("moje.zk")});
  }

  test::Folder folder_;
  Skin skin_;
};

TEST_F(SaveBox, GivesANameItsEndingUnlessItHasThat) {
  EXPECT_EQ(Asked({Choose("nová")}), At("nová.zk"));
  EXPECT_EQ(Asked({Choose("nová.zk")}), At("nová.zk"));
  EXPECT_EQ(Asked({Choose("NOVÁ.ZK")}), At("NOVÁ.ZK"));
  EXPECT_EQ(Asked({Choose("nová.zkr")}), At("nová.zkr.zk"));
}

TEST_F(SaveBox, TakesAFileThatIsThereOnlyAfterAQuestion) {
  folder_.File("Caves/stará.zk", "x");
  EXPECT_EQ(Asked({Choose("stará"), test::Press(Qt::Key_Y)}), At("stará.zk"));
  EXPECT_EQ(Asked({Choose("stará.zk"), test::Press(Qt::Key_N), Close()}), "") << "the box is there again";
}

TEST_F(SaveBox, MayBeCancelled) {
  EXPECT_EQ(Asked({Close()}), "");
}

}  // namespace
}  // namespace zorik
