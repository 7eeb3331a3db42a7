// The start screen where two things come together: keys that stay down, a question that is open, a folder
// that is gone.
#include <QFileDialog>

#include "screens/StartScreen.h"

namespace zorik {
namespace {

using test::DialogScript;
using test::Type;

class StartEdges : public test::StartScreen {
 protected:
  void SetUp() override {
    Coll("a.zk", "Alfa");
    Coll("b.zk", "Beta");
  }
};

TEST_F(StartEdges, NobodyIsAskedForWhereThereIsAPlayer) {
  Player("Adam");
  const DialogScript nothing = {};
  Load();
}

TEST_F(StartEdges, ANewPlayerIsAskedForOnceAtATime) {
  start_ = std::make_unique<FrmStart2>(skin_.Skin(), folder_.Paths(), settings_);
  start_->FrmLoad();  // which asks a moment later
  {
    const DialogScript script = {Type("Ada"),
                                 test::Press(Qt::Key_Return)};  // the name, and that it was added
    Key(Qt::Key_Insert);
    QTest::qWait(50);
  }
  EXPECT_EQ(Files("Players"), QStringList{"Ada"});
}

TEST_F(StartEdges, AKeyThatStaysDownOpensNothing) {
  Player("Adam");
  Load();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
    QApplication::sendEvent(start_.get(), &held);
  }
  EXPECT_EQ(opened_->count(), 0);
  Key(Qt::Key_Return);
  EXPECT_EQ(opened_->count(), 1);
}

TEST_F(StartEdges, AFingerIsDoubleClickedWithTheLeftButton) {
  Player("Adam");
  Load();
  auto& finger = Find<QWidget>("fingerPlay");
  const auto twice = [&finger](Qt::MouseButton button) {
    const QPointF where = test::FingerBox(0).center();
    QMouseEvent event(QEvent::MouseButtonDblClick, where, finger.mapToGlobal(where), button, button, {});
    QApplication::sendEvent(&finger, &event);
  };
  twice(Qt::RightButton);
  twice(Qt::MiddleButton);
  EXPECT_EQ(opened_->count(), 0);
  twice(Qt::LeftButton);
  EXPECT_EQ(opened_->count(), 1);
}

// The records of a player whose folder has gone are looked for where the others are: among those of test
// runs, which may have come since, or among those that came with the game.
TEST_F(StartEdges, RecordsOfNoPlayersFolderAreLookedForAmongTheOthers) {
  Player("Adam");
  Paths paths = folder_.Paths();
  paths.TestRecordsPath = folder_.Root() + "/Zkousky";
  start_ = std::make_unique<FrmStart2>(skin_.Skin(), paths, settings_);
  start_->FrmLoad();
  QTest::qWait(20);
  std::filesystem::remove(folder_.Root() + "/Players/Adam");
  Key(Qt::Key_2);
  const auto folderOfBox = [this] {
    QString shown;
    const DialogScript script = {[&shown](QWidget& dialog) {
      shown = dynamic_cast<QFileDialog&>(dialog).directory().path();
      dialog.close();
    }};
    Key(Qt::Key_Return);
    return shown;
  };
  EXPECT_EQ(folderOfBox(), At("Replays"));
  std::filesystem::create_directory(paths.TestRecordsPath);
  EXPECT_EQ(folderOfBox(), At("Zkousky"));
}

}  // namespace
}  // namespace zorik
