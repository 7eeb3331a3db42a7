// What may happen to a file while a collection is saved into it.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "Samples.h"
#include "data/FileTrouble.h"
#include "data/Files.h"
#include "data/Result.h"
#include "flow/SadaModel.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

class SadaSaving : public testing::Test {
 protected:
  SadaSaving() { path_ = folder_ + "/a.zk"; }

  // A collection of some size with this author.
  static SadaModel Sada(const std::string& author) {
    SadaModel sada({"Sada", "", {}}, 1);
    sada.SetText(SadaText::Author, author);
    for (int i = 0; i < 60; ++i) sada.AddCave(NewCaveSize::Large);
    return sada;
  }

  std::vector<std::string> Lines() const {
    const Result<std::string> bytes = ReadWhole(path_);
    EXPECT_TRUE(bytes);
    return bytes ? PlainLines(*bytes) : std::vector<std::string>();
  }

  test::TempFolder temp_{"saving"};
  const std::string folder_ = temp_.Path();
  std::string path_;
};

TEST_F(SadaSaving, TakesTheFileThatWasWrittenForItsOwn) {
  SadaModel sada = Sada("Eva");
  ASSERT_TRUE(sada.Chg());
  ASSERT_TRUE(sada.Save(path_));
  EXPECT_FALSE(sada.Chg());
  EXPECT_EQ(sada.FileName(), path_);
  EXPECT_EQ(Lines().size(), 65U);
}

TEST_F(SadaSaving, LeavesNameAndMarkWhenItFails) {
  SadaModel sada = Sada("Eva");
  ASSERT_TRUE(sada.Save(path_));
  sada.SetText(SadaText::Author, "Jana");
  EXPECT_FALSE(sada.Save(folder_ + "/neni/b.zk"));
  EXPECT_FALSE(sada.Save(folder_));
  EXPECT_TRUE(sada.Chg());
  EXPECT_EQ(sada.FileName(), path_);
  EXPECT_EQ(sada.Text(SadaText::Author), "Jana");
  EXPECT_EQ(sada.ListCount(), 61);
  EXPECT_EQ(Lines()[1], samples::Measured("Eva") + "Bez popisu");
}

TEST_F(SadaSaving, ReplacesAFileThatMayNotBeWritten) {
  ASSERT_TRUE(Sada("Eva").Save(path_));
  fs::permissions(path_, fs::perms::owner_read);
  ASSERT_TRUE(Sada("Jana").Save(path_));
  EXPECT_EQ(Lines()[1], samples::Measured("Jana") + "Bez popisu");
}

TEST_F(SadaSaving, LeavesTheOldFileWhenTheDiskIsFull) {
  ASSERT_TRUE(Sada("Eva").Save(path_));
  const Result<std::string> before = ReadWhole(path_);
  const pid_t child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit most{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &most);
    SadaModel sada = Sada("Jana");
    const bool saved = static_cast<bool>(sada.Save(path_));
    _exit(!saved && sada.Chg() && sada.FileName().empty() ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_EQ(*ReadWhole(path_), *before);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST_F(SadaSaving, KeepsAFileWithFaultsOnceThoughTheDiskIsFullBehindIt) {
  const std::string damaged = samples::CollectionFile({samples::CaveText("A") + "---01", "E!---02", "Hura"});
  ASSERT_TRUE(WriteWhole(path_, damaged));
  SadaModel sada({"Sada", "", {}}, 1);
  ASSERT_FALSE(sada.Open(path_)->Faults.empty());
  for (int i = 0; i < 60; ++i) sada.AddCave(NewCaveSize::Large);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto old = signal(SIGXFSZ, SIG_IGN);
  const rlimit most{4096, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &most);
  const bool atOnce = static_cast<bool>(sada.Save(path_));
  setrlimit(RLIMIT_FSIZE, &before);
  signal(SIGXFSZ, old);
  EXPECT_FALSE(atOnce);
  const auto saved = sada.Save(path_);
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->KeptAs, path_ + "~1");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 2);
}

TEST_F(SadaSaving, LeavesTheOldOrTheNewFileWhenItIsKilled) {
  constexpr int kTries = 40;
  SadaModel sada = Sada("0");
  ASSERT_TRUE(sada.Save(path_));
  const std::size_t count = Lines().size();
  int last = 0;
  int written = 0;
  for (int i = 1; i <= kTries; ++i) {
    sada.SetText(SadaText::Author, std::to_string(i));
    const pid_t child = fork();
    if (child == 0) {
      for (;;) static_cast<void>(sada.Save(path_));
    }
    ASSERT_GT(child, 0);
    usleep(static_cast<useconds_t>(1000 + i * 1500));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), count);
    const int author = std::stoi(lines[1].substr(1));
    EXPECT_TRUE(author == last || author == i) << author;
    written += author == i ? 1 : 0;
    last = author;
    EXPECT_TRUE(lines[count - 2].ends_with("---61"));
    SadaModel again({"", "", {}}, 1);
    const auto opened = again.Open(path_);
    ASSERT_TRUE(opened);
    EXPECT_TRUE(opened->Faults.empty());
  }
  EXPECT_GT(written, 0) << "none came to writing";
}

// The collections that come with the game

TEST_F(SadaSaving, BringsEveryShippedCollectionBackLineByLine) {
  int collections = 0;
  for (const auto& entry : fs::directory_iterator(ZORIK_CAVES)) {
    if (entry.path().extension() != ".zk") continue;
    ++collections;
    SadaModel sada({"Sada", "", {}}, 1);
    const auto opened = sada.Open(entry.path().string());
    ASSERT_TRUE(opened) << entry.path();
    EXPECT_TRUE(opened->Faults.empty() && !opened->Closed) << entry.path();
    ASSERT_TRUE(sada.Save(path_));
    EXPECT_EQ(Lines(), PlainLines(*ReadWhole(entry.path().string()))) << entry.path();
    EXPECT_LE(sada.Text(SadaText::Description).size(), SadaModel::kLongestDescription) << entry.path();
  }
  EXPECT_GE(collections, 1);
}

}  // namespace
}  // namespace zorik
