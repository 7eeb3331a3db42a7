#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <iomanip>
#include <sstream>

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

// FNV-1a over what a grid prints: four bytes a cell, the object's low and high byte, its state, its mark.
class GridHash {
 public:
  // Takes a line "row=Y OOOO/S/MM ...".
  void Add(const std::string& row) {
    std::istringstream words(row);
    std::string word;
    words >> word;
    while (words >> word) {
      unsigned object = 0, state = 0, mark = 0;
      if (std::sscanf(word.c_str(), "%4x/%1x/%2x", &object, &state, &mark) != 3) spoilt_ = true;
      for (const unsigned byte : {object & 0xFFU, object >> 8U, state, mark})
        hash_ = (hash_ ^ byte) * 0x100000001b3U;
    }
  }

  // As a trace writes it.
  std::string Text() const {
    std::ostringstream text;
    text << " hash=" << std::hex << std::setw(16) << std::setfill('0') << hash_;
    return spoilt_ ? "(no grid)" : text.str();
  }

 private:
  std::uint64_t hash_ = 0xcbf29ce484222325U;
  bool spoilt_ = false;
};

TEST_P(KeptRecord, ReplaysToItsTrace) {
  const Told trace = Zktool({"replay", GetParam() + ".zkr"});
  EXPECT_EQ(trace.exit, Exit::Fine);
  ASSERT_TRUE(trace.out == BytesOf(GetParam() + ".trace"))
      << Zktool({"diff", GetParam() + ".zkr", GetParam() + ".trace"}).out;
}

// So a trace, which holds the hashes alone, holds every cell.
TEST_P(KeptRecord, HasGridsThatAreWhatTheHashesOfItsTraceTell) {
  std::string ofTrace;
  std::string tick;
  GridHash hash;
  int ticks = 0;
  for (const std::string& line : LinesOf(Zktool({"replay", GetParam() + ".zkr", "--grid"}).out)) {
    if (line.starts_with("row=")) {
      hash.Add(line);
      continue;
    }
    ofTrace += line + "\n";
    ASSERT_TRUE(tick.ends_with(tick.empty() ? "" : hash.Text())) << tick << "\nits grid:" << hash.Text();
    hash = GridHash();
    tick = line.starts_with("tick=") ? line : "";
    ticks += tick.empty() ? 0 : 1;
  }
  EXPECT_GT(ticks, 0);
  EXPECT_TRUE(ofTrace == BytesOf(GetParam() + ".trace")) << "but for its rows a trace with grids is the same";
}

INSTANTIATE_TEST_SUITE_P(Records, KeptRecord, ::testing::ValuesIn(KeptRecords()), TestName);

TEST(KeptRecords, AreAtLeastSeventy) {
  EXPECT_GE(KeptRecords().size(), 70U);
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
