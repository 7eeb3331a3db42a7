#include <gtest/gtest.h>

#include <filesystem>

#include "data/Files.h"
#include "screens/TestSkin.h"
#include "skin/Skin.h"
#include "support/Waves.h"

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
  EXPECT_EQ(none.Text(TextId::Program), "");
  EXPECT_EQ(none.Caption("settings.text"), "Nastavení") << "these words are in the program";
  EXPECT_EQ(none.Said("version.text"), "");
  EXPECT_EQ(none.Colour("dialog.color", Qt::green), QColor(Qt::green));
  EXPECT_TRUE(none.Picture("dialog.ok.image").isNull());
  EXPECT_TRUE(none.MenuPicture("ok").isNull());
}

TEST_F(SkinTest, ReadsItsTextsTableAndPictures) {
  skin_.Apply();
  EXPECT_EQ(skin_.Skin().Text(TextId::Program), "99\r\n");
  EXPECT_EQ(skin_.Skin().Colour("dialog.color", Qt::green), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(skin_.Skin().Said("dialog.ok.image"), "ok");
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").pixelColor(2, 2), QColor(Qt::red));
}

TEST_F(SkinTest, TellsWhetherItsTextsAreComplete) {
  EXPECT_TRUE(skin_.Skin().Apply(skin_.Places()));
  skin_.File("cestina.txt", Language(199));
  EXPECT_FALSE(skin_.Skin().Apply(skin_.Places()));
  EXPECT_EQ(skin_.Skin().Text(TextId::CaveEditor), "198\r\n");
  EXPECT_EQ(skin_.Skin().Text(TextId::About), "");
}

TEST_F(SkinTest, AsksOnceForAPictureThatIsNowhere) {
  AnswerYes(0);
  skin_.Apply();
  EXPECT_TRUE(questions_.empty());
  EXPECT_TRUE(skin_.Skin().Picture("dialog.no.image").isNull());
  EXPECT_TRUE(skin_.Skin().Picture("dialog.no.image").isNull());
  ASSERT_EQ(questions_.size(), 1U);
  EXPECT_EQ(questions_.front(), "Obrázek skinu „" + skin_.Places().SkinsPath +
                                    "/Default/menu\\nowhere“ se nepodařilo načíst. Zkusit to znovu?");
}

TEST_F(SkinTest, AsksInItsOwnLanguage) {
  skin_.Data(
      "caption:\nerror.nopicture=Loading skin picture '?1?' failed. Try again?\nerror.nofile=Where is ?1?\n");
  AnswerYes(0);
  skin_.Apply();
  skin_.Skin().MenuPicture("nowhere");
  ASSERT_EQ(questions_.size(), 1U);
  EXPECT_EQ(questions_[0], "Loading skin picture '" + skin_.Places().SkinsPath +
                               "/Default/menu\\nowhere' failed. Try again?");
  EXPECT_EQ(skin_.Skin().QuestionOfPicture("/k\xF9\xF2/a"),
            "Loading skin picture '/kůň/a' failed. Try again?");
  EXPECT_EQ(skin_.Skin().QuestionOfFile("menu\\catdata"), "Where is menu\\catdata");
}

TEST_F(SkinTest, AsksForItsLanguageFileInTheWordsOfItsTable) {
  AnswerYes(0);
  skin_.Data("caption:\nerror.nofile=Where is ?1?\n");
  SkinPlaces other{skin_.Places().SkinsPath + "/../Others"};
  skin_.Skin().Apply(other);
  EXPECT_EQ(questions_, std::vector<std::string>{
                            "Soubor s údaji „menu\\cestina“ se nepodařilo načíst. Zkusit to znovu?"});
  skin_.File("../../Mine/Menu/skindata.txt", "caption:\nerror.nofile=Where is ?1?\n");
  std::filesystem::remove(skin_.Places().SkinsPath + "/Default/Menu/cestina.txt");
  other = skin_.Places();
  other.Skin = "Mine";
  skin_.Skin().Apply(other);
  EXPECT_EQ(questions_.back(), "Where is menu\\cestina");
}

TEST_F(SkinTest, LooksAgainWhenItIsToldTo) {
  skin_.Skin().SetRetry([this](const std::string&) {
    skin_.Picture("nowhere", Strips({Qt::blue}, {4, 4}));
    return true;
  });
  skin_.Apply();
  EXPECT_EQ(skin_.Skin().Picture("dialog.no.image").pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(SkinTest, AsksNothingWhileAQuestionIsOpen) {
  skin_.Skin().SetRetry([this](const std::string& question) {
    questions_.push_back(question);
    EXPECT_TRUE(skin_.Skin().MenuPicture("neither").isNull());
    return false;
  });
  skin_.Apply();
  EXPECT_TRUE(skin_.Skin().MenuPicture("nowhere").isNull());
  EXPECT_EQ(questions_.size(), 1U);
}

TEST_F(SkinTest, AsksForNoLanguageWhileAQuestionIsOpen) {
  skin_.Skin().SetRetry([this](const std::string& question) {
    questions_.push_back(question);
    if (questions_.size() > 1) return false;
    std::filesystem::remove(skin_.Places().SkinsPath + "/Default/Menu/cestina.txt");
    skin_.Apply();
    return false;
  });
  skin_.Apply();
  EXPECT_TRUE(skin_.Skin().MenuPicture("nowhere").isNull());
  EXPECT_EQ(questions_.size(), 1U);
}

TEST_F(SkinTest, AsksAgainForAPictureWhenItIsWornAgain) {
  AnswerYes(0);
  for (std::size_t times = 1; times <= 2; ++times) {
    skin_.Apply();
    EXPECT_TRUE(skin_.Skin().MenuPicture("nowhere").isNull());
    EXPECT_TRUE(skin_.Skin().MenuPicture("nowhere").isNull());
    EXPECT_EQ(questions_.size(), times);
  }
}

// What came with the game is not the player's to mend.
TEST_F(SkinTest, TellsOfNoFileThatCameWithTheGame) {
  skin_.File("palm.bmp", "no picture");
  skin_.File("../Sound/dirt.wav", "no sound");
  EXPECT_TRUE(skin_.Skin().Apply(skin_.Places()).flaws.empty());
  SkinPlaces mine = skin_.Places();
  mine.Skin = "Mine";
  skin_.File("../../Mine/Menu/palm.bmp", "no picture");
  const SkinFlaws flaws = skin_.Skin().Apply(mine).flaws;
  ASSERT_EQ(flaws.size(), 1U);
  EXPECT_TRUE(flaws.front().file.ends_with("Mine/Menu/palm.bmp")) << flaws.front().file;
}

TEST_F(SkinTest, AsksForNoPictureWhoseKeyIsAbsent) {
  AnswerYes(0);
  skin_.Apply();
  EXPECT_TRUE(skin_.Skin().Picture("dialog.yes.image").isNull());
  EXPECT_TRUE(questions_.empty());
}

TEST_F(SkinTest, ReadsAPictureAnewWhenItsFileHasChanged) {
  skin_.Apply();
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").width(), 4);
  skin_.Picture("ok", Strips({Qt::red}, {9, 4}));
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").width(), 9);
}

TEST_F(SkinTest, FindsAPictureThatCameAfterTheQuestionWithoutAskingAgain) {
  AnswerYes(0);
  skin_.Apply();
  EXPECT_TRUE(skin_.Skin().Picture("dialog.no.image").isNull());
  skin_.Picture("nowhere", Strips({Qt::blue}, {4, 4}));
  EXPECT_FALSE(skin_.Skin().Picture("dialog.no.image").isNull());
  EXPECT_EQ(questions_.size(), 1U);
}

TEST_F(SkinTest, TakesTheDefaultPictureWhereAFileIsBroken) {
  AnswerYes(0);
  skin_.File("../../Other/Menu/ok.bmp", "BM, and then nothing of use");
  SkinPlaces other = skin_.Places();
  other.Skin = "Other";
  const ApplyOutcome outcome = skin_.Skin().Apply(other);
  EXPECT_EQ(skin_.Skin().Picture("dialog.ok.image").pixelColor(2, 2), QColor(Qt::red));
  EXPECT_TRUE(questions_.empty());
  ASSERT_EQ(outcome.flaws.size(), 1U) << "but it is told";
  EXPECT_EQ(outcome.flaws[0].kind, SkinFlaw::Kind::PictureBroken);
  EXPECT_TRUE(outcome.flaws[0].file.ends_with("/Skins/Other/Menu/ok.bmp")) << outcome.flaws[0].file;
}

TEST_F(SkinTest, AsksForAPictureOfWhichEveryFileIsBroken) {
  AnswerYes(0);
  skin_.File("ok.bmp", "BM, and then nothing of use");
  skin_.Apply();
  EXPECT_TRUE(skin_.Skin().Picture("dialog.ok.image").isNull());
  EXPECT_EQ(questions_.size(), 1U);
}

TEST_F(SkinTest, TellsOfFilesThatItBringsAndThatCannotBeUsed) {
  const auto brings = [this](const std::string& path, const std::string& bytes) {
    skin_.File("../../Other/" + path, bytes);
  };
  const auto ofSize = [](int width, int height) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(QImage(width, height, QImage::Format_Mono).save(&buffer, "BMP"));
    return bytes.toStdString();
  };
  const std::string minute = test::WaveFileOf(std::string(60 * 8000, 'a'), {8000, 1, 8});
  brings("Menu/large.bmp", ofSize(4096, 1025));
  brings("Menu/largest.bmp", ofSize(4096, 1024));
  brings("Game/Gem.bmp", ofSize(80, 80 * 128));
  brings("Game/Cold/Gem.bmp", ofSize(80, 80 * 128 + 1));
  brings("Game/Bar.bmp", ofSize(1600, 1000));
  brings("Game/notes.bmp", "not one of the game's");
  brings("Sound/dirt.wav", minute);
  brings("Sound/amoeba.wav", minute);
  brings("Sound/dog2.wav", "no sound");
  brings("Sound/other.wav", "not one of the game's");
  SkinPlaces other = skin_.Places();
  other.Skin = "Other";
  std::vector<std::pair<SkinFlaw::Kind, std::string>> flaws;
  for (const SkinFlaw& flaw : skin_.Skin().Apply(other).flaws)
    flaws.emplace_back(flaw.kind, flaw.file.substr(flaw.file.find("/Other/") + 7));
  using Kind = SkinFlaw::Kind;
  EXPECT_EQ(flaws, (std::vector<std::pair<Kind, std::string>>{{Kind::PictureTooLarge, "Menu/large.bmp"},
                                                              {Kind::PictureTooLarge, "Game/Cold/Gem.bmp"},
                                                              {Kind::SoundTooLong, "Sound/dirt.wav"},
                                                              {Kind::SoundBroken, "Sound/dog2.wav"}}));
}

TEST_F(SkinTest, ClearsTheBlackOfAPictureThatBeginsWithBlack) {
  skin_.Picture("shaped", Strips({Qt::black, Qt::red, Qt::black}, {4, 4}));
  skin_.Picture("square", Strips({Qt::red, Qt::black}, {4, 4}));
  skin_.Apply();
  const QImage shaped = skin_.Skin().MenuPicture("shaped");
  EXPECT_EQ(shaped.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(shaped.pixelColor(5, 0), QColor(Qt::red));
  EXPECT_EQ(shaped.pixelColor(9, 0).alpha(), 0);
  EXPECT_EQ(skin_.Skin().MenuPicture("square").pixelColor(5, 0), QColor(Qt::black));
}

TEST_F(SkinTest, StaysAsItWasWhenAnotherCannotBeWorn) {
  skin_.File("../../Other/Menu/skindata.txt", "dialog:\ncolor=nocolo\nok.image=other\n");
  skin_.File("../../Other/Menu/cestina.txt", "head\nhead\nOther\n");
  skin_.Apply();
  SkinPlaces other = skin_.Places();
  other.Skin = "Other";
  const ApplyOutcome outcome = skin_.Skin().Apply(other);
  EXPECT_FALSE(outcome.applied);
  ASSERT_EQ(outcome.flaws.size(), 1U);
  EXPECT_EQ(outcome.flaws[0].what, "dialog.color");
  EXPECT_EQ(skin_.Skin().Places().Skin, "Default");
  EXPECT_EQ(skin_.Skin().Colour("dialog.color", Qt::green), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(skin_.Skin().Said("dialog.ok.image"), "ok");
  EXPECT_EQ(skin_.Skin().Text(TextId::PlayCave), "0\r\n");
}

TEST_F(SkinTest, BreaksACaptionWhereAControlDoes) {
  skin_.Data("skin.author.text=one#two\n");
  skin_.Apply();
  EXPECT_EQ(skin_.Skin().Said("skin.author.text"), "one\ntwo");
}

}  // namespace
}  // namespace zorik
