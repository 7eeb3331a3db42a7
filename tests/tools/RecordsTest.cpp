#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tools/Tool.h"

namespace zorik::test {
namespace {

// The paths of the kept records without their extension.
std::vector<std::string> KeptRecords() {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(ZORIK_RECORDS)) {
    if (entry.path().extension() == ".zkr") paths.push_back(std::filesystem::path(entry).replace_extension());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::string TestName(const ::testing::TestParamInfo<std::string>& record) {
  std::string name = std::filesystem::path(record.param).filename();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

class KeptRecord : public ::testing::TestWithParam<std::string> {};

TEST_P(KeptRecord, ReplaysToItsTraceAndGrid) {
  const Told trace = Zktool({"replay", GetParam() + ".zkr"});
  EXPECT_EQ(trace.exit, Exit::Fine);
  ASSERT_TRUE(trace.out == BytesOf(GetParam() + ".trace"))
      << Zktool({"diff", GetParam() + ".zkr", GetParam() + ".trace"}).out;
  if (!std::filesystem::exists(GetParam() + ".grid")) return;
  const Told grid = Zktool({"replay", GetParam() + ".zkr", "--grid"});
  ASSERT_TRUE(grid.out == BytesOf(GetParam() + ".grid"))
      << Zktool({"diff", GetParam() + ".zkr", GetParam() + ".grid"}).out;
}

INSTANTIATE_TEST_SUITE_P(Records, KeptRecord, ::testing::ValuesIn(KeptRecords()), TestName);

TEST(KeptRecords, AreAtLeastSeventyAndTenHaveGrids) {
  const std::vector<std::string> records = KeptRecords();
  EXPECT_GE(records.size(), 70U);
  EXPECT_GE(std::count_if(records.begin(), records.end(),
                          [](const std::string& path) { return std::filesystem::exists(path + ".grid"); }),
            10);
}

TEST(Replay, EndsAfterTheGivenNumberOfTicks) {
  const std::string record = std::string(ZORIK_RECORDS) + "/mix-01.zkr";
  const std::vector<std::string> whole = LinesOf(Zktool({"replay", record}).out);
  const std::vector<std::string> start = LinesOf(Zktool({"replay", record, "--ticks", "3"}).out);
  ASSERT_EQ(start.size(), 5U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(start[i], whole[i]);
  EXPECT_EQ(start[4], "end reason=ticks score=0 base=0");
}

TEST(Replay, TellsOfARecordThatIsNotThereAndOfOneWithoutACave) {
  const Folder folder;
  const Told missing = Zktool({"replay", folder.In("none.zkr")});
  EXPECT_EQ(missing.exit, Exit::CannotRead);
  EXPECT_NE(missing.err.find("zktool: cannot-read: "), std::string::npos);
  EXPECT_NE(missing.err.find("none.zkr"), std::string::npos);
  const Told empty = Zktool({"replay", folder.Write("empty.zkr", "")});
  EXPECT_EQ(empty.exit, Exit::BadCave);
  EXPECT_NE(empty.err.find("empty.zkr"), std::string::npos);
  EXPECT_EQ(empty.out, "");
}

TEST(Replay, OfAnyBytesEnds) {
  const Folder folder;
  const std::string whole = ShortRecord();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const Told told = Zktool({"replay", folder.Write("cut.zkr", whole.substr(0, length))});
    EXPECT_TRUE(told.exit == Exit::Fine || told.exit == Exit::BadCave) << length;
  }
}

}  // namespace
}  // namespace zorik::test
