// Where the proofs of caves are that have the same name.
#include <gtest/gtest.h>

#include <filesystem>

#include "data/Files.h"
#include "data/ProofFile.h"
#include "data/Result.h"
#include "editors/ProofShelf.h"
#include "solve/Walks.h"
#include "support/Scene.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

class ProofShelfTest : public testing::Test {
 protected:
  // Caves of one name that differ in the place of their gem.
  static std::string Cave(int gem) {
    test::Picture picture{"WWWWWWWWW", "W1;;;;;;T", "WWWWWWWWW", "W;;;;;;;W", "WWWWWWWWW"};
    picture[3][static_cast<std::size_t>(gem)] = 'D';
    return test::CaveTextOf(picture, {.needed = 0});
  }
  static std::string RecordOf(const std::string& cave) {
    std::string record = RecordOfPlan({cave, "sada", 0, {}}, test::PlanOf("RRRRRRR"));
    EXPECT_FALSE(record.empty()) << "the dog comes to the finish";
    return record;
  }
  CaveOrigin Origin(int number, bool saved = true) const {
    return {saved ? File() : std::string(), "sada", number,
            std::vector<std::string>(static_cast<std::size_t>(number) - 1, "Kost")};
  }
  std::string File() const { return folder.Path() + "/sada.zk"; }
  std::string Held(const std::string& name) const {
    const Result<std::string> bytes = ReadWhole(folder.Path() + "/" + name);
    return bytes ? *bytes : std::string();
  }
  void Keep(int number, const std::string& record, bool saved = true) {
    const auto put = shelf.Keep(Origin(number, saved), "Kost", record);
    ASSERT_TRUE(put);
    EXPECT_EQ(put->keptAs, "");
    EXPECT_EQ(put->waits, !saved);
  }

  const std::string one = Cave(2), two = Cave(3), three = Cave(4);
  test::TempFolder folder{"ProofShelf"};
  ProofShelf shelf;
};

TEST_F(ProofShelfTest, HasAProofForEachCaveOfAName) {
  Keep(1, RecordOf(one));
  EXPECT_EQ(shelf.Find(Origin(2), "Kost", two), "");
  Keep(2, RecordOf(two));
  EXPECT_EQ(Held("sada - Kost.zkr"), RecordOf(one));
  EXPECT_EQ(Held("sada - Kost (2).zkr"), RecordOf(two));
  EXPECT_EQ(shelf.Find(Origin(1), "Kost", one), RecordOf(one));
  EXPECT_EQ(shelf.Find(Origin(2), "Kost", two), RecordOf(two));
}

TEST_F(ProofShelfTest, TellsNoCavesApartThatADiskDoesNot) {
  Keep(1, RecordOf(one));
  ASSERT_TRUE(shelf.Keep({File(), "sada", 2, {"Kost"}}, "kost?", RecordOf(two)));
  EXPECT_EQ(Held("sada - kost (2).zkr"), RecordOf(two));
  EXPECT_EQ(Held("sada - Kost.zkr"), RecordOf(one));
  ASSERT_TRUE(shelf.Keep({File(), "sada", 2, {"Kosti"}}, "Maso", RecordOf(two)));
  EXPECT_EQ(Held("sada - Maso.zkr"), RecordOf(two)) << "another name before it is nothing";
}

TEST_F(ProofShelfTest, FindsTheProofOfACaveThatChangedPlacesWithItsNamesake) {
  Keep(1, RecordOf(one));
  Keep(2, RecordOf(two));
  EXPECT_EQ(shelf.Find(Origin(1), "Kost", two), RecordOf(two));
  EXPECT_EQ(shelf.Find(Origin(2), "Kost", one), RecordOf(one));
  EXPECT_EQ(shelf.Find(Origin(3), "Kost", one), RecordOf(one));
}

TEST_F(ProofShelfTest, FindsItWhereTheFirstOfTheNameHasNone) {
  Keep(3, RecordOf(three));
  EXPECT_EQ(shelf.Find(Origin(3), "Kost", three), RecordOf(three));
  EXPECT_EQ(shelf.Find(Origin(1), "Kost", one), "");
  EXPECT_EQ(shelf.Find(Origin(2), "Kost", two), "");
}

TEST_F(ProofShelfTest, KeepsTheOwnProofOfACaveThatWasChangedSince) {
  Keep(1, RecordOf(one));
  Keep(2, RecordOf(two));
  EXPECT_EQ(shelf.Find(Origin(1), "Kost", three), RecordOf(one));
  EXPECT_EQ(shelf.Find(Origin(2), "Kost", three), RecordOf(two));
}

TEST_F(ProofShelfTest, HasAProofForEachOfThemBeforeTheCollectionIsSavedToo) {
  Keep(1, RecordOf(one), false);
  Keep(2, RecordOf(two), false);
  EXPECT_EQ(shelf.Find(Origin(1, false), "Kost", one), RecordOf(one));
  EXPECT_EQ(shelf.Find(Origin(2, false), "Kost", two), RecordOf(two));
  EXPECT_EQ(shelf.Find(Origin(1, false), "Kost", two), RecordOf(two)) << "they have changed places";
  ASSERT_TRUE(shelf.Saved("sada", File(), {one, two}));
  EXPECT_EQ(Held("sada - Kost.zkr"), RecordOf(one));
  EXPECT_EQ(Held("sada - Kost (2).zkr"), RecordOf(two));
}

}  // namespace
}  // namespace zorik
