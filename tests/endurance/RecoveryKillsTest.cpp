// The game is killed while somebody edits, at any moment: no more is lost than what was edited since the last
// time that it was kept. ENDURANCE_EVERY tells how often that is, in milliseconds; without it the pace is
// quicker than the game's, so that a test takes a moment.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "data/CaveO.h"
#include "data/Result.h"
#include "endurance/Endurance.h"
#include "flow/RecoveryStore.h"
#include "flow/SadaModel.h"
#include "support/TempFolder.h"

namespace zorik::test {
namespace {

constexpr int kRounds = 2;
constexpr int kAtOnce = 4;   // of which one is asked to end, the others are killed
constexpr int kQuick = 500;  // milliseconds
constexpr int kBusy = 2500;  // that a busy machine may be late
constexpr int kHalfAMinute = 30000;
constexpr int kLongestStart = 60000;

std::int64_t Now() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

int NumberOf(const char* name, int otherwise) {
  const char* const told = std::getenv(name);
  return told == nullptr ? otherwise : std::atoi(told);
}

// The number that was edited in last, as far as a collection tells.
int EditOf(const SadaModel& sada, bool cave) {
  if (!cave) {
    const std::string& name = sada.Text(SadaText::Name);
    return name.starts_with("Sada ") ? std::atoi(name.c_str() + 5) : 0;
  }
  const Result<CaveRecord> record = ParseCaveText(sada.Cave(1));
  int number = 0;
  for (unsigned bit = 0; record && bit < 12; ++bit) {
    if (record->Cells[bit + 3][2] == 'R') number |= 1 << bit;
  }
  return number;
}

// A game in a process of its own, in which somebody edits.
class EditedGame {
 public:
  EditedGame(const std::string& home, int every, bool cave) : home_(home), cave_(cave) {
    std::filesystem::create_directories(home_ + "/Players/Ada");
    std::filesystem::permissions(home_, std::filesystem::perms::owner_all);
    const std::string pace = std::to_string(every);
    process_ = fork();
    if (process_ != 0) return;
    setenv("ZORIK_HOME", home_.c_str(), 1);
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "HOME"})
      setenv(folder, home_.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    execl(ZORIK_EDITING, ZORIK_EDITING, pace.c_str(), cave ? "cave" : "collection", nullptr);
    _exit(127);
  }

  ~EditedGame() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  EditedGame(const EditedGame&) = delete;
  EditedGame& operator=(const EditedGame&) = delete;

  // The times of its edits, the first one first.
  std::vector<std::int64_t> Edits() const {
    std::vector<std::int64_t> times;
    std::ifstream log(home_ + "/edits");
    for (std::int64_t number = 0, time = 0; log >> number >> time;) times.push_back(time);
    return times;
  }

  bool HasBegun() const { return std::filesystem::exists(home_ + "/edits") && !Edits().empty(); }

  // Ends it, and looks at what it has left: milliseconds of editing that are lost. Nothing when something
  // else went wrong.
  std::optional<std::int64_t> Kill(int number) {
    if (process_ <= 0) return std::nullopt;  // kill(-1) would end every process of the user
    const std::int64_t now = Now();
    kill(process_, number);
    waitpid(process_, &status_, 0);
    process_ = 0;
    RecoveryStore store(home_ + "/Recovery");
    const std::vector<KeptEntry> left = store.Left();
    if (left.size() > 1) return std::nullopt;
    const int edit = left.empty() ? 0 : EditIn(left[0]);
    const std::vector<std::int64_t> edits = Edits();
    std::printf("%s after %.1f s, %zu edits: %d came back, lost %.2f s\n",
                number == SIGKILL ? "killed" : "asked", static_cast<double>(now - edits.front()) / 1000,
                edits.size(), edit, static_cast<double>(LostAfter(edits, edit, now)) / 1000);
    return LostAfter(edits, edit, now);
  }

  bool EndedByItself() const { return WIFEXITED(status_) && WEXITSTATUS(status_) == 0; }

 private:
  int EditIn(const KeptEntry& entry) const {
    SadaModel sada({}, 1);
    const Result<KeptSada> kept = RecoveryStore::Read(entry);
    if (!kept || !sada.TakeUp(*kept)) return 0;
    return EditOf(sada, cave_);
  }
  // An edit that began when the game was already asked to end does not count.
  static std::int64_t LostAfter(const std::vector<std::int64_t>& edits, int edit, std::int64_t now) {
    const auto lost = static_cast<std::size_t>(edit);
    return lost < edits.size() ? std::max<std::int64_t>(0, now - edits[lost]) : 0;
  }

  std::string home_;
  bool cave_;
  pid_t process_ = 0;
  int status_ = 0;
};

class EnduringEdits : public testing::Test {
 protected:
  // So many games at a time, each of them ended at a moment of its own.
  void KillSome(int round) {
    std::deque<EditedGame> games;
    std::vector<std::int64_t> ends;
    for (int i = 0; i < atOnce_; ++i) {
      games.emplace_back(temp_.Path() + "/" + std::to_string(round) + "-" + std::to_string(i), every_,
                         i % 2 == 1);
    }
    const std::int64_t patience = Now() + kLongestStart;
    while (!std::all_of(games.begin(), games.end(), [](const EditedGame& game) { return game.HasBegun(); })) {
      ASSERT_LT(Now(), patience) << "a game did not start";
      usleep(50000);
    }
    // Some are killed before anything was kept.
    for (int i = 0; i < atOnce_; ++i) {
      ends.push_back(games[static_cast<std::size_t>(i)].Edits().front() +
                     chance_.Below(static_cast<std::uint32_t>(5 * every_ / 2 + kQuick)));
    }
    for (;;) {
      const auto next = std::min_element(ends.begin(), ends.end());
      if (*next == kDone) return;
      while (Now() < *next) usleep(5000);
      End(games[static_cast<std::size_t>(next - ends.begin())], (next - ends.begin()) % 4 == 3);
      *next = kDone;
    }
  }

  void End(EditedGame& game, bool asked) {
    const std::optional<std::int64_t> lost = game.Kill(asked ? SIGTERM : SIGKILL);
    ASSERT_TRUE(lost);
    ++kills_;
    worst_ = std::max(worst_, *lost);
    if (asked) {
      EXPECT_TRUE(game.EndedByItself());
      EXPECT_EQ(*lost, 0) << "it was asked, and had the time";
    }
    EXPECT_LE(*lost, every_ < kHalfAMinute / 2 ? every_ + kBusy : kHalfAMinute);
  }

  static constexpr std::int64_t kDone = INT64_MAX;
  TempFolder temp_{"edits"};
  Chance chance_ = ChanceOfNow();
  int every_ = NumberOf("ENDURANCE_EVERY", kQuick);
  int atOnce_ = NumberOf("ENDURANCE_AT_ONCE", kAtOnce);
  long kills_ = 0;
  std::int64_t worst_ = 0;
};

TEST_F(EnduringEdits, LoseNoMoreThanWasEditedSinceTheyWereKept) {
  Patience patience(kRounds);
  while (!HasFatalFailure() && patience.Lasts()) KillSome(patience.Rounds());
  std::printf("most that was lost: %.2f s\n", static_cast<double>(worst_) / 1000);
  if (HasFailure()) KeepFolder(temp_.Path(), "killed-edits");
  Count(kills_, "kills while somebody edited");
}

}  // namespace
}  // namespace zorik::test
