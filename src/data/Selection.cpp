#include "data/Selection.h"

#include <utility>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"

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
      files_(std::make_shared<FolderNames>(playerFolder_)),
      progress_(Stored()) {
  NameFiles();
}

void Selection::NameFiles() {
  for (const PlayedCave& cave : collection_.Caves) {
    fileNames_.push_back(FileSystemName(RecordFileName(collection_.Name, cave.Record.Name)));
    foldedNames_.push_back(FoldFileName(fileNames_.back()));
  }
}

void Selection::Select(int number) {
  if (IsCave(number)) selected_ = number;
}

int Selection::OpenCaveBefore(int number) const {
  int before = number - 1;
  while (before > 0 && State(before) != CaveState::Open) --before;
  return before;
}

void Selection::Prosel(const RecordSlot& slot, int score) {
  const int number = CaveOf(slot);
  if (number == 0) return;
  Solve(number, score);
  Select(number);
  Select(number + 1);
  CelkSkore(collection_, progress_);
}

void Selection::Count(const UnstoredWins& wins) {
  for (const UnstoredWins::Kept& kept : wins.All()) {
    const int number = CaveOf(kept.Run.Slot);
    if (number > 0) Solve(number, kept.Run.Score);
  }
  CelkSkore(collection_, progress_);
}

void Selection::Solve(int number, int score) {
  progress_.Scores[Index(number)] = score;
  progress_.CaveStates[Index(number)] = CaveState::Solved;
  for (int next = number + 1; IsCave(next) && State(next) == CaveState::Closed; ++next) {
    progress_.CaveStates[Index(next)] = CaveState::Open;
    if (!JeBonus(Cave(next).Record.Name)) break;
  }
}

std::string Selection::RecordName() const {
  return RecordFileName(collection_.Name, Cave(selected_).Record.Name);
}

std::string Selection::RecordPath(int number) const {
  return files_->PathOf(fileNames_[Index(number) - 1]);
}

RecordSlot Selection::Slot(int number) const {
  RecordSlot slot{RecordPath(number),
                  collection_.Name,
                  Cave(number).Record.Name,
                  std::string(WithoutMarker(Cave(number).Text)),
                  {}};
  for (int other = 1; other <= CaveCount(); ++other) {
    if (foldedNames_[Index(other) - 1] != foldedNames_[Index(number) - 1]) continue;
    const std::string_view text = WithoutMarker(Cave(other).Text);
    if (text != slot.CaveText) slot.OtherCaves.emplace_back(text);
  }
  return slot;
}

// The selected cave goes first: a collection may hold the same cave twice.
int Selection::CaveOf(const RecordSlot& slot) const {
  const auto is = [&](int number) {
    return WithoutMarker(Cave(number).Text) == slot.CaveText && SameSlot(Slot(number), slot);
  };
  if (is(selected_)) return selected_;
  int number = CaveCount();
  while (number > 0 && !is(number)) --number;
  return number;
}

std::string Selection::Congratulation() const {
  return WithPoints(collection_.Congratulation, FiveDigits(Total()));
}

}  // namespace zorik
