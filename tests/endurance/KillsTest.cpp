// The game is killed while it saves, at any moment: what was there stands, or what was to come, each of them
// whole.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QSettings>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>

#include "data/FileTrouble.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/RecordSlot.h"
#include "data/Result.h"
#include "endurance/Endurance.h"
#include "flow/SadaModel.h"
#include "platform/LeftFiles.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "platform/ShippedCaves.h"
#include "support/TempFolder.h"

namespace zorik::test {
namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 20;
constexpr int kMostRounds = 1000;

// How long this takes, in microseconds.
std::uint32_t TimeOf(const std::function<void()>& save) {
  const auto start = std::chrono::steady_clock::now();
  save();
  const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
  return static_cast<std::uint32_t>(took.count());
}

// A child does this again and again until it is killed, within so many microseconds.
void KillAmid(const std::function<void()>& save, Chance& chance, std::uint32_t longest) {
  const pid_t child = fork();
  if (child == 0) {
    for (;;) save();
  }
  ASSERT_GT(child, 0);  // kill(-1) would end every process of the user
  usleep(chance.Below(longest));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

long FilesBelow(const std::string& folder) {
  return std::distance(fs::recursive_directory_iterator(folder), fs::recursive_directory_iterator());
}

// The half files that saving leaves when it is killed. A game that starts later on sweeps them away.
long SweepHalfFiles(const std::string& folder) {
  const long before = FilesBelow(folder);
  std::vector<std::string> folders{folder};
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_directory()) folders.push_back(entry.path().string());
    if (entry.is_regular_file()) {
      fs::last_write_time(entry.path(), fs::file_time_type::clock::now() - std::chrono::minutes(2));
    }
  }
  for (const std::string& each : folders) SweepLeftFiles(each);
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    EXPECT_FALSE(WriterOf(entry.path().filename().string())) << entry.path();
  }
  return before - FilesBelow(folder);
}

// Kills one saving after the other. Of each, one of the two is to stand afterwards.
class EnduringSaves : public testing::Test {
 protected:
  struct Saving {
    std::string what;
    std::function<void()> one, other;  // saves this, saves that, in its place
    std::function<std::string()> found;
  };

  void Endure(const Saving& saving) {
    const std::uint32_t first = TimeOf(saving.other);
    const std::string other = saving.found();
    const std::uint32_t longest = 2 * (first + TimeOf(saving.one));
    const std::string one = saving.found();
    ASSERT_NE(one, other);
    Chance chance = ChanceOfNow();
    long midway = 0;
    long seen[2] = {};
    Patience patience(kRounds);
    const auto seenBoth = [&] { return seen[0] > 0 && seen[1] > 0; };
    // On a busy machine a child may be killed before it has come to anything.
    while (!HasFailure() && (patience.Lasts() || (!seenBoth() && patience.Rounds() < kMostRounds))) {
      KillAmid(
          [&] {
            saving.other();
            saving.one();
          },
          chance, longest);
      const std::string found = saving.found();
      EXPECT_TRUE(found == one || found == other)
          << found.size() << " bytes after kill " << patience.Rounds();
      if (HasFailure()) break;
      ++seen[found == one ? 1 : 0];
      midway += SweepHalfFiles(folder_);
    }
    EXPECT_GT(seen[0], 0) << "none was killed after its first saving";
    EXPECT_GT(seen[1], 0);
    Tell(saving.what, patience.Rounds(), midway);
  }

  void Tell(const std::string& what, long kills, long midway) const {
    if (HasFailure()) KeepFolder(folder_, "killed-saving-" + what);
    Count(kills, "kills while saving " + what);
    Count(midway, "half files swept that were left of " + what);
  }

  TempFolder temp_{"kills"};
  const std::string folder_ = temp_.Path();
};

TEST_F(EnduringSaves, LeaveARecordWhole) {
  const RecordSlot slot{folder_ + "/Ada/Alfa - a.zkr", "Alfa", "a", "", {}};
  const auto store = [&](std::size_t moves) {
    Chance chance(3);
    const std::string head = BuildRecordHead("Alfa", static_cast<int>(moves % 1000), "Ada", chance);
    EXPECT_TRUE(StoreRun({slot, 0, head + std::string(moves, 'A')}));
  };
  Endure({"records", [=] { store(300000); }, [=] { store(90000); }, [&] { return *ReadWhole(slot.Path); }});
}

TEST_F(EnduringSaves, LeaveACollectionWhole) {
  const std::string path = folder_ + "/a.zk";
  const auto save = [&](const std::string& author, int caves) {
    SadaModel sada({"Sada", "", {}}, 1);
    sada.SetText(SadaText::Author, author);
    for (int i = 0; i < caves; ++i) sada.AddCave(NewCaveSize::Large);
    EXPECT_TRUE(sada.Save(path));
  };
  Endure(
      {"collections", [=] { save("Eva", 40); }, [=] { save("Jana", 20); }, [&] { return *ReadWhole(path); }});
}

TEST_F(EnduringSaves, LeaveTheSettingsWhole) {
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(folder_));
  const auto store = [](bool slow) {
    Settings settings;
    if (slow) settings.Speed = 10;
    settings.Sound = !slow;
    EXPECT_TRUE(StoreSett(settings));
  };
  const auto found = [&] {
    std::string bytes;
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      if (entry.path().extension() == ".ini") bytes += *ReadWhole(entry.path().string());
    }
    return bytes;
  };
  Endure({"settings", [=] { store(true); }, [=] { store(false); }, found});
}

// An installation with three collections.
class EnduringFirstStart : public EnduringSaves {
 protected:
  EnduringFirstStart() {
    for (const char* part : {"opt/share/games/zorik/Skins", "opt/share/games/zorik/Caves"}) {
      fs::create_directories(fs::path(folder_) / part);
    }
    for (const auto& [name, caves] : {std::pair("a.zk", 90), std::pair("b.zk", 20), std::pair("c.zk", 60)}) {
      SadaModel sada({"Sada", "", {}}, 1);
      for (int i = 0; i < caves; ++i) sada.AddCave(NewCaveSize::Large);
      EXPECT_TRUE(sada.Save(shipped_ + name));
      names_.push_back(name);
    }
  }

  Paths Start() const { return *FindPaths({folder_ + "/opt/games", home_, {}, {}, {}}); }

  // How many have come. Each of these is whole.
  long Come() const {
    long come = 0;
    for (const std::string& name : names_) {
      const std::string own = home_ + "/Caves/" + name;
      if (!fs::exists(own)) continue;
      ++come;
      EXPECT_EQ(*ReadWhole(own), *ReadWhole(shipped_ + name)) << name;
    }
    return come;
  }

  const std::string home_ = folder_ + "/home";
  const std::string shipped_ = folder_ + "/opt/share/games/zorik/Caves/";
  std::vector<std::string> names_;
};

TEST_F(EnduringFirstStart, BringsEachCollectionAsAWholeAndTheNextStartTheRest) {
  Chance chance = ChanceOfNow();
  long midway = 0;
  long few = 0;
  const std::uint32_t longest = 2 * TimeOf([&] { Start(); });
  Patience patience(kRounds);
  while (!HasFailure() && patience.Lasts()) {
    fs::remove_all(home_);
    KillAmid([&] { Start(); }, chance, longest);
    few += Come() < static_cast<long>(names_.size()) ? 1 : 0;
    midway += SweepHalfFiles(folder_);
    const Paths paths = Start();
    EXPECT_TRUE(BringCaves(paths, LackingCaves(paths)));
    EXPECT_EQ(Come(), static_cast<long>(names_.size()));
  }
  EXPECT_GT(few, 0) << "none was killed early enough";
  Tell("first starts", patience.Rounds(), midway);
}

}  // namespace
}  // namespace zorik::test
