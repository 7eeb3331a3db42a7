#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <streambuf>

#include "data/Collection.h"
#include "data/Result.h"
#include "tools/Tool.h"
#include "zktool/Commands.h"
#include "zktool/Json.h"

namespace zorik::test {
namespace {

class VerifyStream : public ::testing::Test {
 protected:
  // What is told of the short record.
  static std::string Line(const std::string& path) {
    return "{\"file\": " + JsonText(path) +
           ", \"verdict\": \"won\", \"score\": 106, \"stored\": 106, \"ticks\": 4, \"collection\": \"sada\", "
           "\"cave\": \"Test\", \"player\": \"hrac\", \"message\": \"\"}";
  }

  std::string won = ShortRecord();
  Folder folder;
};

TEST_F(VerifyStream, TellsEachPathInALineAndCountsThemInTheLast) {
  std::string input;
  std::multiset<std::string> expected;
  for (int i = 0; i < 50; ++i) {
    const std::string path = folder.Write("r" + std::to_string(i) + ".zkr", won);
    input += path + "\n";
    expected.insert(Line(path));
  }
  const Told told = Zktool({"verify", "--json", "-"}, input);
  EXPECT_EQ(told.exit, Exit::Fine);
  std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 51U);
  EXPECT_EQ(
      lines.back(),
      "{\"summary\": {\"total\": 50, \"won\": 50, \"score-differs\": 0, \"not-won\": 0, \"ran-dry\": 0, "
      "\"bad-cave\": 0, \"unreadable\": 0}}");
  lines.pop_back();
  EXPECT_EQ(std::multiset<std::string>(lines.begin(), lines.end()), expected);
}

TEST_F(VerifyStream, TellsTheSameInWords) {
  const std::string path = folder.Write("a.zkr", won);
  const Told told = Zktool({"verify", "-"}, path);
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, "won score=106 stored=106 ticks=4 collection=\"sada\" cave=\"Test\" player=\"hrac\" " +
                          path +
                          "\ntotal=1 won=1 score-differs=0 not-won=0 ran-dry=0 bad-cave=0 unreadable=0\n");
}

TEST_F(VerifyStream, TakesEachLineForAPathWhateverItHolds) {
  const std::string odd = folder.Write("--json  \"odd\" \xC3\xAD.zkr", won);
  const Told told = Zktool({"verify", "--json", "--jobs", "1", "-"}, "\n" + odd + "\n--help\n");
  EXPECT_EQ(told.exit, Exit::No);
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0], Line(odd));
  EXPECT_NE(lines[1].find("\"file\": \"--help\", \"verdict\": \"unreadable\""), std::string::npos);
  EXPECT_NE(told.err.find("zktool: cannot-read: "), std::string::npos);
}

TEST_F(VerifyStream, TakesFoldersToo) {
  for (const char* name : {"b.zkr", "a/z.zkr"}) folder.Write(name, won);
  const Told told = Zktool({"verify", "--json", "--jobs", "1", "-"}, folder.path() + "\n");
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0], Line(folder.In("a/z.zkr")));
  EXPECT_EQ(lines[1], Line(folder.In("b.zkr")));
}

TEST_F(VerifyStream, SaysNoWhenThereIsNoPath) {
  const Told told = Zktool({"verify", "--json", "-"}, "\n\n");
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(told.err, "zktool: no: there is no record in the standard input\n");
}

TEST_F(VerifyStream, DoesNotMixPathsOfTheCommandLineWithThose) {
  EXPECT_EQ(Zktool({"verify", "-", folder.Write("a.zkr", won)}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"verify", "--jobs", "0", "-"}).exit, Exit::Usage);
}

TEST_F(VerifyStream, SaysOfEachWhetherItCounts) {
  Chance decoration;
  EditedCollection collection;
  collection.Name = "sada";
  collection.CaveList = {ShortCave()};
  const Result<std::string> bytes = BuildCollection(collection, decoration);
  ASSERT_TRUE(bytes);
  const std::string packed = folder.Write("my.zk", *bytes);
  const std::string path = folder.In("sada - Test.zkr");
  Zktool({"run", "--cave", folder.Write("cave", Zktool({"fetch", packed, "1"}).out), "--keys",
          folder.Write("keys", kShortKeys), "--record", path});
  const Told told = Zktool({"verify", "--json", "--collection", packed, "-"}, path + "\n");
  EXPECT_NE(told.out.find("\"counts\": \"yes\", \"number\": 1, "), std::string::npos) << told.out;
  EXPECT_NE(told.out.find("\"counting\": 1}}\n"), std::string::npos) << told.out;
}

// Hands out lines one by one, and remembers what had been told when the next was asked for.
class Watched : public std::streambuf {
 public:
  Watched(std::vector<std::string> lines, const std::ostringstream& out)
      : lines_(std::move(lines)), out_(out) {}

  std::vector<std::string> told;

 protected:
  int_type underflow() override {
    told.push_back(out_.str());
    if (told.size() > lines_.size()) return traits_type::eof();
    std::string& line = lines_[told.size() - 1];
    setg(line.data(), line.data(), line.data() + line.size());
    return traits_type::to_int_type(line.front());
  }

 private:
  std::vector<std::string> lines_;
  const std::ostringstream& out_;
};

TEST_F(VerifyStream, TellsOneBeforeItAsksForTheNext) {
  const std::string a = folder.Write("a.zkr", won), b = folder.Write("b.zkr", won);
  std::ostringstream out, err;
  Watched paths({a + "\n", b + "\n"}, out);
  std::istream in(&paths);
  Console console{in, out, err};
  EXPECT_EQ(RunZktool(std::vector<std::string>{"verify", "--json", "--jobs", "1", "-"}, console), Exit::Fine);
  ASSERT_EQ(paths.told.size(), 3U);
  EXPECT_EQ(paths.told[0], "");
  EXPECT_EQ(paths.told[1], Line(a) + "\n");
  EXPECT_EQ(paths.told[2], Line(a) + "\n" + Line(b) + "\n");
}

// Counts how often it is flushed.
class Flushed : public std::stringbuf {
 public:
  int times = 0;

 protected:
  int sync() override {
    ++times;
    return 0;
  }
};

// Whoever reads must leave the output alone, for another job may be writing: as it is, the standard input is
// tied to it. There is one flush for each record, and one at the end.
TEST_F(VerifyStream, FlushesTheOutputOnlyBehindARecord) {
  const std::string a = folder.Write("a.zkr", won), b = folder.Write("b.zkr", won);
  std::istringstream in(a + "\n" + b + "\n");
  Flushed flushed;
  std::ostream out(&flushed);
  std::ostringstream err;
  in.tie(&out);
  Console console{in, out, err};
  EXPECT_EQ(RunZktool(std::vector<std::string>{"verify", "--json", "--jobs", "1", "-"}, console), Exit::Fine);
  EXPECT_EQ(flushed.times, 3);
}

// A stream into which nothing fits.
class FullDisk : public std::streambuf {
  int overflow(int) override { return traits_type::eof(); }
};

TEST_F(VerifyStream, StopsWhenNobodyTakesTheLines) {
  std::string input;
  for (int i = 0; i < 1000; ++i) input += folder.In("none") + "\n";
  std::istringstream in(input);
  std::ostringstream err;
  FullDisk full;
  std::ostream out(&full);
  Console console{in, out, err};
  EXPECT_EQ(RunZktool(std::vector<std::string>{"verify", "--jobs", "2", "-"}, console), Exit::CannotWrite);
  EXPECT_LT(LinesOf(err.str()).size(), 10U);
}

}  // namespace
}  // namespace zorik::test
