#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/Objects.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/Progress.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "zktool/Verdict.h"

namespace zorik::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSchool = "1-zorikova-skola";
constexpr const char* kTravels = "2-zorikovy-cesty";
constexpr const char* kNuts = "3-deset-orisku";
constexpr const char* kDogs = "123456789";
constexpr int kEditorWidth = 80;  // larger caves could not be edited
constexpr int kEditorHeight = 50;

std::vector<std::string> CollectionNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(ZORIK_CAVES)) {
    if (entry.path().extension() == ".zk") names.push_back(entry.path().stem().string());
  }
  EXPECT_FALSE(names.empty());
  std::sort(names.begin(), names.end());
  return names;
}

PlayedCollection Open(const std::string& name) {
  const Result<std::string> bytes = ReadWhole(std::string(ZORIK_CAVES) + "/" + name + ".zk");
  if (!bytes) {
    ADD_FAILURE() << bytes.Message();
    return {};
  }
  Result<PlayedCollection> collection = ReadForPlay(*bytes);
  if (!collection) {
    ADD_FAILURE() << name << ": " << collection.Message();
    return {};
  }
  return std::move(*collection);
}

// The bytes of the record that wins a cave.
std::string RecordOf(const std::string& collection, std::size_t number) {
  char file[16];
  std::snprintf(file, sizeof file, "/%02zu.zkr", number);
  const Result<std::string> bytes = ReadWhole(std::string(ZORIK_CAVES) + "/records/" + collection + file);
  if (!bytes) ADD_FAILURE() << bytes.Message();
  return bytes ? *bytes : std::string();
}

std::string Rows(const CaveRecord& cave) {
  std::string rows;
  for (std::size_t y = 0; y < cave.Height; ++y) {
    for (std::size_t x = 0; x < cave.Width; ++x) rows += cave.Cells[x][y];
    rows += '\n';
  }
  return rows;
}

int CountOf(const CaveRecord& cave, std::string_view letters) {
  const std::string rows = Rows(cave);
  return static_cast<int>(std::count_if(rows.begin(), rows.end(), [letters](char letter) {
    return letter != '\n' && letters.find(letter) != std::string_view::npos;
  }));
}

template <class Check>
void ForEachCollection(Check check) {
  for (const std::string& name : CollectionNames()) {
    SCOPED_TRACE(name);
    check(Open(name));
  }
}

template <class Check>
void ForEachCave(Check check) {
  for (const std::string& name : CollectionNames()) {
    const PlayedCollection collection = Open(name);
    ASSERT_FALSE(collection.Caves.empty()) << name;
    for (const PlayedCave& cave : collection.Caves) {
      SCOPED_TRACE(name + ": " + ToUtf8(cave.Record.Name));
      check(cave.Record);
    }
  }
}

TEST(ShippedCaves, AreMadeOfKnownLettersInSizesThatTheEditorTakes) {
  ForEachCave([](const CaveRecord& cave) {
    EXPECT_LE(cave.Width, kEditorWidth);
    EXPECT_LE(cave.Height, kEditorHeight);
    for (const char letter : Rows(cave)) {
      EXPECT_TRUE(letter == '\n' || FindLetter(letter) != nullptr) << letter;
    }
  });
}

TEST(ShippedCaves, HaveDogsNumberedFromOneWithoutGaps) {
  ForEachCave([](const CaveRecord& cave) {
    const int dogs = CountOf(cave, kDogs);
    EXPECT_GE(dogs, 1);
    for (int n = 1; n <= dogs; ++n) EXPECT_EQ(CountOf(cave, std::to_string(n)), 1) << "dog " << n;
    EXPECT_EQ(CountOf(cave, "H"), 0);
  });
}

TEST(ShippedCaves, HaveOneFinishAndAtMostOneCat) {
  ForEachCave([](const CaveRecord& cave) {
    EXPECT_EQ(CountOf(cave, "T"), 1);
    EXPECT_LE(CountOf(cave, "J"), 1);
    if (!cave.Script.empty()) {
      EXPECT_EQ(CountOf(cave, "J"), 1);
    }
  });
}

TEST(ShippedCaves, HaveAKeyForEveryLockAndALockForEveryKey) {
  ForEachCave([](const CaveRecord& cave) {
    for (const char* pair : {"!%", "@^", "#&"}) {
      EXPECT_EQ(CountOf(cave, std::string(1, pair[0])) > 0, CountOf(cave, std::string(1, pair[1])) > 0)
          << pair;
    }
  });
}

TEST(ShippedCaves, TellWhatTheyAreAboutAndLeaveTimeForIt) {
  ForEachCave([](const CaveRecord& cave) {
    EXPECT_FALSE(cave.Name.empty());
    EXPECT_FALSE(cave.Description.empty());
    EXPECT_LE(cave.Time, 999);  // three digits on the clock
    EXPECT_GT(cave.GemsNeeded, 0);
    EXPECT_GT(cave.PointsBefore, 0);
    EXPECT_GE(cave.PointsAfter, cave.PointsBefore);
    EXPECT_LE(cave.PointsAfter, 99);  // two digits beside it
  });
}

TEST(ShippedCaves, HaveNamesThatKeepTheirRecordsApart) {
  ForEachCollection([](const PlayedCollection& collection) {
    std::set<std::string> files;
    for (const PlayedCave& cave : collection.Caves) {
      files.insert(LowerCase(RecordFileName(collection.Name, cave.Record.Name)));
    }
    EXPECT_EQ(files.size(), collection.Caves.size());
  });
}

TEST(ShippedCaves, AreAllWonByTheirRecords) {
  for (const std::string& name : CollectionNames()) {
    const std::size_t count = Open(name).Caves.size();
    for (std::size_t i = 1; i <= count; ++i) {
      Hra hra;
      const Judgement judgement = Judge(hra, RecordOf(name, i));
      EXPECT_EQ(judgement.verdict, Verdict::Won) << name << " " << i << ": " << judgement.message;
      EXPECT_EQ(judgement.score, judgement.stored) << name << " " << i;
    }
  }
}

TEST(ShippedCaves, GiveTwiceTheTimeThatTheirRecordsTake) {
  for (const std::string& name : CollectionNames()) {
    const std::vector<PlayedCave> caves = Open(name).Caves;
    for (std::size_t i = 1; i <= caves.size(); ++i) {
      Hra hra;
      const int ticks = Judge(hra, RecordOf(name, i)).ticks;
      EXPECT_GT(ticks, 0) << name << " " << i;
      EXPECT_GE(caves[i - 1].Record.Time * kTicksPerSecond, 2 * ticks) << name << " " << i;
    }
  }
}

// So that the clock is felt. In the lessons it is not meant to be: whoever learns looks around first.
TEST(ShippedCaves, GiveNoMoreThanThreeTimesTheTimeThatTheirRecordsTakeBehindTheSchool) {
  for (const std::string& name : CollectionNames()) {
    if (name.starts_with(kSchool)) continue;
    const std::vector<PlayedCave> caves = Open(name).Caves;
    for (std::size_t i = 1; i <= caves.size(); ++i) {
      Hra hra;
      const int ticks = Judge(hra, RecordOf(name, i)).ticks;
      // Whole seconds on the clock: less than one of them may be above.
      EXPECT_LT(caves[i - 1].Record.Time * kTicksPerSecond, 3 * ticks + kTicksPerSecond) << name << " " << i;
    }
  }
}

TEST(ShippedCaves, AreAllSolvedForThePlayerOfTheirRecords) {
  for (const std::string& name : CollectionNames()) {
    const PlayedCollection collection = Open(name);
    std::map<std::string, std::string> files;
    int total = 0;
    for (std::size_t i = 1; i <= collection.Caves.size(); ++i) {
      const std::string bytes = RecordOf(name, i);
      RecordLines lines(bytes);
      total += ReadRecordHead(lines).Score;
      files[RecordFileName(collection.Name, collection.Caves[i - 1].Record.Name)] = bytes;
    }
    const Progress progress = ReadProgress(collection, "Zor\xEDk", [&files](const std::string& file) {
      const auto found = files.find(file);
      return found == files.end() ? std::nullopt : std::optional(found->second);
    });
    for (std::size_t i = 1; i <= collection.Caves.size(); ++i) {
      EXPECT_EQ(progress.CaveStates[i], CaveState::Solved) << name << " " << i;
    }
    EXPECT_EQ(progress.Rest, 0) << name;
    EXPECT_EQ(progress.Total, total) << name;
  }
}

// Each collection and its twin in the other language.
std::string InCzech(const std::string& name) {
  return name + "-cs";
}
std::string InEnglish(const std::string& name) {
  return name + "-en";
}

TEST(ShippedCollections, AreALessonATravelAndAHardNutInTwoLanguages) {
  EXPECT_EQ(CollectionNames(),
            (std::vector<std::string>{InCzech(kSchool), InEnglish(kSchool), InCzech(kTravels),
                                      InEnglish(kTravels), InCzech(kNuts), InEnglish(kNuts)}));
  EXPECT_EQ(ToUtf8(Open(InCzech(kSchool)).Name), "Zoríkova škola");
  EXPECT_EQ(ToUtf8(Open(InEnglish(kSchool)).Name), "Zorík's School");
  EXPECT_EQ(ToUtf8(Open(InCzech(kTravels)).Name), "Zoríkovy cesty");
  EXPECT_EQ(ToUtf8(Open(InEnglish(kTravels)).Name), "Zorík's Travels");
  EXPECT_EQ(ToUtf8(Open(InCzech(kNuts)).Name), "Deset oříšků");
  EXPECT_EQ(ToUtf8(Open(InEnglish(kNuts)).Name), "Ten Hard Nuts");
}

// So a record of one can be told in the other, and counts there as what it is: another collection's.
TEST(ShippedCollections, AreTheSameInBothLanguagesButForTheirWords) {
  for (const char* name : {kSchool, kTravels, kNuts}) {
    const PlayedCollection czech = Open(InCzech(name));
    const PlayedCollection english = Open(InEnglish(name));
    EXPECT_NE(czech.Name, english.Name);
    EXPECT_NE(czech.Description, english.Description);
    EXPECT_NE(czech.Congratulation, english.Congratulation);
    EXPECT_EQ(czech.OpenCaves, english.OpenCaves);
    ASSERT_EQ(czech.Caves.size(), english.Caves.size());
    for (std::size_t i = 0; i < czech.Caves.size(); ++i) {
      CaveRecord cave = english.Caves[i].Record;
      EXPECT_NE(cave.Description, czech.Caves[i].Record.Description) << i + 1;
      EXPECT_EQ(JeBonus(cave.Name), JeBonus(czech.Caves[i].Record.Name)) << i + 1;
      cave.Name = czech.Caves[i].Record.Name;
      cave.Description = czech.Caves[i].Record.Description;
      EXPECT_EQ(cave, czech.Caves[i].Record) << i + 1;
    }
  }
}

TEST(ShippedCollections, HaveTwentyLessonsFortyCavesOfTheTravelsAndTenNuts) {
  EXPECT_EQ(Open(InCzech(kSchool)).Caves.size(), 20U);
  EXPECT_EQ(Open(InCzech(kTravels)).Caves.size(), 40U);
  EXPECT_EQ(Open(InCzech(kNuts)).Caves.size(), 10U);
}

TEST(ShippedCollections, HaveFourBonusCavesOnTheTravelsWhichNeitherBeginNorEndThem) {
  for (const std::string& name : CollectionNames()) {
    const std::vector<PlayedCave> caves = Open(name).Caves;
    const auto count = std::count_if(caves.begin(), caves.end(),
                                     [](const PlayedCave& cave) { return JeBonus(cave.Record.Name); });
    EXPECT_EQ(count, name.starts_with(kTravels) ? 4 : 0) << name;
    EXPECT_FALSE(JeBonus(caves.front().Record.Name));
    EXPECT_FALSE(JeBonus(caves.back().Record.Name));
  }
}

TEST(ShippedCollections, ShowAllFiveColourings) {
  ForEachCollection([](const PlayedCollection& collection) {
    std::set<int> colourings;
    for (const PlayedCave& cave : collection.Caves) colourings.insert(cave.Record.Colouring);
    EXPECT_EQ(colourings, (std::set<int>{4, 10, 11, 12, 13}));
  });
}

TEST(ShippedCollections, EndWithACongratulationThatNamesThePoints) {
  ForEachCollection([](const PlayedCollection& collection) {
    EXPECT_NE(collection.Congratulation.find("$P"), std::string::npos);
  });
}

TEST(ShippedCollections, TeachEveryObjectThatThereIs) {
  std::string rows;
  for (const PlayedCave& cave : Open(InCzech(kSchool)).Caves) rows += Rows(cave.Record);
  for (const char* object :
       {".", ";", "R", "D", kDogs, "X", "M", "FOPQ", "UYZB", "W", "T", "A", "K", "I", "E",
        "V", "S", "L", "!", "@",   "#", "%", "^",    "&",    "C", "N", "G", "J", ":", "$"}) {
    EXPECT_NE(rows.find_first_of(object), std::string::npos) << object;
  }
}

}  // namespace
}  // namespace zorik::test
