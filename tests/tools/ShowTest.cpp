#include <gtest/gtest.h>

#include "tools/Tool.h"
#include "zktool/Commands.h"
#include "zktool/Programs.h"

namespace zorik::test {
namespace {

class Show : public ::testing::Test {
 protected:
  Folder folder;
  std::string record = folder.Write("short.zkr", ShortRecord());
  std::string picture = folder.In("out.png"), movie = folder.In("out.gif");
};

TEST_F(Show, SaysWhichTermsItKnows) {
  const std::vector<std::vector<std::string>> wrong{
      {"--cell", "0"}, {"--cell", "81"}, {"--cell", "x"}, {"--scheme", "Pink"}, {"--scheme", "classic"}};
  for (const auto& terms : wrong) {
    const Told render = Zktool({"render", terms[0], terms[1], record, "-o", picture});
    EXPECT_EQ(render.exit, Exit::Usage) << terms[1];
    EXPECT_NE(render.err.find(terms[0]), std::string::npos) << render.err;
    EXPECT_EQ(Zktool({"movie", terms[0], terms[1], record, "-o", movie}).exit, Exit::Usage) << terms[1];
  }
  EXPECT_EQ(Zktool({"render", "--tick", "-1", record, "-o", picture}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"render", record}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"movie", record}).exit, Exit::Usage);
}

TEST_F(Show, TellsAMovieByItsEnding) {
  for (const char* name : {"out", "out.avi", "gif", "out.gif.txt"}) {
    const Told told = Zktool({"movie", record, "-o", folder.In(name)});
    EXPECT_EQ(told.exit, Exit::Usage) << name;
    EXPECT_EQ(told.err, "zktool: usage: -o: a name that ends in .gif, .webp or .mp4\n");
  }
}

TEST_F(Show, LooksAtTheRecordBeforeItMakesAMovie) {
  EXPECT_EQ(Zktool({"movie", folder.In("none.zkr"), "-o", movie}).exit, Exit::CannotRead);
  const Told told = Zktool({"movie", folder.Write("bad.zkr", "x"), "-o", movie});
  EXPECT_EQ(told.exit, Exit::BadCave);
  EXPECT_NE(told.err.find("bad.zkr"), std::string::npos);
}

// The painter is looked for beside the program that runs, and beside this one there is none.
TEST_F(Show, SaysThatThePainterIsNotThere) {
  ASSERT_EQ(ProgramBeside("zkpaint"), "");
  for (const std::vector<std::string>& line : {std::vector<std::string>{"render", record, "-o", picture},
                                               std::vector<std::string>{"movie", record, "-o", movie}}) {
    const Told told = Zktool(line);
    EXPECT_EQ(told.exit, Exit::Failed);
    EXPECT_EQ(
        told.err,
        "zktool: failed: zkpaint is not beside zktool: it makes the pictures, and comes with the game alone "
        "(it needs Qt)\n");
  }
  EXPECT_EQ(BytesOf(picture), "(no file)");
}

TEST_F(Show, HandsTheWordsOfACallOnAsTheyAre) {
  const std::string odd = folder.In("a b; touch $HOME *");
  const Result<int> touched = RunProgram({"touch", "--", odd});
  ASSERT_TRUE(touched) << touched.Message();
  EXPECT_EQ(*touched, 0);
  EXPECT_EQ(BytesOf(odd), "");
}

TEST_F(Show, AnswersHowProgramsEnd) {
  EXPECT_EQ(*RunProgram({"false"}), 1);
  EXPECT_EQ(*RunProgram({"sh", "-c", "kill -9 $$"}), 128 + 9);
  const Result<int> none = RunProgram({"no-such-program-anywhere"});
  ASSERT_FALSE(none);
  EXPECT_EQ(none.Message(), "no-such-program-anywhere cannot be started: No such file or directory");
}

TEST_F(Show, LetsOneProgramReadWhatAnotherWrites) {
  const std::string words = folder.In("words"), copy = folder.In("copy");
  const auto end =
      RunPipe({"printf", "so it is"}, {"sh", "-c", "cat >\"$0\"; echo said >&2; exit 3", copy}, words);
  ASSERT_TRUE(end) << end.Message();
  EXPECT_EQ(end->writer, 0);
  EXPECT_EQ(end->reader, 3);
  EXPECT_EQ(BytesOf(copy), "so it is");
  EXPECT_EQ(BytesOf(words), "said\n");
}

// Neither waits for the other for ever.
TEST_F(Show, EndsAPipeOfWhichOneEndCannotBeStarted) {
  const std::string words = folder.In("words");
  const auto unread = RunPipe({"yes"}, {"no-such-program-anywhere"}, words);
  ASSERT_FALSE(unread);
  EXPECT_TRUE(unread.Why().lacksReader);
  const auto unwritten = RunPipe({"no-such-program-anywhere"}, {"cat"}, words);
  ASSERT_FALSE(unwritten);
  EXPECT_FALSE(unwritten.Why().lacksReader);
  const auto deaf = RunPipe({"yes"}, {"true"}, words);
  ASSERT_TRUE(deaf);
  EXPECT_GT(deaf->writer, 0);
}

}  // namespace
}  // namespace zorik::test
