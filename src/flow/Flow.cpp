#include "flow/Flow.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "data/CaveO.h"
#include "data/Files.h"
#include "data/PlayerName.h"
#include "data/RecordFile.h"

namespace zorik {
namespace {

WayBack WayBackFrom(const Hra& hra) {
  if (hra.EditorRun()) return WayBack::Editor;
  return hra.PlayerName == kNobody ? WayBack::Start : WayBack::Selection;
}

}  // namespace

Flow::Flow(Hra& hra, FlowFolders folders, std::uint64_t seed)
    : hra_(hra), folders_(std::move(folders)), sada_(SadaWords(), seed) {}

// Choosing

Result<Done> Flow::OpenCollection(const std::string& path, const std::string& playerFolder) {
  wins_.StoreAll();
  Result<Selection> selection =
      Selection::LoadColl(path, PlayerOfFolder(playerFolder), FolderOf(playerFolder));
  if (!selection) return Failure{selection.Message()};
  selection_ = std::move(*selection);
  selection_->Count(wins_);
  return Done{};
}

// The very folder of this name, or the one that a player of this name gets.
std::string Flow::FolderOf(const std::string& playerFolder) const {
  const std::string listed = folders_.Players + "/" + playerFolder;
  std::error_code error;
  if (std::filesystem::is_directory(listed, error)) return listed;
  return ResolvePath(folders_.Players + "/" + FileSystemName(PlayerOfFolder(playerFolder)));
}

bool Flow::IsStored(int number) const {
  return wins_.All().empty() || wins_.Find(selection_->Slot(number)) == nullptr;
}

// Runs

Result<Done> Flow::Start() {
  Result<Done> started = StartAs(RunKind::Play);
  if (started) slot_ = ChosenSlot();
  return started;
}

Result<Done> Flow::StartPractice() {
  return StartAs(RunKind::Practice);
}

Result<Done> Flow::StartAs(RunKind kind) {
  if (!MayStart()) return Failure{"the cave is closed"};
  const auto step = [&] { return OpenCave(hra_, selection_->Cave(selection_->Selected()), kind); };
  return Begin(selection_->Collection().Name, selection_->Player(), step);
}

Result<Done> Flow::ReplayChosen() {
  return Replay(selection_->RecordPath(), selection_->Player());
}

Result<Done> Flow::ReplayFile(const std::string& path) {
  return Replay(path, kNobody);
}

Result<Done> Flow::Replay(const std::string& path, const std::string& player) {
  const Result<std::string> bytes = ReadWhole(path);
  if (!bytes) return Failure{bytes.Message()};
  return Begin({}, player, [&] { return zorik::Replay(hra_, *bytes); });
}

// The machine has to know the names of a run when that starts.
Result<Done> Flow::Begin(const std::string& collection, const std::string& player,
                         const std::function<Result<Done>()>& step) {
  const std::string collectionBefore = std::exchange(hra_.CollectionName, collection);
  const std::string playerBefore = std::exchange(hra_.PlayerName, player);
  Result<Done> begun = step();
  if (begun) {
    tried_ = false;
    return begun;
  }
  hra_.CollectionName = collectionBefore;
  hra_.PlayerName = playerBefore;
  return begun;
}

std::optional<std::string> Flow::MadeByAnother() const {
  if (!hra_.ReplayPlaying() || hra_.RecordPlayer == hra_.PlayerName) return std::nullopt;
  return hra_.RecordPlayer;
}

WayBack Flow::Leave() {
  EndGame(hra_);
  return tried_ ? WayBack::Editor : WayBackFrom(hra_);
}

// The win

bool Flow::Win() {
  if (!hra_.Win || hra_.Practising() || Busy()) return false;
  const WinResult& win = *hra_.Win;
  kind_ = hra_.Kind;
  after_ = WayBackFrom(hra_);
  won_ = {slot_, win.Score, SaveRecord(hra_, win.Score)};
  score_ = {ScoreBreakdown(hra_, win), win.BaseScore, win.BonusCave};
  showing_ = kind_ == RunKind::Play ? Showing::First : Showing::Last;
  return true;
}

Storing Flow::Due() const {
  if (kind_ == RunKind::Test && showing_ == Showing::Last) return Storing::Stored;
  return showing_ == Showing::First ? Storing::Asked : Storing::None;
}

void Flow::ScoreClosed() {
  const Showing closed = std::exchange(showing_, Showing::None);
  if (closed == Showing::First) showing_ = Showing::Last;
  if (closed == Showing::Last && kind_ == RunKind::Play) selection_->Prosel(won_.Slot, won_.Score);
}

// Records

std::optional<StandingRecord> Flow::OtherCave(const WonRun& run) const {
  StandingRecord standing = ReadStanding(run.Slot);
  if (standing.Of != StandingRecord::Kind::AnotherCave) return std::nullopt;
  return standing;
}

Result<Done> Flow::Store(const WonRun& run) {
  Result<Done> stored = StoreKept(run);
  if (stored) {
    wins_.StoreAll();
  } else {
    wins_.Keep(run);
  }
  return stored;
}

Result<Done> Flow::StoreKept(const WonRun& run) {
  Result<Done> stored = StoreRun(run);
  if (stored) wins_.Drop(run.Slot);
  return stored;
}

Result<Done> Flow::StoreElsewhere(const WonRun& run, const std::string& path) {
  Result<Done> written = WriteWhole(path, run.Bytes);
  if (written) wins_.SavedElsewhere(run.Slot);
  return written;
}

// The ghost, and two records of a cave

std::optional<std::string> Flow::RecordOf(const Rival& rival) const {
  return RecordOfRival(folders_.Players, rival.Folder, ChosenSlot());
}

std::string Flow::OwnRecord() const {
  const RecordSlot slot = ChosenSlot();
  if (const WonRun* const kept = wins_.Find(slot)) return kept->Bytes;
  if (ReadStanding(slot).Of != StandingRecord::Kind::ThisCave) return {};
  Result<std::string> own = ReadWhole(slot.Path);
  return own ? *own : std::string();
}

std::string Flow::GhostRecord() const {
  const RecordSlot slot = ChosenSlot();
  if (!rival_.empty()) {
    if (std::optional<std::string> his = RecordOfRival(folders_.Players, rival_, slot)) return *his;
  }
  return OwnRecord();
}

// Editing

void Flow::BeginEditing(const std::string& playerFolder) {
  editor_ = PlayerOfFolder(playerFolder);
}

Result<Done> Flow::TestRun(const std::string& caveText) {
  const auto step = [&] { return PaintCave(hra_, caveText, RunKind::Test); };
  Result<Done> started = Begin(sada_.Text(SadaText::Name), editor_, step);
  if (started) slot_ = TestSlot();
  return started;
}

Result<Done> Flow::TryRun(const std::string& record) {
  Result<Done> begun = Begin({}, kNobody, [&] { return zorik::Replay(hra_, record); });
  if (begun) tried_ = true;
  return begun;
}

Result<Done> Flow::TryCave(const std::string& caveText) {
  const auto step = [&] { return PaintCave(hra_, caveText, RunKind::Practice); };
  Result<Done> begun = Begin(sada_.Text(SadaText::Name), kNobody, step);
  if (begun) tried_ = true;
  return begun;
}

// Of a cave that is tried out there is one record, whatever became of the cave since.
RecordSlot Flow::TestSlot() const {
  const std::string name = FileSystemName(TestRecordFileName(hra_.CaveName));
  return {ResolvePath(folders_.TestRecords + "/" + name),
          hra_.CollectionName,
          hra_.CaveName,
          std::string(WithoutMarker(hra_.CaveText)),
          {}};
}

}  // namespace zorik
