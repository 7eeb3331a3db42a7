#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "data/Result.h"
#include "skin/PictureFolder.h"
#include "support/Scene.h"
#include "tools/Tool.h"
#include "zkpaint/Painting.h"

namespace zorik::test {
namespace {

namespace fs = std::filesystem;

// A home of the game with a skin of one colour, and the painter with it.
class Painting : public ::testing::Test {
 protected:
  Painting() {
    fs::create_directories(folder.In("home/Skins/Default/Game"));
    const QImage image = Plain(qRgb(0, 255, 0));
    for (const char* name : {"error", "Default/Game/Space"})
      EXPECT_TRUE(image.save(QString::fromStdString(folder.In("home/Skins/") + name + ".bmp")));
    setenv("ZORIK_HOME", folder.In("home").c_str(), 1);
  }
  ~Painting() override { unsetenv("ZORIK_HOME"); }

  static Told Zkpaint(const std::vector<std::string>& arguments) {
    std::istringstream in;
    std::ostringstream out, err;
    Console console{in, out, err};
    const Exit exit = RunZkpaint(arguments, console);
    return {exit, out.str(), err.str()};
  }

  Told Render(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "picture");
    arguments.insert(arguments.end(), {"-o", picture});
    return Zkpaint(arguments);
  }

  QSize SizeOf() const { return QImage(QString::fromStdString(picture)).size(); }

  Folder folder;
  std::string picture = folder.In("out.png");
  std::string cave = folder.Write("cave", ShortCave());  // 6 x 3
};

TEST_F(Painting, HasCellsTimesPixels) {
  for (const int cell : {1, 24, 80}) {
    const Told told = Render({"--cell", std::to_string(cell), cave});
    ASSERT_EQ(told.exit, Exit::Fine) << told.err;
    EXPECT_EQ(SizeOf(), QSize(6 * cell, 3 * cell));
  }
}

TEST_F(Painting, TakesARecordForWhatItIs) {
  ASSERT_EQ(Render({folder.Write("any-name", ShortRecord())}).exit, Exit::Fine);
  EXPECT_EQ(SizeOf(), QSize(6 * 32, 3 * 32));
}

TEST_F(Painting, StaysAtTheEndOfARecord) {
  const std::string record = folder.Write("r.zkr", ShortRecord());
  ASSERT_EQ(Render({"--tick", "4", record}).exit, Exit::Fine);
  const std::string end = BytesOf(picture);
  ASSERT_EQ(Render({"--tick", "1000000", record}).exit, Exit::Fine);
  EXPECT_EQ(BytesOf(picture), end);
}

std::string ReadableCave(int width) {
  const std::string row(static_cast<std::size_t>(width), 'W');
  return "name: Test\ntime: 100\ngems: 1\npoints-before: 7\npoints-after: 20\nmagic-wall-time: 10\n"
         "amoeba-time: 90\ncolouring: 4\nslime: 0\ncells:\n| " +
         row + "\n| " + row + "\n";
}

TEST_F(Painting, ChoosesACaveOfACollection) {
  folder.Write("my/collection.txt", "name: sada\nauthor:\nmail:\ncave: 1.txt\ncave: 2.txt\n");
  folder.Write("my/1.txt", ReadableCave(5));
  folder.Write("my/2.txt", ReadableCave(9));
  const std::string texts = folder.In("my"), packed = folder.In("my.zk");
  ASSERT_EQ(Zktool({"pack", texts, packed}).exit, Exit::Fine);
  for (const std::string& path : {texts, packed}) {
    ASSERT_EQ(Render({"--cell", "10", "--cave", "2", path}).exit, Exit::Fine);
    EXPECT_EQ(SizeOf(), QSize(90, 20));
    const Told which = Render({path});
    EXPECT_EQ(which.exit, Exit::Usage);
    EXPECT_EQ(which.err, "zktool: usage: " + path + " holds 2 caves: say which by --cave N\n");
    EXPECT_EQ(Render({"--cave", "3", path}).exit, Exit::NoSuchCave);
  }
  ASSERT_EQ(Render({"--cell", "10", folder.In("my/2.txt")}).exit, Exit::Fine);
  EXPECT_EQ(SizeOf(), QSize(90, 20));
}

TEST_F(Painting, SaysWhatItCannotReadOrWrite) {
  EXPECT_EQ(Render({folder.In("none")}).exit, Exit::CannotRead);
  EXPECT_EQ(Render({folder.Write("empty", "")}).exit, Exit::BadCave);
  EXPECT_EQ(Render({folder.Write("rubbish", "rubbish")}).exit, Exit::BadCave);
  EXPECT_EQ(Render({folder.Write("rubbish.zk", "rubbish")}).exit, Exit::BadCollection);
  EXPECT_EQ(Render({folder.Write("large", CaveTextOf({std::string(101, '.')}))}).exit, Exit::BadCave);
  EXPECT_FALSE(fs::exists(picture));
  EXPECT_EQ(Zkpaint({"picture", "-o", folder.In("none/out.png"), cave}).exit, Exit::CannotWrite);
}

TEST_F(Painting, ReadsARecordCutAnywhere) {
  const std::string record = ShortRecord();
  for (std::size_t length = 0; length < record.size(); length += 7) {
    const Told told =
        Render({"--cell", "1", "--tick", "9", folder.Write("cut.zkr", record.substr(0, length))});
    EXPECT_TRUE(told.exit == Exit::Fine || told.exit == Exit::BadCave) << length << told.err;
    EXPECT_EQ(told.exit == Exit::Fine, told.err.empty());
  }
}

// A picture of the start, and one of each of the four ticks; 18 cells of three bytes a pixel.
TEST_F(Painting, WritesAPictureForEachTickOfAFilm) {
  const Told told = Zkpaint({"film", "--cell", "2", folder.Write("r.zkr", ShortRecord())});
  ASSERT_EQ(told.exit, Exit::Fine) << told.err;
  const std::string head = "P6\n12 6\n255\n";
  ASSERT_EQ(told.out.size(), 5 * (head.size() + 12 * 6 * 3));
  for (std::size_t i = 0; i < 5; ++i)
    EXPECT_EQ(told.out.substr(i * (head.size() + 12 * 6 * 3), head.size()), head);
}

// The folder of the skins that are found from that of a program, where nothing but those lie.
std::string FoundIn(const Folder& folder, const std::string& program, const std::string& skins) {
  fs::create_directories(folder.In(program));
  fs::create_directories(folder.In(skins + "/Default/Game"));
  const Needed<SkinPlaces> found = FindSkin(folder.In(program), "");
  return found ? found->SkinsPath : std::string();
}

TEST_F(Painting, LooksForTheSkinsWhereTheGameHasThem) {
  const std::vector<std::pair<std::string, std::string>> places{
      {"usr/games", "usr/share/games/zorik/Skins"},
      {"build/tools", "build/src/app/Skins"},
      {"zorik", "zorik/Skins"},
  };
  for (const auto& [program, skins] : places) {
    const Folder own;
    EXPECT_EQ(FoundIn(own, program, skins), own.In(skins));
  }
  EXPECT_EQ(FoundIn(folder, "usr/games", "usr/share/zorik/Skins"), "") << "no installation puts them there";
}

TEST_F(Painting, TakesThePlayersSkinsBeforeThoseOfTheGame) {
  const std::string program = folder.In("usr/games"), none = folder.In("none");
  fs::create_directories(program);
  EXPECT_EQ(FindSkin(program, "").Why().exit, Exit::CannotRead);
  EXPECT_EQ(FindSkin(program, none).Why().exit, Exit::CannotRead);
  fs::create_directories(folder.In("usr/share/games/zorik/Skins/Default/Game"));
  const Needed<SkinPlaces> own = FindSkin(program, none);
  ASSERT_TRUE(own);
  EXPECT_EQ(own->SkinsPath, none + "/Skins");
  EXPECT_EQ(own->ShippedSkins, folder.In("usr/share/games/zorik/Skins"));
}

TEST_F(Painting, IsCalledByZktoolAlone) {
  EXPECT_EQ(Zkpaint({}).exit, Exit::Usage);
  EXPECT_EQ(Zkpaint({"dance"}).exit, Exit::Usage);
  EXPECT_EQ(Zkpaint({"film", "-o", picture, cave}).exit, Exit::Usage);
  EXPECT_EQ(Zkpaint({"picture", cave}).exit, Exit::Usage);
}

}  // namespace
}  // namespace zorik::test
