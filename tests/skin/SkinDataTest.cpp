#include <gtest/gtest.h>

#include <vector>

#include "SkinFolder.h"
#include "skin/SkinData.h"

namespace zorik {
namespace {

class SkinDataTest : public test::SkinFolder {
 protected:
  SkinDataTest() {
    data_.SetFault([this](const std::string& key, const std::string& file) {
      faults_.push_back(key + " in " + Within(file));
    });
  }

  void Load(const std::string& skin = "Mine") {
    places_.Skin = skin;
    data_.LoadSkinData(places_);
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

TEST_F(SkinDataTest, ASectionGoesOnInTheNextFileThatExists) {
  Touch("Default/Menu/skindata.txt", "score:\r\nimage=score\r\n");
  Touch("Mine/Game/skindata.txt", "width=5\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("score.width"), 5);
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
  Touch("Default/Menu/skindata.txt", "s:\r\nLeft=wide\r\n");
  Touch("Mine/Game/skindata.txt", "s:\r\ncolor=GGGGGG\r\n");
  Load();
  EXPECT_EQ(data_.SkinInt("s.LEFT"), -1);
  EXPECT_EQ(data_.SkinColor("s.color"), 0U);
  EXPECT_EQ(faults_, (std::vector<std::string>{"s.left in Default/Menu/skindata.txt",
                                               "s.color in Mine/Game/skindata.txt"}));
}

TEST_F(SkinDataTest, AValueThatDoesNotParseIsAbsentWhenNobodyListens) {
  Touch("Mine/Menu/skindata.txt", "a=wide\r\n");
  SkinData data;
  places_.Skin = "Mine";
  data.LoadSkinData(places_);
  EXPECT_EQ(data.SkinInt("a"), -1);
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
  EXPECT_EQ(questions_[0],
            "Loading skin picture '" + places_.SkinsPath + "/Mine/menu\\palm' failed. Try again?");
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
  EXPECT_EQ(questions_, std::vector<std::string>{"Loading data file 'menu\\catdata' failed. Try again?"});
}

}  // namespace
}  // namespace zorik
