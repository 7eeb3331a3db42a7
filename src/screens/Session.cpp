#include "screens/Session.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Progress.h"
#include "data/RecordFile.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNewPlayer = "Hr\xE1\xE8";  // Windows-1250

// The entries of a folder that a test lets pass, in the order of their names without regard to case.
template <class Test>
std::vector<fs::path> Entries(const std::string& folder, Test test) {
  std::vector<fs::path> found;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (test(*entry)) found.push_back(entry->path());
  }
  std::sort(found.begin(), found.end(), [](const fs::path& left, const fs::path& right) {
    return FoldFileName(left.filename().string()) < FoldFileName(right.filename().string());
  });
  return found;
}

std::vector<fs::path> Collections(const std::string& folder) {
  return Entries(folder, [](const fs::directory_entry& entry) {
    std::error_code error;
    return FoldFileName(entry.path().extension().string()) == ".zk" && entry.is_regular_file(error);
  });
}

std::string FirstPlayer(const std::string& folder) {
  const auto players = Entries(folder, [](const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error);
  });
  if (players.empty()) return kNewPlayer;
  return FromUtf8WithGaps(players.front().filename().string());
}

std::optional<std::string> ReadIfThere(const std::string& path) {
  Result<std::string> bytes = ReadWhole(path);
  if (!bytes) return std::nullopt;
  return std::move(*bytes);
}

}  // namespace

Session::Session(PlayedCollection collection, std::string player, std::string playerFolder,
                 std::string shipped)
    : collection_(std::move(collection)),
      player_(std::move(player)),
      playerFolder_(std::move(playerFolder)),
      shipped_(std::move(shipped)) {}

Result<Session> Session::OpenFirst(const Paths& paths) {
  std::string reason = paths.CavesPath;
  for (const fs::path& file : Collections(paths.CavesPath)) {
    const Result<std::string> bytes = ReadWhole(file.string());
    Result<PlayedCollection> collection =
        bytes ? ReadForPlay(*bytes) : Result<PlayedCollection>(Failure{bytes.Message()});
    if (!collection) {
      reason = file.string();
      continue;
    }
    std::string player = FirstPlayer(paths.PlayersPath);
    std::string folder = ResolvePath(paths.PlayersPath + "/" + FileSystemName(player));
    return Session(std::move(*collection), std::move(player), std::move(folder),
                   paths.ShippedReplays + "/" + file.stem().string());
  }
  return Failure{reason};
}

const std::string& Session::CaveText(int number) const {
  return collection_.Caves[static_cast<std::size_t>(number - 1)].Text;
}

bool Session::IsOpen(int number) const {
  const Progress progress = ReadProgress(collection_, player_, RecordsInFolder(playerFolder_));
  return progress.CaveStates[static_cast<std::size_t>(number)] != CaveState::Closed;
}

int Session::Total() const {
  return ReadProgress(collection_, player_, RecordsInFolder(playerFolder_)).Total;
}

bool Session::JeLepsi(int number, int score) const {
  const Progress progress = ReadProgress(collection_, player_, RecordsInFolder(playerFolder_));
  return progress.Scores[static_cast<std::size_t>(number)] <= score;
}

std::string Session::RecordPath(int number) const {
  const std::string& cave = collection_.Caves[static_cast<std::size_t>(number - 1)].Record.Name;
  return ResolvePath(playerFolder_ + "/" + FileSystemName(RecordFileName(collection_.Name, cave)));
}

std::optional<std::string> Session::StoredRecord(int number) const {
  return ReadIfThere(RecordPath(number));
}

Result<std::string> Session::Store(int number, const std::string& bytes) const {
  std::error_code error;
  fs::create_directories(playerFolder_, error);
  const std::string path = RecordPath(number);
  const Result<Done> written = WriteWhole(path, bytes);
  if (!written) return Failure{written.Message()};
  return path;
}

std::optional<std::string> Session::ShippedRecord(int number) const {
  char name[16];
  std::snprintf(name, sizeof name, "/%02d.zkr", number);
  return ReadIfThere(ResolvePath(shipped_ + name));
}

}  // namespace zorik
