#include <QLineEdit>

#include "data/Files.h"
#include "data/Result.h"
#include "editors/Dialogs.h"
#include "editors/EditorScreen.h"
#include "editors/PictureOffer.h"
#include "skin/CavePainter.h"
#include "skin/WholeCave.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

class PictureOfferTest : public testing::Test, public test::EditorScreen {
 protected:
  void TearDown() override { EXPECT_TRUE(dialogs.Done()) << dialogs.said.join(" | ").toStdString(); }

  std::string Path(const std::string& name) const { return folder.Path() + "/" + name; }
  QImage Stored(const std::string& name) const { return QImage(QString::fromStdString(Path(name))); }

  test::TempFolder folder{"pictures"};
  test::Dialogs dialogs;
  const test::Picture cave{"WWWWWW", "W1;D;W", "W;;;TW", "W.;;;W", "WWWWWW"};
};

TEST_F(PictureOfferTest, StoresTheCaveAsTheGameShowsItInTheChosenSize) {
  Open(cave, {.colouring = 11, .name = "Jama"});
  dialogs.Type(Path("a"));
  Action("mnuPicture(26)").trigger();
  const QImage stored = Stored("a.png");
  ASSERT_EQ(stored.size(), QSize(6 * 26, 5 * 26));
  const auto run = std::make_unique<Hra>();
  StartRun(*run, {}, window->Model().Cave(), RunKind::Practice);
  CavePainter painter(skin.Places());
  EXPECT_EQ(stored.convertToFormat(QImage::Format_RGB32),
            WholeCave(painter, *run, 26).convertToFormat(QImage::Format_RGB32));
  dialogs.Type(Path("b.png"));
  Action("mnuPicture(80)").trigger();
  EXPECT_EQ(Stored("b.png").size(), QSize(6 * 80, 5 * 80));
}

TEST_F(PictureOfferTest, StoresTheCaveAsItIsDrawnByNow) {
  Open(cave);
  dialogs.Type(Path("a"));
  Action("mnuPicture(16)").trigger();
  Click(2, 3);
  dialogs.Type(Path("b"));
  Action("mnuPicture(16)").trigger();
  const QImage before = Stored("a.png"), after = Stored("b.png");
  EXPECT_NE(before.copy(32, 48, 16, 16), after.copy(32, 48, 16, 16));
  EXPECT_EQ(before.copy(64, 0, 16, 16), after.copy(64, 0, 16, 16));
}

TEST_F(PictureOfferTest, ProposesTheCavesNameAndTellsTheChosenSize) {
  Open(cave, {.name = "Jama/1: co?"});
  dialogs.Then([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Uložit jako obrázek s políčky 16 × 16");
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "Jama1 co.png");
    dialog.close();
  });
  Action("mnuPicture(16)").trigger();
}

TEST_F(PictureOfferTest, TellsWhatCannotBeStored) {
  Open(cave);
  dialogs.Type(Path("nowhere/a.png")).Press("ok");
  OfferPicture(skin, nullptr, "Obrázek", "a", QImage());
  EXPECT_FALSE(std::filesystem::exists(Path("nowhere")));
}

TEST_F(PictureOfferTest, TellsWhyItCannotBeStored) {
  Open(cave);
  dialogs.Type(Path("nowhere/a.png")).Press("ok");
  Action("mnuPicture(16)").trigger();
  EXPECT_TRUE(dialogs.Last().endsWith(" Taková složka neexistuje.")) << dialogs.Last().toStdString();
}

TEST_F(PictureOfferTest, WritesOverNothingWithoutAQuestion) {
  Open(cave);
  ASSERT_TRUE(WriteWhole(Path("a.png"), "mine"));
  dialogs.Type(Path("a.png")).Press("no").Cancel();
  Action("mnuPicture(16)").trigger();
  EXPECT_EQ(*ReadWhole(Path("a.png")), "mine");
}

}  // namespace
}  // namespace zorik
