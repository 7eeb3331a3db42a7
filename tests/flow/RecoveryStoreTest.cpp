// What is being edited outlives the program, and what was discarded can be had again.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "data/Collection.h"
#include "data/FileTrouble.h"
#include "data/Files.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "flow/RecoveryFile.h"
#include "flow/RecoveryStore.h"
#include "flow/SadaModel.h"
#include "support/OneStepCave.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kNow = 1700000000;

KeptSada Sada(const std::string& name, int caves = 1) {
  SadaModel model({}, 1);
  model.SetText(SadaText::Name, name);
  for (int i = 1; i < caves; ++i) model.AddCave(NewCaveSize::Small);
  return *model.Kept(std::nullopt);
}

std::vector<std::string> NamesOf(const std::vector<KeptEntry>& entries) {
  std::vector<std::string> names;
  for (const KeptEntry& entry : entries) names.push_back(entry.Name);
  return names;
}
using Names = std::vector<std::string>;

class RecoveryStoreTest : public testing::Test {
 protected:
  // As a program that keeps this collection and is killed.
  void KeepAndDie(const KeptSada& sada, std::int64_t now = kNow) const {
    const pid_t child = fork();
    if (child == 0) {
      RecoveryStore store(folder_);
      if (!store.Keep(sada, now)) _exit(1);
      kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
  }
  Names Left() const { return NamesOf(RecoveryStore(folder_).Left()); }
  Names Discarded() const { return NamesOf(RecoveryStore(folder_).Discarded()); }
  std::vector<std::string> Files(const std::string& part) const {
    std::vector<std::string> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder_ + '/' + part, error)) {
      files.push_back(entry.path().filename().string());
    }
    return files;
  }

  test::TempFolder temp_{"recovery"};
  const std::string folder_ = temp_.Path() + "/Recovery";
};

TEST_F(RecoveryStoreTest, MakesNothingBeforeSomethingIsKept) {
  RecoveryStore store(folder_);
  EXPECT_TRUE(store.Left().empty() && store.Discarded().empty());
  EXPECT_FALSE(fs::exists(folder_));
}

TEST_F(RecoveryStoreTest, GivesBackWhatAKilledProgramHasKept) {
  KeptSada sada = Sada("Jedna", 3);
  sada.FileName = "/home/eva/a.zk";
  sada.Faulty = true;
  sada.Selected = 2;
  KeepAndDie(sada);
  RecoveryStore store(folder_);
  const std::vector<KeptEntry> left = store.Left();
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0].Time, kNow);
  EXPECT_EQ(left[0].Name, "Jedna");
  EXPECT_EQ(left[0].FileName, "/home/eva/a.zk");
  EXPECT_EQ(left[0].Caves, 3);
  const Result<KeptSada> read = RecoveryStore::Read(left[0]);
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, sada);
  EXPECT_TRUE(store.Delete(left[0]));
  EXPECT_TRUE(Files("Running").empty());
}

TEST_F(RecoveryStoreTest, OffersNothingOfAProgramThatStillRuns) {
  RecoveryStore running(folder_);
  ASSERT_TRUE(running.Keep(Sada("Jedna"), kNow));
  EXPECT_EQ(Left(), Names{});
  EXPECT_EQ(NamesOf(running.Left()), Names{});
}

TEST_F(RecoveryStoreTest, OfTwoProgramsEachHasItsOwn) {
  RecoveryStore one(folder_);
  RecoveryStore other(folder_);
  ASSERT_TRUE(one.Keep(Sada("Jedna"), kNow));
  ASSERT_TRUE(other.Keep(Sada("Druha"), kNow));
  EXPECT_EQ(FilesIn(folder_ + "/Running", ".recovery").size(), 2U);
  one.Clear();
  EXPECT_EQ(FilesIn(folder_ + "/Running", ".recovery").size(), 1U);
}

TEST_F(RecoveryStoreTest, OffersWhatWasLeftToOneProgramOnly) {
  KeepAndDie(Sada("Jedna"));
  RecoveryStore one(folder_);
  EXPECT_EQ(NamesOf(one.Left()), Names{"Jedna"});
  EXPECT_EQ(Left(), Names{});
  EXPECT_EQ(NamesOf(one.Left()), Names{"Jedna"}) << "asked once more";
}

TEST_F(RecoveryStoreTest, KeepsTheLastStateAndWritesOnlyWhatHasChanged) {
  RecoveryStore store(folder_);
  ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow));
  const std::string path = folder_ + "/Running/" + FilesIn(folder_ + "/Running", ".recovery").at(0);
  const std::string first = *ReadWhole(path);
  ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow + 30));
  EXPECT_EQ(*ReadWhole(path), first);
  ASSERT_TRUE(store.Keep(Sada("Druha"), kNow + 60));
  EXPECT_NE(*ReadWhole(path), first);
  EXPECT_EQ(Files("Running").size(), 2U) << "a file and its lock";
}

TEST_F(RecoveryStoreTest, LeavesNothingWhenNothingIsToBeLost) {
  {
    RecoveryStore store(folder_);
    ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow));
    store.Clear();
    EXPECT_EQ(FilesIn(folder_ + "/Running", ".recovery").size(), 0U);
  }
  EXPECT_TRUE(Files("Running").empty());
}

TEST_F(RecoveryStoreTest, SweepsTheLockOfAProgramThatWasKilledWithNothingToLose) {
  const pid_t child = fork();
  if (child == 0) {
    RecoveryStore store(folder_);
    if (!store.Keep(Sada("Jedna"), kNow)) _exit(1);
    store.Clear();
    kill(getpid(), SIGKILL);
  }
  waitpid(child, nullptr, 0);
  ASSERT_EQ(Files("Running").size(), 1U);
  EXPECT_EQ(Left(), Names{});
  EXPECT_TRUE(Files("Running").empty());
}

// A limit on the size of files stands for a disk that is full.
TEST_F(RecoveryStoreTest, AFullDiskLeavesWhatWasKeptBefore) {
  RecoveryStore store(folder_);
  ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow));
  rlimit before = {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{64, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const Result<Done> kept = store.Keep(Sada("Druha"), kNow + 30);
  const Result<Done> discarded = store.Discard(Sada("Treti"), kNow + 40);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(kept);
  EXPECT_FALSE(discarded);
  EXPECT_EQ(Discarded(), Names{"Jedna"});
}

TEST_F(RecoveryStoreTest, ListsWhatWasDiscardedTheNewestFirst) {
  RecoveryStore store(folder_);
  ASSERT_TRUE(store.Discard(Sada("Jedna"), kNow));
  ASSERT_TRUE(store.Discard(Sada("Druha", 2), kNow));  // in the same second
  ASSERT_TRUE(store.Discard(Sada("Treti"), kNow + 1));
  const std::vector<KeptEntry> entries = store.Discarded();
  EXPECT_EQ(NamesOf(entries), (Names{"Treti", "Druha", "Jedna"}));
  EXPECT_EQ(entries.at(1).Caves, 2);
  EXPECT_EQ(FilesIn(folder_ + "/Running", ".recovery").size(), 0U);
  ASSERT_TRUE(store.Delete(entries.at(1)));
  EXPECT_EQ(Discarded(), (Names{"Treti", "Jedna"}));
}

TEST_F(RecoveryStoreTest, ListsManyOfOneSecondTheNewestFirst) {
  RecoveryStore store(folder_);
  Names newest;
  for (int i = 0; i < 15; ++i) {
    newest.insert(newest.begin(), "S" + std::to_string(i));
    ASSERT_TRUE(store.Discard(Sada(newest.front()), kNow));
  }
  EXPECT_EQ(Discarded(), newest);
}

TEST_F(RecoveryStoreTest, HasWhatIsDiscardedTwiceOnce) {
  RecoveryStore store(folder_);
  for (const char* name : {"Jedna", "Druha", "Jedna"}) ASSERT_TRUE(store.Discard(Sada(name), kNow));
  EXPECT_EQ(Discarded(), (Names{"Jedna", "Druha"}));
}

TEST_F(RecoveryStoreTest, KeepsTwentyDiscardedOnesAndWhatItCannotRead) {
  fs::create_directories(folder_ + "/Discarded");
  ASSERT_TRUE(WriteWhole(folder_ + "/Discarded/000000000000-1-00.recovery", "damaged"));
  RecoveryStore store(folder_);
  for (int i = 0; i < 25; ++i) ASSERT_TRUE(store.Discard(Sada("S" + std::to_string(i)), kNow + i));
  const Names names = Discarded();
  ASSERT_EQ(names.size(), 20U);
  EXPECT_EQ(names.front(), "S24");
  EXPECT_EQ(names.back(), "S5");
  EXPECT_EQ(Files("Discarded").size(), 21U);
}

TEST_F(RecoveryStoreTest, MovesToTheDiscardedOnesWhatTheAuthorDoesNotWantBack) {
  KeepAndDie(Sada("Jedna"));
  RecoveryStore store(folder_);
  const std::vector<KeptEntry> left = store.Left();
  ASSERT_EQ(left.size(), 1U);
  ASSERT_TRUE(store.Discard(left[0], kNow + 100));
  EXPECT_EQ(Discarded(), Names{"Jedna"});
  EXPECT_EQ(store.Discarded()[0].Time, kNow) << "the time of its last change";
  EXPECT_TRUE(store.Left().empty());
  EXPECT_TRUE(Files("Running").empty());
}

TEST_F(RecoveryStoreTest, MovesWhatWasDamagedWhileItWasOfferedAndLosesNothingElse) {
  KeepAndDie(Sada("Jedna"));
  RecoveryStore store(folder_);
  ASSERT_TRUE(store.Discard(Sada("Druha"), kNow));
  const std::vector<KeptEntry> left = store.Left();
  ASSERT_EQ(left.size(), 1U);
  ASSERT_TRUE(WriteWhole(left[0].Path, "damaged"));
  EXPECT_TRUE(store.Discard(left[0], kNow + 1));
  EXPECT_EQ(Files("Discarded").size(), 2U);
  EXPECT_EQ(Discarded(), Names{"Druha"});
  EXPECT_FALSE(fs::exists(left[0].Path));
}

TEST_F(RecoveryStoreTest, PassesOverWhatIsDamagedAndLeavesItThere) {
  KeepAndDie(Sada("Jedna"));
  const std::string path = folder_ + "/Running/" + FilesIn(folder_ + "/Running", ".recovery").at(0);
  const std::string whole = *ReadWhole(path);
  std::vector<std::string> spoiled{"", "Zorik recovery 1\n", whole.substr(0, whole.size() / 2),
                                   std::string(1000, '\0')};
  for (const std::string& bytes : spoiled) {
    ASSERT_TRUE(WriteWhole(path, bytes));
    EXPECT_EQ(Left(), Names{});
    EXPECT_EQ(*ReadWhole(path), bytes);
  }
}

// No editor writes such a one.
TEST_F(RecoveryStoreTest, PassesOverWhatTheEditorWouldNotOpen) {
  fs::create_directories(folder_ + "/Discarded");
  const auto listed = [this](const std::vector<std::string>& plain) {
    KeptSada sada = Sada("Jedna");
    sada.Bytes.clear();
    Chance chance(1);
    for (const std::string& line : plain) sada.Bytes += ScrambleText(line, chance) + "\r\n";
    EXPECT_TRUE(WriteWhole(folder_ + "/Discarded/a.recovery", BuildRecovery({kNow, sada})));
    return Discarded();
  };
  const std::string cave = test::OneStepCave("A") + "---01";
  EXPECT_EQ(listed({"AX", "AX", "a@b.cz0", cave, "Konec"}), Names{"Jedna"});
  EXPECT_EQ(listed({"AX", "AX", "a@b.czQ", cave, "Konec"}), Names{}) << "closed";
  EXPECT_EQ(listed({"AX", "AX", "a@b.cz0", "Konec"}), Names{}) << "without a cave";
  EXPECT_EQ(listed({}), Names{}) << "without anything";
}

TEST_F(RecoveryStoreTest, LeavesNoLockOfWhatWasDiscarded) {
  {
    RecoveryStore store(folder_);
    ASSERT_TRUE(store.Discard(Sada("Jedna"), kNow));
  }
  EXPECT_TRUE(Files("Running").empty());
}

TEST_F(RecoveryStoreTest, WritesOverNothingThatHasTheNameItWouldTake) {
  const std::string taken = folder_ + "/Running/001700000000-" + std::to_string(getpid()) + "-00.recovery";
  fs::create_directories(folder_ + "/Running");
  ASSERT_TRUE(WriteWhole(taken, "another one's"));
  RecoveryStore store(folder_);
  ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow));
  EXPECT_EQ(*ReadWhole(taken), "another one's");
  EXPECT_EQ(FilesIn(folder_ + "/Running", ".recovery").size(), 2U);
}

// There are a hundred names for each second.
TEST_F(RecoveryStoreTest, TakesTheOneNameThatIsFreeAndSaysSoWhenNoneIs) {
  const auto taken = [this](const std::string& part, int number) {
    return folder_ + '/' + part + "/001700000000-" + std::to_string(getpid()) + (number < 10 ? "-0" : "-") +
           std::to_string(number) + ".recovery";
  };
  for (const int gap : {0, 99}) {
    for (const char* const part : {"Running", "Discarded"}) {
      fs::create_directories(folder_ + '/' + part);
      for (int i = 0; i < 100; ++i) EXPECT_TRUE(WriteWhole(taken(part, i), "another one's"));
      fs::remove(taken(part, gap));
    }
    RecoveryStore store(folder_);
    ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow));
    EXPECT_NE(*ReadWhole(taken("Running", gap)), "another one's");
    EXPECT_FALSE(RecoveryStore(folder_).Keep(Sada("Druha"), kNow));
    ASSERT_TRUE(store.Discard(Sada("Jedna"), kNow));
    EXPECT_EQ(Discarded(), Names{"Jedna"});
    ASSERT_TRUE(store.Keep(Sada("Treti"), kNow));
    EXPECT_FALSE(store.Discard(Sada("Treti"), kNow));
    EXPECT_EQ(Discarded(), Names{"Jedna"});
    EXPECT_NE(*ReadWhole(taken("Running", gap)), "another one's") << "it stays where it was kept";
  }
}

TEST_F(RecoveryStoreTest, PassesOverPipesFoldersAndGiants) {
  fs::create_directories(folder_ + "/Discarded/b.recovery");
  ASSERT_EQ(mkfifo((folder_ + "/Discarded/a.recovery").c_str(), 0600), 0);
  ASSERT_TRUE(WriteWhole(folder_ + "/Discarded/c.recovery", "Zorik recovery 1\n"));
  fs::resize_file(folder_ + "/Discarded/c.recovery", std::uintmax_t{1} << 34);  // holes only
  EXPECT_EQ(Discarded(), Names{});
  EXPECT_EQ(Files("Discarded").size(), 3U);
}

TEST_F(RecoveryStoreTest, GoesOnWhenItsFolderIsTakenAway) {
  RecoveryStore store(folder_);
  ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow));
  fs::remove_all(folder_);
  ASSERT_TRUE(store.Keep(Sada("Jedna"), kNow + 30));
  EXPECT_EQ(FilesIn(folder_ + "/Running", ".recovery").size(), 1U);
}

TEST_F(RecoveryStoreTest, SaysSoWhenItsFolderCannotBeMade) {
  ASSERT_TRUE(WriteWhole(folder_, "a file in its place"));
  RecoveryStore store(folder_);
  EXPECT_FALSE(store.Keep(Sada("Jedna"), kNow));
  EXPECT_FALSE(store.Discard(Sada("Jedna"), kNow));
  EXPECT_TRUE(store.Left().empty() && store.Discarded().empty());
}

// Taking up

class TakingUpTest : public testing::Test {
 protected:
  static std::vector<std::string> Caves(const SadaModel& sada) {
    std::vector<std::string> caves;
    for (int i = 1; i <= sada.ListCount(); ++i) caves.push_back(sada.Cave(i));
    return caves;
  }

  SadaModel sada_{{}, 1};
  SadaModel other_{{}, 2};
};

TEST_F(TakingUpTest, GivesBackAllThatWasKept) {
  sada_.AddCave(test::OneStepCave("Jedna"));
  sada_.AddCave(test::OneStepCave("Druha"));
  sada_.ToggleOpen(2);
  sada_.SetText(SadaText::Mail, "eva@priklad.cz");
  sada_.SetText(SadaText::Description,
                "Popis\r\nna dva \xF8\xE1"
                "dky");
  sada_.SetCongratulation("Hura, $P");
  sada_.Select(3);
  const Result<KeptSada> kept = sada_.Kept(std::nullopt);
  ASSERT_TRUE(kept);
  ASSERT_TRUE(other_.TakeUp(*kept));
  EXPECT_TRUE(other_.Chg());
  EXPECT_EQ(Caves(other_), Caves(sada_));
  EXPECT_EQ(other_.ListSelected(), 3);
  // All three took over the flag of the first place.
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(other_.IsOpen(i), i != 2) << i;
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    EXPECT_EQ(other_.Text(text), sada_.Text(text));
  }
  EXPECT_EQ(other_.CongratulationText(), "Hura, $P");
  EXPECT_EQ(*other_.Kept(std::nullopt), *kept);
}

TEST_F(TakingUpTest, HasTheCaveThatIsWithTheCaveEditorInItsPlace) {
  sada_.AddCave(test::OneStepCave("Jedna"));
  sada_.AddCave(test::OneStepCave("Druha"));
  sada_.Select(2);
  ASSERT_TRUE(other_.TakeUp(*sada_.Kept(test::OneStepCave("Rozdelana"))));
  EXPECT_EQ(other_.Name(2), "Rozdelana");
  EXPECT_EQ(other_.Cave(1), sada_.Cave(1));
  EXPECT_EQ(sada_.Name(2), "Jedna");
}

TEST_F(TakingUpTest, HasTextsThatNoFileHasRoomForWhole) {
  sada_.SetText(SadaText::Name, std::string(300, 'N'));
  sada_.SetText(SadaText::Author, std::string(250, 'A'));
  ASSERT_TRUE(other_.TakeUp(*sada_.Kept(std::nullopt)));
  EXPECT_EQ(other_.Text(SadaText::Name), std::string(300, 'N'));
  EXPECT_EQ(other_.Text(SadaText::Author), std::string(250, 'A'));
}

TEST_F(TakingUpTest, HasACongratulationThatWouldReadLikeACave) {
  sada_.SetCongratulation("Hura---02");
  ASSERT_TRUE(other_.TakeUp(*sada_.Kept(std::nullopt)));
  EXPECT_EQ(other_.CongratulationText(), "Hura---02");
  EXPECT_EQ(other_.ListCount(), 1);
}

TEST_F(TakingUpTest, KeepsTheDamagedFileBesideItAtTheNextSave) {
  const test::TempFolder temp("faulty");
  const std::string path = temp.Path() + "/a.zk";
  ASSERT_TRUE(sada_.Save(path));
  std::string damaged = *ReadWhole(path);
  damaged.insert(damaged.rfind('\n', damaged.size() - 2), "x");
  damaged += "left over\r\n";
  ASSERT_TRUE(WriteWhole(path, damaged));
  const auto opened = sada_.Open(path);
  ASSERT_TRUE(opened);
  ASSERT_FALSE(opened->Faults.empty());
  ASSERT_TRUE(other_.TakeUp(*sada_.Kept(std::nullopt)));
  EXPECT_EQ(other_.FileName(), path);
  const auto saved = other_.Save(path);
  ASSERT_TRUE(saved);
  EXPECT_EQ(*ReadWhole(saved->KeptAs), damaged);
}

TEST_F(TakingUpTest, OfWhatIsNoCollectionChangesNothing) {
  sada_.SetText(SadaText::Name, "Moje");
  EXPECT_FALSE(sada_.TakeUp(KeptSada{"", "Jina", "", "", false, 1}));
  EXPECT_EQ(sada_.Text(SadaText::Name), "Moje");
}

TEST_F(TakingUpTest, OfACollectionThatIsClosedChangesNothing) {
  sada_.SetText(SadaText::Name, "Moje");
  Chance chance(1);
  const std::string closed =
      ScrambleLines({"AX", "AX", "a@b.czQ", test::OneStepCave("A") + "---01", "Konec"}, chance);
  const auto report = sada_.TakeUp(KeptSada{closed, "Jina", "Eva", "/home/eva/a.zk", true, 1});
  ASSERT_TRUE(report);
  EXPECT_TRUE(report->Closed);
  EXPECT_EQ(sada_.Text(SadaText::Name), "Moje");
  EXPECT_NE(sada_.Text(SadaText::Author), "Eva");
  EXPECT_EQ(sada_.FileName(), "");
}

// The collection was read from a file with faults, and is saved over another one.
TEST_F(TakingUpTest, KeepsNothingBesideAFileThatItHasNotRead) {
  const test::TempFolder temp("other");
  const std::string path = temp.Path() + "/b.zk";
  ASSERT_TRUE(sada_.Save(path));
  KeptSada kept = *sada_.Kept(std::nullopt);
  kept.FileName = temp.Path() + "/a.zk";
  kept.Faulty = true;
  ASSERT_TRUE(other_.TakeUp(kept));
  const auto saved = other_.Save(path);
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->KeptAs, "");
  EXPECT_EQ(std::distance(fs::directory_iterator(temp.Path()), {}), 1);
}

}  // namespace
}  // namespace zorik
