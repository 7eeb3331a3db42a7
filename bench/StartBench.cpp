// What the way from the start of the game to its start screen costs, in starts of a program with an empty
// window. They are started in turn, so that a noisy machine slows both alike. It wants a display.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace zorik {
namespace {

namespace fs = std::filesystem;

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
  }
  ~Home() { fs::remove_all(folder_); }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

 private:
  fs::path folder_;
};

struct Start {
  double seconds = 0;
  double processor = 0;  // seconds, with those of its own children
};

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Starts a program, which ends with the first picture of its window. Fails if it comes to another end.
bool Run(const char* program, const char* window, Start& sum) {
  setenv("ZORIK_FIRST_PAINT", window, 1);
  const auto begin = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    execl(program, program, nullptr);
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) return false;
  sum.seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  sum.processor += Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
  return true;
}

void ColdStart(benchmark::State& state) {
  const Home home;
  setenv("QT_PLUGIN_PATH", ZORIK_PLUGINS, 1);
  setenv("QT_QPA_GENERIC_PLUGINS", "zorikfirstpaint", 1);
  Start game, empty;
  for (auto _ : state) {
    if (Run(ZORIK_GAME_FOLDER "/zorik", "zorik::FrmStart2", game) && Run(ZORIK_EMPTY, "QWidget", empty))
      continue;
    state.SkipWithError("a program did not come to its first picture; is there a display?");
    break;
  }
  const auto starts = static_cast<double>(state.iterations());
  state.counters["ms_a_game"] = game.seconds / starts * 1000;
  state.counters["ms_an_empty"] = empty.seconds / starts * 1000;
  state.counters["game_in_empty"] = game.seconds / empty.seconds;
  state.counters["processor_in_empty"] = game.processor / empty.processor;
}
BENCHMARK(ColdStart)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(20);

}  // namespace
}  // namespace zorik
