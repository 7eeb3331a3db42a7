#include "skin/SkinData.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "data/Files.h"
#include "data/Result.h"
#include "skin/DefaultWords.h"
#include "skin/SkinKeys.h"

namespace zorik {
namespace {

constexpr int kAbsent = -1;

// What is read in a skin lies in its folders.
bool LeadsUp(const std::filesystem::path& path) {
  return std::find(path.begin(), path.end(), "..") != path.end();
}

std::string WithBreaks(std::string_view value) {
  std::string text(value);
  std::replace(text.begin(), text.end(), '#', '\r');
  return text;
}

// The path of a file of a skin, whose separators are those of its makers.
std::filesystem::path PathOf(std::string_view name) {
  std::string path(name);
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

bool IsFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

using Extensions = std::vector<const char*>;
using Usable = std::function<bool(const std::string& path)>;

// The first usable file of the skin, then of the default skin, with one of the extensions in their order.
std::optional<std::string> FindFile(const SkinPlaces& places, std::string_view name,
                                    const Extensions& extensions, const Usable& usable) {
  const std::filesystem::path path = PathOf(name);
  if (LeadsUp(path)) return std::nullopt;
  for (const std::string& searched : SearchFolders(places, path.parent_path().string())) {
    const std::string folder = ResolvePath(searched);
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) continue;
    for (const char* const extension : extensions) {
      std::string file = ResolvePath(folder + "/" + path.filename().string() + extension);
      if (IsFile(file) && usable(file)) return file;
    }
  }
  return std::nullopt;
}

// The table of a skin's folder, from the first of the folders of skins that has one.
std::string FirstTable(const std::vector<std::string>& folders) {
  for (const std::string& folder : folders) {
    std::string path = ResolvePath(folder + "/skindata.txt");
    if (IsFile(path)) return path;
  }
  return {};
}

using Retry = std::function<bool(const std::string& missing)>;

std::string FindOrAsk(const SkinPlaces& places, std::string_view name, const Extensions& extensions,
                      const std::string& missing, const Retry& retry, const Usable& usable) {
  for (;;) {
    if (auto path = FindFile(places, name, extensions, usable)) return *path;
    if (!retry || !retry(missing)) return {};
  }
}

}  // namespace

SkinFlaws SkinData::LoadSkinData(const SkinPlaces& places) {
  SkinTable_ = {};
  std::vector<std::string> files;
  for (const std::string_view skin : {std::string_view(kDefaultSkin), std::string_view(places.Skin)}) {
    firstOwn_ = files.size();
    for (const char* folder : {"Menu", "Game"}) {
      const std::string path = FirstTable(FoldersOf(places, skin, folder));
      const auto bytes = ReadWhole(path);
      if (!bytes) continue;
      SkinTable_.Add(*bytes, files.size());
      files.push_back(path);
    }
  }
  return Check(files);
}

SkinFlaws SkinData::Check(const std::vector<std::string>& files) {
  SkinFlaws flaws;
  const std::size_t passedOver = SkinTable_.PassedOver();
  if (passedOver > 0) flaws.push_back({SkinFlaw::Kind::TooManyKeys, std::to_string(passedOver), {}});
  for (const SkinKey& key : CheckedSkinKeys()) {
    const SkinTable::Entry* const entry = SkinTable_.Find(key.name);
    if (entry == nullptr) continue;
    const std::string& file = files[entry->file];
    if (key.kind == SkinKind::Colour) {
      if (!SkinColourNumber(entry->Value)) flaws.push_back({SkinFlaw::Kind::NotUnderstood, entry->Key, file});
      continue;
    }
    const std::optional<int> number = SkinNumber(entry->Value);
    if (!number) flaws.push_back({SkinFlaw::Kind::NotUnderstood, entry->Key, file});
    if (number.value_or(kAbsent) == kAbsent) continue;
    const SkinRange range = RangeOf(key.kind);
    const int held = std::clamp(*number, range.least, range.most);
    if (held == *number) continue;
    flaws.push_back({SkinFlaw::Kind::Held, entry->Key, file});
    SkinTable_.Replace(key.name, std::to_string(held));
  }
  return flaws;
}

std::string_view SkinData::Value(std::string_view key) const {
  const SkinTable::Entry* entry = SkinTable_.Find(key);
  return entry == nullptr ? std::string_view() : entry->Value;
}

bool SkinData::IsOwn(std::string_view key) const {
  const SkinTable::Entry* const entry = SkinTable_.Find(key);
  return entry != nullptr && entry->file >= firstOwn_;
}

std::string SkinData::SkinText(std::string_view key) const {
  return WithBreaks(Value(key));
}

std::string SkinData::SkinWords(std::string_view key) const {
  const std::string_view own = Value(key);
  return WithBreaks(own.empty() ? DefaultWords(key) : own);
}

int SkinData::SkinInt(std::string_view key) const {
  return SkinNumber(Value(key)).value_or(kAbsent);
}

std::uint32_t SkinData::SkinColor(std::string_view key) const {
  return SkinColourNumber(Value(key)).value_or(0);
}

SkinData::Align SkinData::SkinAlign(std::string_view key) const {
  const std::string_view text = Value(key);
  if (text.starts_with('r')) return Align::Right;
  if (text.starts_with('c')) return Align::Centre;
  return Align::Left;
}

std::string SkinPicPath(const SkinPlaces& places, std::string_view name, const Retry& retry,
                        const Usable& usable) {
  const std::string searched = places.SkinsPath + "/" + places.Skin + "/" + std::string(name);
  return FindOrAsk(places, name, {".jpg", ".bmp", ".gif"}, searched, retry, usable);
}

std::string SkinDataPath(const SkinPlaces& places, std::string_view name, const Retry& retry) {
  return FindOrAsk(places, name, {".txt"}, std::string(name), retry, [](const std::string&) { return true; });
}

}  // namespace zorik
