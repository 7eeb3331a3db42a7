#include <gtest/gtest.h>

#include <sstream>
#include <streambuf>

#include "tools/Tool.h"
#include "zktool/Commands.h"

namespace zorik::test {
namespace {

const std::vector<std::string> kNames{"run",   "replay", "verify",   "diff",     "unpack",     "pack",
                                      "fetch", "new",    "progress", "scramble", "unscramble", "solve"};

TEST(Usage, IsWrongWithoutACommandOrWithAnUnknownOne) {
  EXPECT_EQ(Zktool({}).exit, Exit::Usage);
  const Told told = Zktool({"dance"});
  EXPECT_EQ(told.exit, Exit::Usage);
  EXPECT_EQ(told.err, "zktool: usage: \"dance\" is no command; zktool --help lists them\n");
  EXPECT_EQ(told.out, "");
}

TEST(Usage, IsWrongWithTooManyArgumentsOrAnUnknownOption) {
  for (const std::string& name : kNames) {
    EXPECT_EQ(Zktool({name, "--no-such-option"}).exit, Exit::Usage) << name;
    if (name == "verify") continue;
    EXPECT_EQ(Zktool({name, "a", "b", "c"}).exit, Exit::Usage) << name;
  }
}

TEST(Usage, IsWrongWithTooFewArguments) {
  for (const std::string& name : kNames) {
    if (name == "scramble" || name == "unscramble") continue;
    const Told told = Zktool({name});
    EXPECT_EQ(told.exit, Exit::Usage) << name;
    EXPECT_NE(told.err.find("zktool " + name), std::string::npos) << told.err;
  }
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
  for (int code = 0; code <= static_cast<int>(Exit::Impossible); ++code) {
    EXPECT_NE(told.out.find((code < 10 ? "\n   " : "\n  ") + std::to_string(code) + "  "), std::string::npos);
  }
}

TEST(Help, IsThereForEveryCommand) {
  for (const std::string& name : kNames) {
    const Told told = Zktool({name, "--help"});
    EXPECT_EQ(told.exit, Exit::Fine) << name;
    EXPECT_EQ(told.out.substr(0, 14 + name.size()), "usage: zktool " + name);
    EXPECT_NE(told.out.find("Exit codes"), std::string::npos) << name;
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
