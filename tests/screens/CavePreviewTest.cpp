#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>

#include "screens/CavePreview.h"
#include "screens/PaintedParts.h"
#include "screens/PostList.h"

namespace zorik {
namespace {

constexpr int kPatience = 5000;  // milliseconds

class CavePreviewTest : public test::PostList {
 protected:
  CavePreviewTest() {
    Paint("Skins/error.bmp", Qt::magenta);
    Paint("Skins/Default/Game/Space.bmp", Qt::black);
    Paint("Skins/Default/Game/Steel.bmp", kSteel);
    Paint("Skins/Default/Game/Finish.bmp", kSteel);
    Paint("Skins/Default/Game/Dog.bmp", kDog);
  }

  void Paint(const std::string& path, QColor colour) const {
    QImage image(80, 80, QImage::Format_RGB32);
    image.fill(colour);
    std::filesystem::create_directories(std::filesystem::path(folder.Root() + "/" + path).parent_path());
    ASSERT_TRUE(image.save(QString::fromStdString(folder.Root() + "/" + path)));
  }

  CavePreview& Preview() const { return *window->findChild<CavePreview*>(); }
  QString Facts() const { return Text("previewFacts"); }

  // Puts the record of the cave's win, by its one step, into the player's folder.
  void Win(int number) {
    Hra run;
    run.CollectionName = "Sada";
    run.PlayerName = test::Bytes("Žofie");
    ASSERT_TRUE(PaintCave(run, caves[static_cast<std::size_t>(number - 1)] + "---01", RunKind::Play));
    test::StepToWin(run);
    ticks = run.Elapsed;
    ASSERT_TRUE(WriteWhole(RecordPath(number), SaveRecord(run, 50)));
  }

  bool WaitUntilDrawn() const {
    return QTest::qWaitFor([this] { return Preview().IsDrawn(); }, kPatience);
  }
  QImage Seen() const { return Preview().grab().toImage(); }

  int ticks = 0;  // of the win
  const QColor kSteel{0x40, 0x60, 0x80}, kDog{0xF0, 0xF0, 0x20};
};

// The cave is 5 x 3 cells: in 310 x 120 pixels a cell has 40, and the whole of it begins 55 from the left.
TEST_F(CavePreviewTest, ShowsTheChosenCaveAsItBegins) {
  Caves(2);
  Open();
  EXPECT_EQ(Preview().geometry(), QRect(422, 266, 310, 138));
  EXPECT_EQ(Facts(), "5 × 3 · drahokamů: 0 · čas: 50 s");
  ASSERT_TRUE(WaitUntilDrawn());
  const QImage seen = Seen();
  EXPECT_EQ(seen.pixelColor(155, 10), kSteel);
  EXPECT_EQ(seen.pixelColor(155 - 40, 60), kDog);
  EXPECT_EQ(seen.pixelColor(155 - 2 * 40, 60), kSteel);
  EXPECT_EQ(seen.pixelColor(20, 60), skin.Colour("select.preview.color"));
  EXPECT_EQ(seen.pixelColor(54, 60), skin.Colour("select.preview.color"));
  EXPECT_EQ(seen.pixelColor(55, 60), kSteel);
  EXPECT_EQ(seen.pixelColor(254, 60), kSteel);
  EXPECT_EQ(seen.pixelColor(255, 60), skin.Colour("select.preview.color"));
  EXPECT_EQ(seen.pixelColor(155, 0), kSteel);
  EXPECT_EQ(seen.pixelColor(155, 119), kSteel);
  EXPECT_EQ(seen.pixelColor(60, 120), skin.Colour("select.preview.color")) << "beside the facts";
}

TEST_F(CavePreviewTest, ShowsALockForAClosedCaveAndNothingOfIt) {
  Caves(3);
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  Press(Qt::Key_Down);
  EXPECT_TRUE(Preview().IsDrawn());
  EXPECT_EQ(Facts(), "");
  const QImage seen = Seen();
  EXPECT_EQ(seen.pixelColor(155, 69 + 20), skin.Colour("select.preview.textcolor"));
  for (int x = 0; x < seen.width(); ++x) EXPECT_NE(seen.pixelColor(x, 60), kSteel);
}

TEST_F(CavePreviewTest, WaitsUntilNobodyGoesOn) {
  Caves(50);
  for (int i = 1; i <= 50; ++i) Record(i, 10);
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  for (int i = 2; i <= 50; ++i) {
    Press(Qt::Key_Down);
    EXPECT_FALSE(Preview().IsDrawn()) << i;
    EXPECT_EQ(Seen().pixelColor(155 - 40, 60), skin.Colour("select.preview.color")) << i;
  }
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_EQ(Seen().pixelColor(155 - 40, 60), kDog);
}

TEST_F(CavePreviewTest, KeepsWhatItHasDrawn) {
  Caves(2);
  Record(1, 10);
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  Press(Qt::Key_Down);
  ASSERT_TRUE(WaitUntilDrawn());
  Press(Qt::Key_Up);
  EXPECT_TRUE(Preview().IsDrawn());
  EXPECT_EQ(Seen().pixelColor(155 - 40, 60), kDog);
}

TEST_F(CavePreviewTest, TellsTheTimeOfTheRecordOnceTheCaveIsWon) {
  Caves(2);
  Win(1);
  ASSERT_EQ(ticks, 1);
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_EQ(Facts(), "5 × 3 · drahokamů: 0 · čas: 50 s · nejlépe 0,1 s");
}

TEST_F(CavePreviewTest, TellsNoTimeOfAWinThatIsNotStored) {
  Caves(2);
  Open();
  Prosel();
  Press(Qt::Key_Up);
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_EQ(Facts(), "5 × 3 · drahokamů: 0 · čas: 50 s");
}

TEST_F(CavePreviewTest, TellsNoTimeOfARecordThatDoesNotWin) {
  Caves(1);
  Record(1, 10);  // its only tick holds no step
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_EQ(Facts(), "5 × 3 · drahokamů: 0 · čas: 50 s");
}

// The dog takes a gem and goes into the finish, but the line of the first tick lacks the chance that a step
// asks for.
TEST_F(CavePreviewTest, TellsNoTimeOfADamagedRecordThatWinsAllTheSame) {
  Caves(1);
  const test::Picture picture{"WWWWW", "W1DTW", "WWWWW"};
  const test::Numbers numbers{.time = 50, .needed = 0, .name = "c1"};
  EditedCollection collection;
  collection.Name = "Sada";
  collection.CaveList = {test::CaveTextOf(picture, numbers)};
  Chance decoration;
  folder.File("Caves/a.zk", *BuildCollection(collection, decoration));
  const test::RecordTick first{.before = {1}, .direction = 39};
  const test::RecordTick last{.before = {1}, .direction = 39, .after = {1}};
  const std::string lines = MovesOf(test::RecordOf(picture, {first, last}, numbers));
  const std::string head = BuildRecordHead("Sada", 10, test::Bytes("Žofie"), decoration);
  const std::string cave = ScrambleText(collection.CaveList[0] + "---01", decoration);
  ASSERT_TRUE(WriteWhole(RecordPath(1), head + cave + "\r\n" + lines));
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_EQ(Facts(), "5 × 3 · drahokamů: 0 · čas: 50 s");
}

TEST_F(CavePreviewTest, IsInTheLanguageOfTheSkin) {
  Caves(1);
  Win(1);
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins", "English"}));
  Open();
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_EQ(Facts(), "5 × 3 · gems: 0 · time: 50 s · best 0.1 s");
}

TEST_F(CavePreviewTest, IsThereOnlyWhereASkinWithItsOwnPictureAsksForIt) {
  Caves(1);
  Paint("Skins/Own/Menu/select.bmp", Qt::blue);
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins", "Own"}));
  Open();
  EXPECT_FALSE(Preview().isVisible());
  folder.File("Skins/Own/Menu/skindata.txt", "select:\npreview.left=20\n");
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins", "Own"}));
  window->SkinIt();
  EXPECT_TRUE(Preview().isVisible());
  EXPECT_EQ(Preview().geometry(), QRect(20, 266, 310, 138));
  folder.File("Skins/Own/Menu/skindata.txt", "select:\npreview.left=-1\n");
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins", "Own"}));
  window->SkinIt();
  EXPECT_FALSE(Preview().isVisible());
}

// A won record that lies where that of a changed cave would does not count for it.
TEST_F(CavePreviewTest, TellsNoTimeOfARecordOfAnotherCaveInItsPlace) {
  Collection({"c1", "c2"});
  Win(1);
  const std::string other = *ReadWhole(RecordPath(1));
  ASSERT_TRUE(WriteWhole(RecordPath(2), other));
  Open();
  ClickRow(2);
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_FALSE(Shown("replay"));
  EXPECT_FALSE(Facts().contains("nejlépe")) << Facts().toStdString();
}

// Nothing else has to happen for it to be seen.
TEST_F(CavePreviewTest, IsPaintedAsSoonAsItIsDrawnAndWhenAnotherCaveIsChosen) {
  Caves(2);
  Open();
  QCoreApplication::processEvents();
  ASSERT_FALSE(Preview().IsDrawn());
  test::PaintedParts parts;
  parts.Watch(Preview());
  const QPoint middle = Preview().rect().center();
  const auto painted = [&] {
    return QTest::qWaitFor([&] { return parts.Take().contains(middle); }, kPatience);
  };
  ASSERT_TRUE(WaitUntilDrawn());
  EXPECT_TRUE(painted());
  ClickRow(2);
  EXPECT_TRUE(painted()) << "the lock";
  ClickRow(1);
  EXPECT_TRUE(painted()) << "the cave again, which is known";
}

// From edge to edge in one colour, with round corners, and with the cave's numbers in the middle of its foot.
TEST_F(CavePreviewTest, IsARoundPlateWithTheFactsAtItsFoot) {
  Caves(2);
  Open();
  const QRect all = Preview().rect();
  EXPECT_EQ(Label("previewFacts").geometry(), QRect(0, all.height() - 18, all.width(), 18));
  ClickRow(2);
  QImage seen(all.size(), QImage::Format_ARGB32);
  seen.fill(Qt::transparent);
  Preview().render(&seen, {}, {}, QWidget::DrawChildren);
  const QColor ground = skin.Colour("select.preview.color");
  for (int x = 8; x < all.width() - 8; ++x) {
    EXPECT_EQ(seen.pixelColor(x, 0), ground) << x;
    EXPECT_EQ(seen.pixelColor(x, all.bottom()), ground) << x;
  }
  for (int y = 8; y < all.height() - 8; ++y) {
    EXPECT_EQ(seen.pixelColor(0, y), ground) << y;
    EXPECT_EQ(seen.pixelColor(all.right(), y), ground) << y;
  }
  for (const QPoint corner : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()})
    EXPECT_LT(seen.pixelColor(corner).alpha(), 64);
}

TEST_F(CavePreviewTest, HasItsLockInTheMiddleWithAHoleInTheShackle) {
  Caves(2);
  Open();
  ClickRow(2);
  const QImage seen = Seen();
  const QColor ink = skin.Colour("select.preview.textcolor");
  const QColor ground = skin.Colour("select.preview.color");
  QRegion lock;
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 8; x < seen.width() - 8; ++x) {
      EXPECT_NEAR(seen.pixelColor(x, y).green(), seen.pixelColor(seen.width() - 1 - x, y).green(), 12);
      if (seen.pixelColor(x, y) != ground) lock += QRect(x, y, 1, 1);
    }
  }
  const QRect box = lock.boundingRect();
  EXPECT_NEAR(box.center().x(), seen.width() / 2, 1);
  EXPECT_NEAR(box.center().y(), seen.height() / 2, seen.height() / 20);
  EXPECT_NEAR(box.height(), seen.height() * 6 / 10, seen.height() / 20);
  EXPECT_LT(box.width(), box.height()) << "it is higher than wide";
  const auto at = [&](int tenth) {
    return seen.pixelColor(box.center().x(), box.top() + box.height() * tenth / 10);
  };
  EXPECT_EQ(at(1), ink);
  EXPECT_EQ(at(3), ground);
  EXPECT_EQ(at(4), ground) << "the hole reaches down to the body";
  for (int tenth = 5; tenth < 10; ++tenth) EXPECT_EQ(at(tenth), ink) << tenth;
}

// It needs a place in the window, and room for a picture above its line of facts.
TEST_F(CavePreviewTest, IsThereWhereASkinGivesItAnyRoom) {
  Caves(1);
  Open();
  const std::vector<std::pair<std::string, bool>> rooms{{"left=0", true},
                                                        {"left=20\npreview.top=0", true},
                                                        {"left=20\npreview.width=1", true},
                                                        {"left=20\npreview.height=19", true},
                                                        {"left=20\npreview.height=18", false}};
  for (const auto& [room, there] : rooms) {
    folder.File("Skins/Own/Menu/skindata.txt", "select:\npreview." + room + "\n");
    EXPECT_TRUE(skin.Apply({folder.Root() + "/Skins", "Own"})) << room;
    window->SkinIt();
    EXPECT_EQ(Preview().isVisible(), there) << room;
  }
}

}  // namespace
}  // namespace zorik
