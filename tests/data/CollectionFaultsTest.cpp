#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Samples.h"
#include "data/CollectionFaults.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using Faults = std::vector<FaultyLine>;

std::string Cave(int number) {
  return CaveText("K") + "---" + MarkerDigits(number);
}

Faults FaultsOf(const std::vector<std::string>& body) {
  return FaultsOfCollection(CollectionFile(body));
}

TEST(FaultsOfCollection, AreNoneInAFileAsTheGameWritesIt) {
  EXPECT_EQ(FaultsOf({Cave(1), Cave(2), "Hura"}), Faults{});
  EXPECT_EQ(FaultsOf({Cave(1), ""}), Faults{});
  Chance chance(3);
  for (int round = 0; round < 100; ++round) {
    EditedCollection collection;
    collection.Name = samples::RandomBytes(chance, 190);
    collection.Author = samples::RandomBytes(chance, 190);
    collection.Description = samples::RandomBytes(chance, 280);
    collection.CaveList.assign(1 + chance.Below(99), CaveText("K"));
    collection.CongratulationText = samples::RandomBytes(chance, 200);
    EXPECT_EQ(FaultsOfCollection(*BuildCollection(collection, chance)), Faults{}) << round;
  }
}

TEST(FaultsOfCollection, AreNoneInLinesThatEndInALineFeedAlone) {
  std::string bytes = CollectionFile({Cave(1), "Hura"});
  std::erase(bytes, '\r');
  EXPECT_EQ(FaultsOfCollection(bytes), Faults{});
}

TEST(FaultsOfCollection, NameTheLineOfEachThingThatIsPassedOver) {
  EXPECT_EQ(FaultsOf({Cave(1), "E!---02", "---03", "Hura"}),
            (Faults{{CollectionFault::UnreadableCave, 5}, {CollectionFault::UnreadableCave, 6}}));
  EXPECT_EQ(FaultsOf({Cave(1), CaveText("K") + "---X2", Cave(3), "Hura"}),
            (Faults{{CollectionFault::Marker, 5}}));
  EXPECT_EQ(FaultsOf({"neco", Cave(1), "Hura", ""}),
            (Faults{{CollectionFault::NoCave, 4}, {CollectionFault::NoCave, 6}}));
  EXPECT_EQ(FaultsOf({Cave(1), "abc---04"}), (Faults{{CollectionFault::UnreadableCave, 5}}));
  EXPECT_EQ(FaultsOf({Cave(1), "abc---X4"}), (Faults{{CollectionFault::Marker, 5}}));
}

TEST(FaultsOfCollection, NameACaveInPlaceOfTheCongratulation) {
  EXPECT_EQ(FaultsOf({Cave(1), Cave(2)}), (Faults{{CollectionFault::NoCongratulation, 5}}));
}

TEST(FaultsOfCollection, NameTheCavesThatACollectionHasNoRoomFor) {
  std::vector<std::string> body(99, Cave(1));
  body.emplace_back("Hura");
  EXPECT_EQ(FaultsOf(body), Faults{});
  body.insert(body.begin(), 2, Cave(1));
  EXPECT_EQ(FaultsOf(body), (Faults{{CollectionFault::TooMany, 103}, {CollectionFault::TooMany, 104}}));
}

TEST(FaultsOfCollection, NameLinesWithCharactersThatScramblingDoesNotGive) {
  const std::string whole = CollectionFile({Cave(1), "Hura"});
  for (const char alien : {'a', '[', '\0', '\xC1', ' ', '\r'}) {
    std::string bytes = whole;
    bytes[bytes.find('\n') + 4] = alien;
    EXPECT_EQ(FaultsOfCollection(bytes), (Faults{{CollectionFault::Letters, 2}})) << static_cast<int>(alien);
  }
  std::string shorter = whole;
  shorter.erase(2, 1);
  EXPECT_EQ(FaultsOfCollection(shorter), (Faults{{CollectionFault::Letters, 1}}));
}

TEST(FaultsOfCollection, NameTheLineInWhichAFileWasCut) {
  const std::string whole = CollectionFile({Cave(1), Cave(2), "Hura"});
  const std::size_t first = CollectionFile({}).size();
  const std::size_t second = CollectionFile({Cave(1)}).size();
  EXPECT_EQ(FaultsOfCollection(whole.substr(0, second + 30)), (Faults{{CollectionFault::CutLine, 5}}));
  EXPECT_EQ(FaultsOfCollection(whole.substr(0, first + 30)),
            (Faults{{CollectionFault::CutLine, 4}, {CollectionFault::NoCaves, 4}}));
  EXPECT_EQ(FaultsOfCollection(whole.substr(0, first)), (Faults{{CollectionFault::NoCaves, 3}}));
}

TEST(FaultsOfCollection, AreThereWhereverAFileIsCut) {
  const std::string whole = CollectionFile({Cave(1), Cave(2), "Hura"});
  for (std::size_t length = CollectionFile({}).size(); length < whole.size(); ++length) {
    EXPECT_FALSE(FaultsOfCollection(whole.substr(0, length)).empty()) << length;
  }
}

}  // namespace
}  // namespace zorik
