// What the way from the start of the game to its start screen costs, in starts of a program with an empty
// window. They are started in turn, so that a noisy machine slows both alike, and of each the median counts.
// It wants a display.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kGame = ZORIK_GAME_FOLDER "/zorik";
constexpr const char* kStartScreen = "zorik::FrmStart2";

// A home as it is after the first start: with a player, with the shipped collections, in Czech.
class Home {
 public:
  Home() {
    std::string pattern = (fs::temp_directory_path() / "zorik-start-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    fs::create_directories(folder_ / "Players" / "Zora");
    fs::copy(fs::path(ZORIK_GAME_FOLDER) / "Caves", folder_ / "Caves");
    fs::create_directories(folder_ / "config" / "Ortvan");
    std::ofstream(folder_ / "config" / "Ortvan" / "Zorik2.ini") << "[General]\nSkin=Default\n";
    setenv("ZORIK_HOME", folder_.c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
    setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
    // A desktop keeps the folder of what runs in memory.
    std::string memory = "/dev/shm/zorik-start-XXXXXX";
    if (mkdtemp(memory.data()) != nullptr) running_ = memory;
    if (!running_.empty()) setenv("XDG_RUNTIME_DIR", running_.c_str(), 1);
  }
  ~Home() {
    fs::remove_all(folder_);
    if (!running_.empty()) fs::remove_all(running_);
  }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

 private:
  fs::path folder_;
  fs::path running_;
};

// What each of the starts took, in seconds: until its picture was there; of the processor until it was gone,
// with what its own children took.
struct Starts {
  std::vector<double> wall, processor;
};

double MedianOf(std::vector<double> numbers) {
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return numbers.empty() ? 0 : *middle;
}

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Starts a program, which tells of the first picture of its window and ends. Fails if it comes to another
// end.
bool Run(const char* program, const char* window, Starts& starts) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return false;
  setenv("ZORIK_FIRST_PAINT", window, 1);
  setenv("ZORIK_FIRST_PAINT_TO", std::to_string(ends[1]).c_str(), 1);
  const auto begin = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    execl(program, program, nullptr);
    _exit(127);
  }
  close(ends[1]);
  char word = 0;
  const bool painted = read(ends[0], &word, 1) == 1;
  const auto end = std::chrono::steady_clock::now();
  close(ends[0]);
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0 || !painted) return false;
  starts.wall.push_back(std::chrono::duration<double>(end - begin).count());
  starts.processor.push_back(Seconds(usage.ru_utime) + Seconds(usage.ru_stime));
  return true;
}

void ColdStart(benchmark::State& state) {
  const Home home;
  setenv("QT_PLUGIN_PATH", ZORIK_PLUGINS, 1);
  setenv("QT_QPA_GENERIC_PLUGINS", "zorikfirstpaint", 1);
  Starts first, game, empty;
  // The first start of all tells the desktop of the game, which the others find done.
  Run(kGame, kStartScreen, first);
  for (auto _ : state) {
    if (Run(kGame, kStartScreen, game) && Run(ZORIK_EMPTY, "QWidget", empty)) continue;
    state.SkipWithError("a program did not come to its first picture; is there a display?");
    break;
  }
  state.counters["ms_a_game"] = MedianOf(game.wall) * 1000;
  state.counters["ms_an_empty"] = MedianOf(empty.wall) * 1000;
  state.counters["game_in_empty"] = MedianOf(game.wall) / MedianOf(empty.wall);
  state.counters["processor_in_empty"] = MedianOf(game.processor) / MedianOf(empty.processor);
}
BENCHMARK(ColdStart)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(25);

}  // namespace
}  // namespace zorik
