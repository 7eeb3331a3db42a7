#include "skin/SkinData.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "data/Files.h"

namespace zorik {
namespace {

constexpr int kAbsent = -1;

bool IsFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

// The first file of the skin, then of the default skin, with one of the extensions in their order.
std::optional<std::string> FindFile(const SkinPlaces& places, std::string_view name,
                                    const std::vector<std::string>& extensions) {
  for (const std::string& skin : {places.Skin, std::string("Default")}) {
    const std::string stem = places.SkinsPath + "/" + skin + "/" + std::string(name);
    for (const std::string& extension : extensions) {
      std::string path = ResolvePath(stem + extension);
      if (IsFile(path)) return path;
    }
  }
  return std::nullopt;
}

using Retry = std::function<bool(const std::string& question)>;

std::string FindOrAsk(const SkinPlaces& places, std::string_view name,
                      const std::vector<std::string>& extensions, const std::string& question,
                      const Retry& retry) {
  for (;;) {
    if (auto path = FindFile(places, name, extensions)) return *path;
    if (!retry || !retry(question)) return {};
  }
}

}  // namespace

void SkinData::SetFault(std::function<void(const std::string& key, const std::string& file)> fault) {
  fault_ = std::move(fault);
}

void SkinData::LoadSkinData(const SkinPlaces& places) {
  SkinTable_ = {};
  files_.clear();
  for (const std::string& skin : {std::string("Default"), places.Skin}) {
    for (const char* folder : {"Menu", "Game"}) {
      const std::string path = ResolvePath(places.SkinsPath + "/" + skin + "/" + folder + "/skindata.txt");
      const auto bytes = ReadWhole(path);
      if (!bytes) continue;
      SkinTable_.Add(*bytes, files_.size());
      files_.push_back(path);
    }
  }
}

std::string_view SkinData::Value(std::string_view key) const {
  const SkinTable::Entry* entry = SkinTable_.Find(key);
  return entry == nullptr ? std::string_view() : entry->Value;
}

void SkinData::Blame(const SkinTable::Entry& entry) const {
  if (fault_) fault_(entry.Key, files_[entry.file]);
}

std::string SkinData::SkinText(std::string_view key) const {
  std::string text(Value(key));
  std::replace(text.begin(), text.end(), '#', '\r');
  return text;
}

int SkinData::SkinInt(std::string_view key) const {
  const SkinTable::Entry* const entry = SkinTable_.Find(key);
  if (entry == nullptr) return kAbsent;
  const std::optional<int> number = SkinNumber(entry->Value);
  if (!number) Blame(*entry);
  return number.value_or(kAbsent);
}

std::uint32_t SkinData::SkinColor(std::string_view key) const {
  const SkinTable::Entry* const entry = SkinTable_.Find(key);
  if (entry == nullptr) return 0;
  const std::optional<std::uint32_t> colour = SkinColourNumber(entry->Value);
  if (!colour) Blame(*entry);
  return colour.value_or(0);
}

SkinData::Align SkinData::SkinAlign(std::string_view key) const {
  const std::string_view text = Value(key);
  if (text.starts_with('r')) return Align::Right;
  if (text.starts_with('c')) return Align::Centre;
  return Align::Left;
}

std::string SkinPicPath(const SkinPlaces& places, std::string_view name, const Retry& retry) {
  const std::string searched = places.SkinsPath + "/" + places.Skin + "/" + std::string(name);
  return FindOrAsk(places, name, {".jpg", ".bmp", ".gif"},
                   "Loading skin picture '" + searched + "' failed. Try again?", retry);
}

std::string SkinDataPath(const SkinPlaces& places, std::string_view name, const Retry& retry) {
  return FindOrAsk(places, name, {".txt"}, "Loading data file '" + std::string(name) + "' failed. Try again?",
                   retry);
}

}  // namespace zorik
