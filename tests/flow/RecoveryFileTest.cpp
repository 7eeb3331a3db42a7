#include <gtest/gtest.h>

#include "data/Chance.h"
#include "data/Result.h"
#include "flow/RecoveryFile.h"

namespace zorik {
namespace {

const RecoveryFile kFile{
    1700000000,
    {"lines\r\nof the collection\n", "N\xE1zev\nname 3", "Eva", "/a/b\nc.zk", true, 7, "Hura---02"}};

TEST(RecoveryFileTest, GivesBackWhatWasPutIn) {
  const Result<RecoveryFile> read = ReadRecovery(BuildRecovery(kFile));
  ASSERT_TRUE(read) << read.Message();
  EXPECT_EQ(read->Time, kFile.Time);
  EXPECT_EQ(read->Sada, kFile.Sada);
}

TEST(RecoveryFileTest, NeedNotHoldWhatTheFileOfTheCollectionHolds) {
  RecoveryFile file = kFile;
  file.Sada.Congratulation.clear();
  const std::string bytes = BuildRecovery(file);
  EXPECT_EQ(bytes.find("congratulation"), std::string::npos);
  const Result<RecoveryFile> read = ReadRecovery(bytes);
  ASSERT_TRUE(read) << read.Message();
  EXPECT_EQ(read->Sada, file.Sada);
}

TEST(RecoveryFileTest, IsNoneWhenAnythingOfItLacks) {
  const std::string bytes = BuildRecovery(kFile);
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(ReadRecovery(std::string_view(bytes).substr(0, length))) << length;
  }
  EXPECT_FALSE(ReadRecovery(bytes + "x"));
}

// Whatever lacks in its head, the collection behind that is whole. The texts stand in lines of their own.
TEST(RecoveryFileTest, IsNoneWhereItsHeadEndsEarly) {
  RecoveryFile file = kFile;
  file.Sada.Congratulation.clear();
  const std::string bytes = BuildRecovery(file);
  const std::size_t collection = bytes.find("\ncollection ");
  ASSERT_NE(collection, std::string::npos);
  for (const char* const key : {"time ", "selected ", "faulty ", "path ", "name ", "author "}) {
    const std::size_t at = bytes.find('\n' + std::string(key));
    ASSERT_LT(at, collection) << key;
    EXPECT_FALSE(ReadRecovery(bytes.substr(0, at) + bytes.substr(collection))) << key;
  }
}

TEST(RecoveryFileTest, SelectsTheFirstCaveWhereTheNumberIsNone) {
  std::string bytes = BuildRecovery(kFile);
  const std::string selected = "selected 7";
  ASSERT_NE(bytes.find(selected), std::string::npos);
  bytes.replace(bytes.find(selected), selected.size(), "selected 4294967298");
  const Result<RecoveryFile> read = ReadRecovery(bytes);
  ASSERT_TRUE(read) << read.Message();
  EXPECT_EQ(read->Sada.Selected, 1);
}

TEST(RecoveryFileTest, IsNoneWithALengthThatCannotBe) {
  std::string bytes = BuildRecovery(kFile);
  const std::string length = "author 3";
  const std::size_t at = bytes.find(length);
  ASSERT_NE(at, std::string::npos);
  for (const char* other : {"author -3", "author 99999999999999999999", "author 9223372036854775807",
                            "author ", "author 3x", "author 0x3"}) {
    std::string damaged = bytes;
    damaged.replace(at, length.size(), other);
    EXPECT_FALSE(ReadRecovery(damaged)) << other;
  }
}

TEST(RecoveryFileTest, NeverBreaksOffWithDamage) {
  const std::string bytes = BuildRecovery(kFile);
  Chance chance(7);
  for (int i = 0; i < 20000; ++i) {
    std::string damaged = bytes;
    const std::uint32_t times = 1 + chance.Below(4);
    for (std::uint32_t n = 0; n < times; ++n) {
      damaged[chance.Below(static_cast<std::uint32_t>(damaged.size()))] =
          static_cast<char>(chance.Below(256));
    }
    const Result<RecoveryFile> read = ReadRecovery(damaged);
    if (read) {
      EXPECT_LE(read->Sada.Bytes.size(), bytes.size());
    }
  }
}

}  // namespace
}  // namespace zorik
