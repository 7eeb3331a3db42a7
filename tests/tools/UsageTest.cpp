#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <iterator>
#include <regex>
#include <sstream>
#include <streambuf>
#include <utility>

#include "tools/Tool.h"
#include "zktool/Commands.h"

namespace zorik::test {
namespace {

const std::vector<std::string> kNames = CommandNames();

// Scripts know the commands by these names. One that is new goes into the table of commands alone.
const std::vector<std::string> kPromised{"run",   "replay", "verify",   "diff",     "unpack",     "pack",
                                         "fetch", "new",    "progress", "scramble", "unscramble", "solve"};

// Scripts know the exits by their numbers and words; neither may change.
const std::vector<std::pair<Exit, const char*>> kWords{
    {static_cast<Exit>(0), "fine"},          {static_cast<Exit>(1), "no"},
    {static_cast<Exit>(2), "usage"},         {static_cast<Exit>(3), "cannot-read"},
    {static_cast<Exit>(4), "cannot-write"},  {static_cast<Exit>(5), "bad-cave"},
    {static_cast<Exit>(6), "bad-keys"},      {static_cast<Exit>(7), "bad-collection"},
    {static_cast<Exit>(8), "bad-text"},      {static_cast<Exit>(9), "bad-trace"},
    {static_cast<Exit>(10), "no-such-cave"}, {static_cast<Exit>(11), "failed"},
    {static_cast<Exit>(12), "impossible"},
};

std::string RowOf(Exit exit, const char* word) {
  std::ostringstream row;
  row << "\n" << std::setw(4) << static_cast<int>(exit) << "  " << word << " ";
  return row.str();
}

TEST(Commands, ThatScriptsKnowAreAllThere) {
  for (const std::string& name : kPromised) {
    EXPECT_EQ(std::count(kNames.begin(), kNames.end(), name), 1) << name;
  }
}

TEST(Usage, IsWrongWithoutACommandOrWithAnUnknownOne) {
  EXPECT_EQ(Zktool({}).exit, Exit::Usage);
  const Told told = Zktool({"dance"});
  EXPECT_EQ(told.exit, Exit::Usage);
  EXPECT_EQ(told.err, "zktool: usage: \"dance\" is no command; zktool --help lists them\n");
  EXPECT_EQ(told.out, "");
}

// What a command wants besides its options, by the first line of its help.
struct Wanted {
  std::size_t operands = 0;
  bool orMore = false;
};

Wanted WantedBy(const std::string& name) {
  const std::string help = Zktool({name, "--help"}).out;
  const std::string usage = help.substr(0, help.find('\n'));
  const std::regex options(R"(\[[^\]]*\]|--?[a-z]\S* \S+)");
  std::istringstream words(std::regex_replace(usage, options, ""));
  const auto count = std::distance(std::istream_iterator<std::string>(words), {});
  return {static_cast<std::size_t>(count) - 3, usage.ends_with("...")};  // behind "usage: zktool NAME"
}

std::vector<std::string> WithOperands(const std::string& name, std::size_t count) {
  std::vector<std::string> arguments(count + 1, "x");
  arguments.front() = name;
  return arguments;
}

TEST(Usage, IsWrongWithTooManyArgumentsOrAnUnknownOption) {
  for (const std::string& name : kNames) {
    EXPECT_EQ(Zktool({name, "--no-such-option"}).exit, Exit::Usage) << name;
    const Wanted wanted = WantedBy(name);
    if (wanted.orMore) continue;
    EXPECT_EQ(Zktool(WithOperands(name, wanted.operands + 1)).exit, Exit::Usage) << name;
  }
}

TEST(Usage, IsWrongWithTooFewArguments) {
  for (const std::string& name : kNames) {
    const Wanted wanted = WantedBy(name);
    if (wanted.operands == 0) continue;
    const Told told = Zktool(WithOperands(name, wanted.operands - 1));
    EXPECT_EQ(told.exit, Exit::Usage) << name;
    EXPECT_NE(told.err.find("zktool " + name), std::string::npos) << told.err;
  }
  EXPECT_EQ(Zktool({"run"}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"run", "--cave", "x", "--keys"}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"replay", "x", "--grid", "--grid"}).exit, Exit::Usage);
}

TEST(Usage, TakesWhatStandsBehindTwoDashesAsItIs) {
  const Told told = Zktool({"replay", "--", "--no-such-file"});
  EXPECT_EQ(told.exit, Exit::CannotRead);
  EXPECT_NE(told.err.find("--no-such-file"), std::string::npos);
}

TEST(Help, ListsEveryCommandAndEveryExitCode) {
  const Told told = Zktool({"--help"});
  EXPECT_EQ(told.exit, Exit::Fine);
  for (const std::string& name : kNames) {
    EXPECT_NE(told.out.find("\n  " + name + " "), std::string::npos) << name;
  }
  for (const auto& [exit, word] : kWords) {
    EXPECT_NE(told.out.find(RowOf(exit, word)), std::string::npos) << word;
  }
}

TEST(Help, IsTheOnlyListOfExitCodes) {
  for (const std::string& name : kNames) {
    const Told told = Zktool({name, "--help"});
    EXPECT_NE(told.out.find("\nThe exit codes are listed by zktool --help.\n"), std::string::npos) << name;
    for (const auto& [exit, word] : kWords) EXPECT_EQ(told.out.find(RowOf(exit, word)), std::string::npos);
  }
}

TEST(Fail, NamesEveryExitByItsWord) {
  for (const auto& [exit, word] : kWords) {
    std::istringstream in;
    std::ostringstream out, err;
    Console console{in, out, err};
    EXPECT_EQ(Fail(console, exit, "so it is"), exit);
    EXPECT_EQ(err.str(), "zktool: " + std::string(word) + ": so it is\n");
    EXPECT_EQ(out.str(), "");
  }
}

TEST(Version, IsThatOfTheProject) {
  const Told told = Zktool({"--version"});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, "zktool " ZORIK_VERSION "\n");
  EXPECT_EQ(told.err, "");
}

TEST(Help, IsThereForEveryCommand) {
  for (const std::string& name : kNames) {
    const Told told = Zktool({name, "--help"});
    EXPECT_EQ(told.exit, Exit::Fine) << name;
    EXPECT_EQ(told.out.substr(0, 14 + name.size()), "usage: zktool " + name);
    EXPECT_EQ(told.err, "");
  }
}

// A stream into which nothing fits.
class FullDisk : public std::streambuf {
  int overflow(int) override { return traits_type::eof(); }
};

TEST(Output, ThatCannotBeWrittenIsAFailure) {
  FullDisk full;
  std::istream in(nullptr);
  std::ostream out(&full);
  std::ostringstream err;
  Console console{in, out, err};
  EXPECT_EQ(RunZktool(std::vector<std::string>{"new", "small"}, console), Exit::CannotWrite);
  EXPECT_EQ(err.str(), "zktool: cannot-write: cannot write the standard output\n");
}

}  // namespace
}  // namespace zorik::test
