#include <gtest/gtest.h>

#include "data/Files.h"
#include "screens/TestSkin.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

using test::Strips;
using test::TestSkin;

// A language file whose text at each place is its number.
std::string Language(int places) {
  std::string bytes = "head\r\nhead\r\n";
  for (int i = 0; i < places; ++i) bytes += std::to_string(i) + "#\r\n";
  return bytes;
}

class SkinTest : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Data("dialog:\ncolor=102030\nok.image=ok\nno.image=nowhere\n");
    skin_.Picture("ok", Strips({Qt::red}, {4, 4}));
    skin_.File("cestina.txt", Language(200));
  }

  // Keeps the questions and answers the first ones with yes.
  void AnswerYes(std::size_t times) {
    skin_.Skin().SetRetry([this, times](const std::string& question) {
      questions_.push_back(question);
      return questions_.size() <= times;
    });
  }

  TestSkin skin_;
  std::vector<std::string> questions_;
};

TEST(NoSkin, HasNoTextsAndNoPictures) {
  Skin none;
  EXPECT_EQ(none.Text(99), "");
  EXPECT_EQ(none.Caption("settings.text", "Nastavení"), "Nastavení");
  EXPECT_EQ(none.Colour("dialog.color", Qt::green), QColor(Qt::green));
  EXPECT_TRUE(none.Picture("dialog.ok.image").isNull());
  EXPECT_TRUE(none.MenuPicture("ok").isNull());
}

TEST_F(SkinTest, ReadsItsTextsTableAndPictures) {
  skin_.Wear();
  EXPECT_EQ(skin_.Skin().Text(99), "99\r\n");
  EXPECT_EQ(skin_.Skin().Colour("dialog.color", Qt::green), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(skin_.Skin().Caption("dialog.ok.image", "other"), "ok");
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").pixelColor(2, 2), QColor(Qt::red));
}

TEST_F(SkinTest, TellsWhetherItsTextsAreComplete) {
  EXPECT_TRUE(skin_.Skin().Wear(skin_.Places()));
  skin_.File("cestina.txt", Language(199));
  EXPECT_FALSE(skin_.Skin().Wear(skin_.Places()));
  EXPECT_EQ(skin_.Skin().Text(198), "198\r\n");
  EXPECT_EQ(skin_.Skin().Text(199), "");
}

TEST_F(SkinTest, AsksOnceForAPictureThatIsNowhere) {
  AnswerYes(0);
  skin_.Wear();
  EXPECT_TRUE(questions_.empty());
  EXPECT_TRUE(skin_.Skin().Picture("dialog.no.image").isNull());
  EXPECT_TRUE(skin_.Skin().Picture("dialog.no.image").isNull());
  ASSERT_EQ(questions_.size(), 1U);
  EXPECT_NE(questions_.front().find("nowhere' failed. Try again?"), std::string::npos) << questions_.front();
}

TEST_F(SkinTest, LooksAgainWhenItIsToldTo) {
  skin_.Skin().SetRetry([this](const std::string&) {
    skin_.Picture("nowhere", Strips({Qt::blue}, {4, 4}));
    return true;
  });
  skin_.Wear();
  EXPECT_EQ(skin_.Skin().Picture("dialog.no.image").pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(SkinTest, AsksNothingWhileAQuestionIsOpen) {
  skin_.Skin().SetRetry([this](const std::string& question) {
    questions_.push_back(question);
    EXPECT_TRUE(skin_.Skin().MenuPicture("neither").isNull());
    return false;
  });
  skin_.Wear();
  EXPECT_TRUE(skin_.Skin().MenuPicture("nowhere").isNull());
  EXPECT_EQ(questions_.size(), 1U);
}

TEST_F(SkinTest, AsksForNoPictureWhoseKeyIsAbsent) {
  AnswerYes(0);
  skin_.Wear();
  EXPECT_TRUE(skin_.Skin().Picture("dialog.yes.image").isNull());
  EXPECT_TRUE(questions_.empty());
}

TEST_F(SkinTest, ForgetsItsPicturesWhenAnotherIsPutOn) {
  skin_.Wear();
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").width(), 4);
  skin_.Picture("ok", Strips({Qt::red}, {9, 4}));
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").width(), 4);
  skin_.Wear();
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").width(), 9);
}

TEST_F(SkinTest, HasNoPictureWhereAFileIsBroken) {
  skin_.File("ok.bmp", "BM, and then nothing of use");
  skin_.Wear();
  EXPECT_TRUE(skin_.Skin().Picture("dialog.ok.image").isNull());
}

TEST_F(SkinTest, ClearsTheBlackOfAPictureThatBeginsWithBlack) {
  skin_.Picture("shaped", Strips({Qt::black, Qt::red, Qt::black}, {4, 4}));
  skin_.Picture("square", Strips({Qt::red, Qt::black}, {4, 4}));
  skin_.Wear();
  const QImage shaped = skin_.Skin().MenuPicture("shaped");
  EXPECT_EQ(shaped.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(shaped.pixelColor(5, 0), QColor(Qt::red));
  EXPECT_EQ(shaped.pixelColor(9, 0).alpha(), 0);
  EXPECT_EQ(skin_.Skin().MenuPicture("square").pixelColor(5, 0), QColor(Qt::black));
}

TEST_F(SkinTest, NamesAValueThatDoesNotParse) {
  skin_.Data("dialog:\ncolor=nocolo\n");
  std::vector<std::string> keys;
  skin_.Skin().SetFault([&](const std::string& key, const std::string&) { keys.push_back(key); });
  skin_.Wear();
  skin_.Skin().Colour("dialog.color", Qt::green);
  EXPECT_EQ(keys, std::vector<std::string>{"dialog.color"});
}

}  // namespace
}  // namespace zorik
