// What lies over what, and beside what.
#include "screens/HraScreen.h"
#include "screens/PostScreen.h"

namespace zorik {
namespace {

using test::Wait;

class HraWindowEdges : public test::HraScreen {};

TEST_F(HraWindowEdges, AFlashCoversTheMessageToo) {
  Open({"WWWWWW", "W1.D.W", "WWWWWW"}, {.needed = 1});
  ASSERT_TRUE(window->Message().isVisible());
  auto* const flash = window->findChild<QWidget*>("pctBlesk");
  QTest::keyPress(window.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return flash->isVisible(); }));
  ASSERT_TRUE(window->Message().isVisible());
  const QObjectList upwards = window->children();
  EXPECT_GT(upwards.indexOf(flash), upwards.indexOf(const_cast<MessageStrip*>(&window->Message())));
}

// The selection screen: what stands beside what.
class SelectEdges : public testing::Test, public test::PostScreen {
 protected:
  // Opens the selection with these lines behind those of the skin.
  void OpenWith(const std::string& lines) {
    const std::string file = folder.Root() + "/Skins/Default/Menu/skindata.txt";
    ASSERT_TRUE(WriteWhole(file, *ReadWhole(file) + lines));
    ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
    Caves(2);
    Open();
  }
};

TEST_F(SelectEdges, ADescriptionEndsAboveWhatComesNextBelowItAndNotAtWhatStandsBesideIt) {
  OpenWith(
      "\r\nselect:\r\ncolldescription.top=60\r\ncollauthor.top=60\r\ncaves.top=128\r\n"
      "cavedescription.top=200\r\nbonus.top=200\r\npreview.top=400\r\nrecord.top=300\r\n");
  EXPECT_EQ(Label("lblDescription").geometry().top(), 60);
  EXPECT_EQ(Label("lblDescription").height(), 128 - 60);
  EXPECT_EQ(Label("lblCaveDescription").geometry().top(), 200);
  EXPECT_EQ(Label("lblCaveDescription").height(), 300 - 200);
}

}  // namespace
}  // namespace zorik
