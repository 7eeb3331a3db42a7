#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "data/Files.h"
#include "data/Result.h"
#include "skin/SkinTable.h"

namespace zorik::test {

// The lines of a built text file, without their ends; nothing if a line does not end in CR LF.
inline std::optional<std::vector<std::string>> LinesOf(const std::string& path) {
  const auto bytes = ReadWhole(ZORIK_SKINS "/" + path);
  if (!bytes) return std::nullopt;
  std::vector<std::string> lines;
  std::size_t begin = 0;
  while (begin < bytes->size()) {
    const std::size_t end = bytes->find_first_of("\r\n", begin);
    if (end == std::string::npos || bytes->compare(end, 2, "\r\n") != 0) return std::nullopt;
    lines.push_back(bytes->substr(begin, end - begin));
    begin = end + 2;
  }
  return lines;
}

inline std::string Lower(std::string text) {
  for (char& letter : text) letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  return text;
}

// The keys of one skindata.txt, in lower case, and what a loader without mercy would stumble over.
struct SkinKeys {
  std::map<std::string, std::string> Values;
  std::vector<std::string> Traps;

  std::string Text(const std::string& key) const {
    const auto found = Values.find(Lower(key));
    return found == Values.end() ? "" : found->second;
  }
  int Number(const std::string& key) const { return std::atoi(Text(key).c_str()); }
};

inline SkinKeys ReadSkinKeys(const std::string& path) {
  SkinKeys keys;
  const auto lines = LinesOf(path);
  if (!lines) return {{}, {path + " is missing or has other line ends"}};
  std::string prefix;
  for (const std::string& line : *lines) {
    const auto trap = [&](const char* what) { keys.Traps.push_back(std::string(what) + ": " + line); };
    if (line.empty() || line.front() == ' ' || line.back() == ' ' || line.find('\t') != std::string::npos) {
      trap("blank");
      continue;
    }
    const std::size_t divider = line.find('=');
    if (line.back() == ':') {
      if (divider != std::string::npos) trap("a value that makes a section");
      prefix = line.substr(0, line.size() - 1) + ".";
      continue;
    }
    if (prefix.empty()) trap("no section yet");
    if (divider == std::string::npos || line.find('=', divider + 1) != std::string::npos) {
      trap("not one equals sign");
      continue;
    }
    if (line[divider - 1] == ' ' || line.substr(divider + 1, 1) == " ") trap("blanks around the equals sign");
    if (!keys.Values.emplace(Lower(prefix + line.substr(0, divider)), line.substr(divider + 1)).second) {
      trap("a key said twice");
    }
  }
  // A skin is read after the default one. Keys that it says again take the place of those; half of all places
  // is for keys of its own.
  if (2 * lines->size() > SkinTable::kMostEntries) keys.Traps.push_back("too many lines");
  return keys;
}

}  // namespace zorik::test
