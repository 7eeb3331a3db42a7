#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "SkinFolder.h"
#include "skin/SkinData.h"

namespace zorik {
namespace {

class SkinDataTest : public test::SkinFolder {
 protected:
  void Load(const std::string& skin = "Mine") {
    places_.Skin = skin;
    for (const SkinFlaw& flaw : data_.LoadSkinData(places_)) {
      auto& keys = flaw.kind == SkinFlaw::Kind::NotUnderstood ? faults_ : others_;
      keys.push_back(flaw.what + " in " + (flaw.file.empty() ? "" : Within(flaw.file)));
    }
  }

  // Answers a question with no after so many times yes.
  std::function<bool(const std::string&)> Retry(int times) {
    return [this, times](const std::string& question) {
      questions_.push_back(question);
      return static_cast<int>(questions_.size()) <= times;
    };
  }

  SkinData data_;
  std::vector<std::string> faults_;
  std::vector<std::string> others_;
  std::vector<std::string> questions_;
};

TEST_F(SkinDataTest, TheSkinsGameFolderOverridesAllOthers) {
  Touch("Default/Menu/skindata.txt", "s:\r\na=1\r\nb=1\r\nc=1\r\nd=1\r\n");
  Touch("Default/Game/skindata.txt", "s:\r\nb=2\r\nc=2\r\nd=2\r\n");
  Touch("Mine/Menu/skindata.txt", "s:\r\nc=3\r\nd=3\r\n");
  Touch("Mine/Game/skindata.txt", "s:\r\nd=4\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("s.a"), 1);
  EXPECT_EQ(data_.SkinInt("s.b"), 2);
  EXPECT_EQ(data_.SkinInt("s.c"), 3);
  EXPECT_EQ(data_.SkinInt("s.d"), 4);
}

TEST_F(SkinDataTest, KnowsWhatTheSkinItselfSays) {
  Touch("Default/Menu/skindata.txt", "s:\r\na=1\r\nb=1\r\n");
  Touch("Default/Game/skindata.txt", "s:\r\nc=2\r\n");
  Touch("Mine/Menu/skindata.txt", "s:\r\nb=3\r\n");
  Touch("Mine/Game/skindata.txt", "s:\r\nd=4\r\n");
  Load();
  for (const char* key : {"s.b", "S.D"}) EXPECT_TRUE(data_.IsOwn(key)) << key;
  for (const char* key : {"s.a", "s.c", "s.e"}) EXPECT_FALSE(data_.IsOwn(key)) << key;
  Load("Default");
  for (const char* key : {"s.a", "s.b", "s.c"}) EXPECT_TRUE(data_.IsOwn(key)) << key;
}

TEST_F(SkinDataTest, ASectionGoesOnInTheNextFileThatExists) {
  Touch("Default/Menu/skindata.txt", "my:\r\nimage=score\r\n");
  Touch("Mine/Game/skindata.txt", "width=5\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("my.width"), 5);
}

TEST_F(SkinDataTest, WithoutAnyFileAllKeysAreAbsent) {
  Load();
  EXPECT_EQ(data_.SkinText("a"), "");
  EXPECT_EQ(data_.SkinInt("a"), -1);
  EXPECT_EQ(data_.SkinColor("a"), 0U);
  EXPECT_EQ(data_.SkinAlign("a"), SkinData::Align::Left);
  EXPECT_TRUE(faults_.empty());
}

TEST_F(SkinDataTest, TheDefaultSkinReadTwiceSaysTheSame) {
  Touch("Default/Menu/skindata.txt", "s:\r\na=1\r\nb=text\r\n");
  Touch("Default/Game/skindata.txt", "game:\r\nc=3\r\n");
  Load("Default");
  EXPECT_EQ(data_.SkinInt("s.a"), 1);
  EXPECT_EQ(data_.SkinText("s.b"), "text");
  EXPECT_EQ(data_.SkinInt("game.c"), 3);
}

TEST_F(SkinDataTest, LetterCaseOfFoldersAndKeysPlaysNoPart) {
  Touch("default/MENU/SkinData.TXT", "START:\r\nPalm.Image=palm\r\n");
  Load();
  EXPECT_EQ(data_.SkinText(" start.palm.IMAGE "), "palm");
}

TEST_F(SkinDataTest, LoadingAgainForgetsTheLastSkin) {
  Touch("Mine/Menu/skindata.txt", "s:\r\na=1\r\n");
  Load();
  Load("Other");
  EXPECT_EQ(data_.SkinInt("s.a"), -1);
}

TEST_F(SkinDataTest, LoadingAgainStartsWithoutASection) {
  Touch("Mine/Menu/skindata.txt", "a=1\r\nlast:\r\n");
  Load();
  Load();
  EXPECT_EQ(data_.SkinInt("a"), 1);
}

TEST_F(SkinDataTest, ATextBreaksItsLinesAtANumberSignWithALoneCarriageReturn) {
  Touch("Mine/Menu/skindata.txt", "a=one#two##three\r\n");
  Load();
  EXPECT_EQ(data_.SkinText("a"), "one\rtwo\r\rthree");
}

TEST_F(SkinDataTest, AnUnknownTextIsEmptyAndAnUnknownNumberMinusOne) {
  Touch("Mine/Menu/skindata.txt", "a=1\r\n");
  Load();
  EXPECT_EQ(data_.SkinText("b"), "");
  EXPECT_EQ(data_.SkinInt("b"), -1);
}

TEST_F(SkinDataTest, AColourIsSixDigitsWithRedFirst) {
  Touch("Mine/Menu/skindata.txt", "a=FF0000\r\nb=ff00\r\nc=1A2030\r\n");
  Load();
  EXPECT_EQ(data_.SkinColor("a"), 255U);
  EXPECT_EQ(data_.SkinColor("b"), 0U);
  EXPECT_EQ(data_.SkinColor("c"), 0x30201AU);
  EXPECT_TRUE(faults_.empty());
}

TEST_F(SkinDataTest, AnAlignmentGoesByItsFirstSmallLetter) {
  Touch("Mine/Menu/skindata.txt", "l=left\r\nr=right\r\nc=center\r\nR2=Right\r\nx=middle\r\ne=\r\n");
  Load();
  EXPECT_EQ(data_.SkinAlign("l"), SkinData::Align::Left);
  EXPECT_EQ(data_.SkinAlign("r"), SkinData::Align::Right);
  EXPECT_EQ(data_.SkinAlign("c"), SkinData::Align::Centre);
  EXPECT_EQ(data_.SkinAlign("R2"), SkinData::Align::Left);
  EXPECT_EQ(data_.SkinAlign("x"), SkinData::Align::Left);
  EXPECT_EQ(data_.SkinAlign("e"), SkinData::Align::Left);
  EXPECT_EQ(static_cast<int>(SkinData::Align::Right), 1);
  EXPECT_EQ(static_cast<int>(SkinData::Align::Centre), 2);
}

TEST_F(SkinDataTest, AValueThatDoesNotParseNamesItsKeyAndItsFile) {
  Touch("Default/Menu/skindata.txt", "start:\r\nClose.Left=wide\r\n");
  Touch("Mine/Game/skindata.txt", "dialog:\r\ncolor=GGGGGG\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("start.close.LEFT"), -1);
  EXPECT_EQ(data_.SkinColor("dialog.color"), 0U);
  EXPECT_EQ(faults_, (std::vector<std::string>{"start.close.left in Default/Menu/skindata.txt",
                                               "dialog.color in Mine/Game/skindata.txt"}));
}

TEST_F(SkinDataTest, AValueThatIsOverriddenOrThatNobodyReadsIsNoFault) {
  Touch("Default/Menu/skindata.txt", "start.close.left=wide\r\nmy.left=wide\r\nstart.close.text=12x\r\n");
  Touch("Mine/Menu/skindata.txt", "start.close.left=12\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("start.close.left"), 12);
  EXPECT_EQ(data_.SkinInt("my.left"), -1);
  EXPECT_TRUE(faults_.empty());
}

TEST_F(SkinDataTest, NumbersAreHeldToWhatAScreenCanShowAndNamed) {
  Touch("Mine/Menu/skindata.txt",
        "start.close.left=-32768\r\nstart.close.top=32767\r\nselect.width=0\r\nselect.height=32767\r\n"
        "start.caves.lines=32767\r\nstart.caves.border.size=-5\r\nstart.caves.width=0\r\n"
        "start.help.left=0\r\nstart.help.top=4096\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("start.close.left"), 0);
  EXPECT_EQ(data_.SkinInt("start.close.top"), 4096);
  EXPECT_EQ(data_.SkinInt("select.width"), 64) << "a window that can be seen";
  EXPECT_EQ(data_.SkinInt("select.height"), 4096);
  EXPECT_EQ(data_.SkinInt("start.caves.lines"), 300);
  EXPECT_EQ(data_.SkinInt("start.caves.border.size"), 0);
  EXPECT_EQ(data_.SkinInt("start.caves.width"), 1);
  EXPECT_TRUE(faults_.empty());
  const std::string file = " in Mine/Menu/skindata.txt";
  std::sort(others_.begin(), others_.end());
  EXPECT_EQ(others_, (std::vector<std::string>{"select.height" + file, "select.width" + file,
                                               "start.caves.border.size" + file, "start.caves.lines" + file,
                                               "start.caves.width" + file, "start.close.left" + file,
                                               "start.close.top" + file}));
}

TEST_F(SkinDataTest, MinusOneIsAbsentAndNoFlaw) {
  Touch("Mine/Menu/skindata.txt", "start.close.left=-1\r\nselect.width=-1\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("select.width"), -1);
  EXPECT_TRUE(others_.empty());
}

TEST_F(SkinDataTest, KeysThatFindNoRoomAreCounted) {
  std::string bytes;
  for (int i = 0; i < 2004; ++i) bytes += "k" + std::to_string(i) + "=1\r\n";
  Touch("Mine/Menu/skindata.txt", bytes);
  Load();
  EXPECT_EQ(others_, std::vector<std::string>{"3 in "});
}

TEST_F(SkinDataTest, EachFileIsThePlayersOwnOrElseTheInstallations) {
  places_.ShippedSkins = places_.SkinsPath + "/shipped";
  Touch("shipped/Default/Menu/skindata.txt", "a=1\r\nb=1\r\nc=1\r\nd=1\r\n");
  Touch("Default/Game/skindata.txt", "b=2\r\nc=2\r\nd=2\r\n");
  Touch("shipped/Mine/Menu/skindata.txt", "c=3\r\nd=3\r\n");
  Touch("Mine/Menu/skindata.txt", "d=4\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("a"), 1);
  EXPECT_EQ(data_.SkinInt("b"), 2);
  EXPECT_EQ(data_.SkinInt("c"), 2) << "the same file of the installation gives way as a whole";
  EXPECT_EQ(data_.SkinInt("d"), 4);
}

TEST_F(SkinDataTest, AMenuPictureIsLookedForInAllFoldersOfTheSkinBeforeTheDefaultSkins) {
  places_.ShippedSkins = places_.SkinsPath + "/shipped";
  places_.Skin = "Mine";
  const auto found = [&] { return Within(SkinPicPath(places_, "menu\\palm", Retry(0))); };
  for (const char* const path : {"shipped/Default/Menu/palm.jpg", "Default/Menu/palm.bmp",
                                 "shipped/Mine/Menu/palm.jpg", "Mine/Menu/palm.gif"}) {
    Touch(path);
    EXPECT_EQ(found(), path);
  }
}

TEST_F(SkinDataTest, NoNameLeadsOutOfTheFoldersOfSkins) {
  std::filesystem::create_directories(At("skins"));
  Touch("secret.bmp");
  Touch("secret.txt", "a=1\r\n");
  places_.SkinsPath += "/skins";
  std::filesystem::create_directories(places_.SkinsPath + "/Default/Menu");
  EXPECT_EQ(SkinPicPath(places_, "menu\\../../../secret", Retry(0)), "");
  EXPECT_EQ(SkinPicPath(places_, "menu\\..\\..\\..\\secret", Retry(0)), "");
  places_.Skin = "../..";
  EXPECT_EQ(SkinPicPath(places_, "secret", Retry(0)), "");
  places_.SkinsPath.erase(places_.SkinsPath.rfind('/'));
}

TEST_F(SkinDataTest, ASkinWhoseNameIsNoFoldersIsTheDefaultSkin) {
  places_.ShippedSkins = At("shipped");
  const std::vector<std::string> plain = FoldersOf(places_, "Default", "Menu");
  for (const char* const name : {"", ".", "..", "a/b", "a\\b", "../..", "/"})
    EXPECT_EQ(FoldersOf(places_, name, "Menu"), plain) << name;
  for (const char* const name : {"...", "..a", "a b", "Default"})
    EXPECT_EQ(FoldersOf(places_, name, "Menu").front(), At(std::string(name) + "/Menu"));
}

TEST_F(SkinDataTest, AFolderOfSkinsThatCameWithTheGameIsSearchedOnce) {
  EXPECT_EQ(SkinRoots(places_), std::vector<std::string>{places_.SkinsPath});
  places_.ShippedSkins = places_.SkinsPath;
  EXPECT_EQ(SkinRoots(places_), std::vector<std::string>{places_.SkinsPath});
  places_.ShippedSkins = At("shipped");
  EXPECT_EQ(SkinRoots(places_), (std::vector<std::string>{places_.SkinsPath, At("shipped")}));
}

TEST_F(SkinDataTest, APictureOfNoUseIsPassedOver) {
  places_.Skin = "Mine";
  Touch("Mine/Menu/palm.jpg", "broken");
  Touch("Default/Menu/palm.bmp", "good");
  const auto usable = [](const std::string& path) { return !path.ends_with("Mine/Menu/palm.jpg"); };
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", Retry(0), usable)), "Default/Menu/palm.bmp");
  EXPECT_TRUE(questions_.empty());
  EXPECT_EQ(SkinPicPath(places_, "menu\\palm", Retry(0), [](const std::string&) { return false; }), "");
  EXPECT_EQ(questions_.size(), 1U) << "like one that is missing";
}

TEST_F(SkinDataTest, AMenuPictureIsJpgBeforeBmpBeforeGif) {
  places_.Skin = "Mine";
  Touch("Mine/Menu/palm.gif");
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", Retry(0))), "Mine/Menu/palm.gif");
  Touch("Mine/Menu/palm.bmp");
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", Retry(0))), "Mine/Menu/palm.bmp");
  Touch("Mine/Menu/palm.jpg");
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", Retry(0))), "Mine/Menu/palm.jpg");
  EXPECT_TRUE(questions_.empty());
}

TEST_F(SkinDataTest, AMenuPictureOfTheSkinGoesBeforeAnyOfTheDefaultSkin) {
  places_.Skin = "Mine";
  Touch("Default/Menu/palm.jpg");
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", Retry(0))), "Default/Menu/palm.jpg");
  Touch("Mine/Menu/palm.gif");
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", Retry(0))), "Mine/Menu/palm.gif");
}

TEST_F(SkinDataTest, AFolderIsNoMenuPicture) {
  std::filesystem::create_directories(At("Default/Menu/palm.bmp"));
  EXPECT_EQ(SkinPicPath(places_, "menu\\palm", Retry(0)), "");
}

TEST_F(SkinDataTest, AMissingMenuPictureIsAskedForUntilThePlayerGivesUp) {
  places_.Skin = "Mine";
  EXPECT_EQ(SkinPicPath(places_, "menu\\palm", Retry(2)), "");
  ASSERT_EQ(questions_.size(), 3U);
  EXPECT_EQ(questions_[0], places_.SkinsPath + "/Mine/menu\\palm");
}

TEST_F(SkinDataTest, AMenuPictureThatComesMeanwhileIsFoundOnRetry) {
  const auto retry = [this](const std::string&) {
    Touch("Default/Menu/palm.bmp");
    return true;
  };
  EXPECT_EQ(Within(SkinPicPath(places_, "menu\\palm", retry)), "Default/Menu/palm.bmp");
}

TEST_F(SkinDataTest, ATextFileOfTheSkinGoesBeforeTheDefaultSkins) {
  places_.Skin = "Mine";
  Touch("Default/Menu/catdata.txt");
  EXPECT_EQ(Within(SkinDataPath(places_, "menu\\catdata", Retry(0))), "Default/Menu/catdata.txt");
  Touch("Mine/Menu/catdata.txt");
  EXPECT_EQ(Within(SkinDataPath(places_, "menu\\catdata", Retry(0))), "Mine/Menu/catdata.txt");
}

TEST_F(SkinDataTest, AMissingTextFileIsAskedForByItsName) {
  EXPECT_EQ(SkinDataPath(places_, "menu\\catdata", Retry(0)), "");
  EXPECT_EQ(questions_, std::vector<std::string>{"menu\\catdata"});
}

}  // namespace
}  // namespace zorik
