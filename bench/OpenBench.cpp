// What opening a collection of 99 caves costs whose player has many other files in his folder, in openings by
// a player who has none. And what each step through its caves costs him then.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/InTurn.h"
#include "data/Collection.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Selection.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCollection = "Sada";

// A folder with a collection, a player who has nothing and one who has this many records of other caves.
class Home {
 public:
  explicit Home(std::int64_t files) {
    std::string pattern = (fs::temp_directory_path() / "zorik-open-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    fs::create_directories(folder_ / "few");
    fs::create_directories(folder_ / "many");
    Put("sada.zk", Collection());
    for (std::int64_t i = 0; i < files; ++i) {
      const std::string cave = "Komnata " + std::to_string(i);
      Put("many/" + FileSystemName(RecordFileName("Jin\xE1 sada", cave)), "x");
    }
  }
  ~Home() { fs::remove_all(folder_); }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

  Selection Open(const char* player) const {
    Result<Selection> selection =
        Selection::LoadColl((folder_ / "sada.zk").string(), player, (folder_ / player).string());
    if (!selection) std::abort();
    return std::move(*selection);
  }

 private:
  static std::string Collection() {
    EditedCollection collection;
    collection.Name = kCollection;
    collection.Mail = "@";
    for (int i = 1; i <= kMostCaves; ++i) {
      NewCaveTexts texts;
      texts.SmallName = "Komnata " + std::to_string(i);
      collection.CaveList.push_back(*NewCaveText(NewCaveSize::Small, texts));
    }
    Chance decoration;
    return *BuildCollection(collection, decoration);
  }

  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
  }

  fs::path folder_;
};

void OpenCollection(benchmark::State& state) {
  const Home home(state.range(0));
  InTurn turns;
  for (auto _ : state) {
    turns.Measure(
        1, [&] { benchmark::DoNotOptimize(home.Open("many")); },
        [&] { benchmark::DoNotOptimize(home.Open("few")); });
  }
  turns.Report(state, "opening", "empty");
}

void StepThroughCaves(benchmark::State& state) {
  const Home home(state.range(0));
  Selection many = home.Open("many"), few = home.Open("few");
  int number = 0;
  const auto step = [&number](Selection& selection) {
    number = number % selection.CaveCount() + 1;
    selection.Select(number);
    benchmark::DoNotOptimize(selection.RecordPath());
  };
  InTurn turns;
  for (auto _ : state) {
    turns.Measure(
        10, [&] { step(many); }, [&] { step(few); });
  }
  turns.Report(state, "step", "empty");
}

BENCHMARK(OpenCollection)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(StepThroughCaves)->Arg(100)->Arg(10000)->Iterations(10);

}  // namespace
}  // namespace zorik
