#include "run/PlayerStatistics.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>
#include <utility>

#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/Progress.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr int kTicksOfAFile = 50;  // what reading one costs, in ticks of play

bool IsRecordFile(const fs::path& path) {
  return LowerCase(path.extension().string()) == ".zkr";
}

std::vector<std::string> RecordsIn(const std::string& folder) {
  std::vector<std::string> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (IsRecordFile(entry->path())) files.push_back(entry->path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// The number in a cave's marker; 0 where it has none.
int NumberIn(std::string_view caveText) {
  if (!EndsWithMarker(caveText)) return 0;
  const auto digit = [&](std::size_t fromEnd) { return caveText[caveText.size() - fromEnd] - '0'; };
  const auto isDigit = [](int value) { return value >= 0 && value <= 9; };
  return isDigit(digit(2)) && isDigit(digit(1)) ? 10 * digit(2) + digit(1) : 0;
}

// The one of this name, which is made in its place if it is missing.
CollectionStatistics& Named(std::vector<CollectionStatistics>& all, const std::string& name) {
  const auto before = [](const CollectionStatistics& one, const std::string& other) {
    return one.Name < other;
  };
  auto place = std::lower_bound(all.begin(), all.end(), name, before);
  if (place == all.end() || place->Name != name) {
    place = all.insert(place, CollectionStatistics());
    place->Name = name;
  }
  return *place;
}

// Caves without a number come last.
auto OrderOf(const WonCave& cave) {
  return std::tuple(cave.Number == 0, cave.Number, std::string_view(cave.Name), std::string_view(cave.Text));
}

WonCave& CaveOf(std::vector<WonCave>& caves, WonCave wanted) {
  const auto same = [&](const WonCave& cave) { return cave.Text == wanted.Text; };
  const auto found = std::find_if(caves.begin(), caves.end(), same);
  if (found != caves.end()) return *found;
  const auto before = [](const WonCave& one, const WonCave& other) { return OrderOf(one) < OrderOf(other); };
  return *caves.insert(std::upper_bound(caves.begin(), caves.end(), wanted, before), wanted);
}

}  // namespace

PlayerStatistics::PlayerStatistics(const std::string& folder, std::string player)
    : player_(std::move(player)), files_(RecordsIn(folder)), run_(std::make_unique<Hra>()) {}

void PlayerStatistics::ReadOn(int ticks) {
  const KeySnapshot nothing;
  while (ticks > 0 && !AtEnd()) {
    if (!replaying_) {
      OpenNext();
      ticks -= kTicksOfAFile;
      continue;
    }
    const TickEnd end = Tick(*run_, nothing);
    ranDry_ = ranDry_ || run_->RanDry;
    --ticks;
    if (end != TickEnd::Running) Replayed(end);
  }
}

void PlayerStatistics::OpenNext() {
  const Result<std::string> bytes = ReadWhole(files_[next_++]);
  if (!bytes || !Replay(*run_, *bytes)) {
    ++faulty_;
  } else if (!SamePlayer(run_->RecordPlayer, player_)) {
    ++ofOthers_;
  } else {
    replaying_ = true;
    ranDry_ = false;
  }
}

// A record that begins the cave again by an empty line would do so for ever.
void PlayerStatistics::Replayed(TickEnd end) {
  replaying_ = false;
  if (end == TickEnd::Won && !ranDry_) {
    Count();
  } else {
    ++faulty_;
  }
}

void PlayerStatistics::Count() {
  CollectionStatistics& collection = Named(collections_, run_->CollectionName);
  collection.Ticks += run_->Ticks;
  collection.Gems += run_->GemsCollected;
  const std::string text(WithoutMarker(run_->CaveText));
  WonCave& cave = CaveOf(collection.Caves, {NumberIn(run_->CaveText), run_->CaveName, text, run_->Ticks, 0});
  cave.BestTicks = std::min(cave.BestTicks, run_->Ticks);
  const int better = std::max(0, run_->Win->Score - cave.BestScore);
  cave.BestScore += better;
  collection.Points += better;
}

int PlayerStatistics::Caves() const {
  std::size_t caves = 0;
  for (const CollectionStatistics& collection : collections_) caves += collection.Caves.size();
  return static_cast<int>(caves);
}

std::int64_t PlayerStatistics::Sum(std::int64_t CollectionStatistics::*number) const {
  std::int64_t sum = 0;
  for (const CollectionStatistics& collection : collections_) sum += collection.*number;
  return sum;
}

}  // namespace zorik
