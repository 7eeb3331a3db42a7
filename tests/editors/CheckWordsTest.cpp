#include <gtest/gtest.h>

#include <QRegularExpression>

#include "data/Result.h"
#include "editors/CheckWords.h"
#include "skin/Skin.h"
#include "solve/Lint.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

class CheckWordsTest : public ::testing::Test {
 protected:
  CheckWordsTest() {
    EXPECT_TRUE(czech.Apply(SkinPlaces{ZORIK_SKINS, "Default"}));
    EXPECT_TRUE(english.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  }

  static CaveRecord CaveOf(const Picture& picture, const Numbers& numbers = {.needed = 1}) {
    return *ParseCaveText(CaveTextOf(picture, numbers));
  }

  // All but how much the small caves look like their mirror.
  static QStringList Said(const Skin& skin, const CaveRecord& cave) {
    QStringList said;
    for (const Doubt& doubt : DoubtsAboutCave(cave)) {
      if (doubt.kind != DoubtKind::Mirror) said << DoubtInWords(skin, doubt);
    }
    return said;
  }

  Skin czech;
  Skin english;
};

TEST_F(CheckWordsTest, AreThoseOfTheSkin) {
  const CaveRecord cave = CaveOf({"W;;DT", "W;;X;"});
  EXPECT_EQ(Said(czech, cave), QStringList{"Není tu žádný Zorík."});
  EXPECT_EQ(Said(english, cave), QStringList{"There is no dog."});
}

TEST_F(CheckWordsTest, TellTheNumbersOfTheDoubt) {
  EXPECT_EQ(Said(czech, CaveOf({"W3;DT", "W1;1;"})),
            QStringList({"Zorík č. 1 tu stojí 2×.", "Chybí Zorík č. 2, nejvyšší číslo je 3."}));
  EXPECT_EQ(Said(czech, CaveOf({"W1;DT", "W;;X;"}, {.needed = 5})),
            QStringList{"Cíl se otevře při 5 drahokamech, Zoríci jich ale mohou získat nejvýš 1."});
  EXPECT_EQ(Said(english, CaveOf({"W1;DT", "Wx;x;"})), QStringList{"The letter “x” means no object (2×)."});
}

TEST_F(CheckWordsTest, CallANumberAsTheBoxOfTheCaveDoes) {
  EXPECT_EQ(Said(czech, CaveOf({"W1;DT", "W;;X;"}, {.needed = 1, .permeability = 9})),
            QStringList{"Údaj „Propustnost bláta“ je 9, má být od 0 do 8."});
}

TEST_F(CheckWordsTest, TellTheEndsOfATeleportApart) {
  const QStringList said =
      Said(english, CaveOf({"WWWWWWWW", "W1;D;T;W", "W;S;;;;W", "W;W;;;;W", "WWWWWWWW"}));
  ASSERT_EQ(said.size(), 1);
  EXPECT_TRUE(said[0].contains("is the entrance of a teleport")) << said[0].toStdString();
}

// What a program says in either language, with nothing left open, for all that a cave and its proof can be
// told of.
TEST_F(CheckWordsTest, StandInBothTablesForEveryDoubtAboutACave) {
  const QRegularExpression open("\\?\\d\\?");
  for (const DoubtRow& row : DoubtRows()) {
    const bool ofFiles =
        row.kind == DoubtKind::NoCave || row.kind == DoubtKind::OpenCave || row.kind == DoubtKind::BadLine;
    const Doubt doubt{.kind = row.kind, .sentence = {}, .values = {"a", "b", "c", "d"}};
    const QString inCzech = DoubtInWords(czech, doubt), inEnglish = DoubtInWords(english, doubt);
    EXPECT_EQ(inCzech.isEmpty(), ofFiles) << row.word;
    EXPECT_EQ(inEnglish.isEmpty(), ofFiles) << row.word;
    EXPECT_TRUE(inCzech.isEmpty() || inCzech != inEnglish) << row.word;
    EXPECT_FALSE(inCzech.contains(open) || inEnglish.contains(open)) << row.word;
  }
}

// As many values as the words have room for, whatever is drawn.
TEST_F(CheckWordsTest, LeaveNoMarkOpenWhereAnythingIsDrawn) {
  const QRegularExpression open("\\?\\d\\?");
  Chance chance(5);
  const std::string letters = "W;.DTS1239OxMAHNK$ZUcC";
  for (int i = 0; i < 300; ++i) {
    Picture picture(7, std::string(9, 'W'));
    for (std::string& row : picture) {
      for (char& letter : row) letter = letters[chance.Below(static_cast<std::uint32_t>(letters.size()))];
    }
    CaveRecord cave = CaveOf(picture, {.needed = i % 20});
    cave.Script = i % 3 == 0 ? "*A-A?!*B-C/Z-D" : "";
    for (const Doubt& doubt : DoubtsAboutCave(cave)) {
      const QString words = DoubtInWords(czech, doubt);
      EXPECT_FALSE(words.isEmpty()) << doubt.sentence;
      EXPECT_FALSE(words.contains(open)) << words.toStdString();
    }
  }
}

TEST_F(CheckWordsTest, TellWhatAProofShowsInTheNumbersOfTheLanguage) {
  const Doubt loose{.kind = DoubtKind::LooseLimit, .sentence = {}, .values = {"4.5"}};
  const Doubt idle{.kind = DoubtKind::IdleStretch, .sentence = {}, .values = {"16.0", "12"}};
  const Doubt odds{.kind = DoubtKind::LowOdds, .sentence = {}, .values = {"3", "20"}};
  EXPECT_EQ(DoubtInWords(czech, loose), "Čas komnaty je 4,5krát delší, než kolik potřebuje důkaz.");
  EXPECT_EQ(DoubtInWords(english, loose), "The cave’s time is 4.5 times what the proof needs.");
  EXPECT_EQ(DoubtInWords(czech, idle), "Důkaz od tiku 12 celých 16 s nic nedělá.");
  EXPECT_EQ(DoubtInWords(english, idle), "The proof does nothing for 16 s from tick 12 on.");
  EXPECT_EQ(DoubtInWords(czech, odds), "S jinou náhodou plán důkazu vyhrál jen 3krát z 20.");
  EXPECT_EQ(DoubtInWords(english, odds), "With other chance the proof’s plan won only 3 times of 20.");
}

TEST_F(CheckWordsTest, OfGemsTellThoseThereThoseToBeHadAndThoseNeeded) {
  EXPECT_EQ(GemsInWords(czech, {.there = 3, .most = 7, .needed = 5}),
            "Drahokamy: 3 na začátku, získat jich lze 7, potřeba 5");
  EXPECT_EQ(GemsInWords(english, {.there = 3, .most = std::nullopt, .needed = 5}),
            "Gems: 3 at the start, unlimited can be had, 5 are needed");
}

}  // namespace
}  // namespace zorik::test
