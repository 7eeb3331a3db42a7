#include "data/Selection.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/Files.h"
#include "data/RecordFile.h"

namespace zorik {
namespace {

std::string WithPoints(std::string text, const std::string& points) {
  constexpr std::string_view kMark = "$P";
  std::size_t place = text.find(kMark);
  while (place != std::string::npos) {
    text.replace(place, kMark.size(), points);
    place = text.find(kMark, place + points.size());
  }
  return text;
}

}  // namespace

Result<Selection> Selection::LoadColl(const std::string& path, std::string player, std::string playerFolder) {
  const Result<std::string> bytes = ReadWhole(ResolvePath(path));
  if (!bytes) return Failure{bytes.Message()};
  Result<PlayedCollection> collection = ReadForPlay(*bytes);
  if (!collection) return Failure{path + ": " + collection.Message()};
  if (collection->Caves.empty()) return Failure{path + ": there is no cave in it"};
  return Selection(std::move(*collection), std::move(player), std::move(playerFolder));
}

Selection::Selection(PlayedCollection collection, std::string player, std::string playerFolder)
    : collection_(std::move(collection)),
      player_(std::move(player)),
      playerFolder_(std::move(playerFolder)),
      progress_(Stored()) {}

void Selection::Select(int number) {
  if (IsCave(number)) selected_ = number;
}

int Selection::OpenCaveBefore(int number) const {
  int before = number - 1;
  while (before > 0 && State(before) != CaveState::Open) --before;
  return before;
}

bool Selection::JeLepsi(int score) const {
  return Stored().Scores[Index(selected_)] <= score;
}

Result<Done> Selection::StoreRecord(const std::string& bytes) const {
  std::error_code error;
  std::filesystem::create_directories(playerFolder_, error);
  return WriteWhole(RecordPath(), bytes);
}

void Selection::Prosel(int total, bool bonus) {
  progress_.Scores[Index(selected_)] = std::min(total + (bonus ? kBonusPoints : 0), kHighestScore);
  progress_.CaveStates[Index(selected_)] = CaveState::Solved;
  for (int next = selected_ + 1; IsCave(next) && State(next) == CaveState::Closed; ++next) {
    progress_.CaveStates[Index(next)] = CaveState::Open;
    if (!JeBonus(Cave(next).Record.Name)) break;
  }
  Select(selected_ + 1);
  CelkSkore(collection_, progress_);
}

std::string Selection::RecordName() const {
  return RecordFileName(collection_.Name, Cave(selected_).Record.Name);
}

std::string Selection::RecordPath() const {
  return ResolvePath(playerFolder_ + "/" + FileSystemName(RecordName()));
}

std::string Selection::Congratulation() const {
  return WithPoints(collection_.Congratulation, FiveDigits(Total()));
}

}  // namespace zorik
