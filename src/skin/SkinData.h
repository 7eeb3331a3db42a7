#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "skin/SkinPlaces.h"
#include "skin/SkinTable.h"

namespace zorik {

// What a skin says about windows: pairs of a key and a value from up to four files "skindata.txt". The last
// pair of a key counts, so a skin overrides the default skin, and its Game folder its Menu folder. Keys are
// asked for in any case. Texts are UTF-8.
class SkinData {
 public:
  // How the alignment of a text is written in the table.
  enum class Align : std::uint8_t { Left = 0, Right = 1, Centre = 2 };

  // Told of a value that does not parse, with its key and its file; the program is meant to end in order
  // after that. Without one, such a value passes for an absent one.
  void SetFault(std::function<void(const std::string& key, const std::string& file)> fault);

  // Reads the table anew: the default skin's Menu and Game folder, then the skin's. Files that are not there
  // are skipped.
  void LoadSkinData(const SkinPlaces& places);

  // The text of a key, empty when absent; "#" stands for a line break, the character 13.
  std::string SkinText(std::string_view key) const;

  // The number of a key, 16 bits, whole and decimal; -1 when absent.
  int SkinInt(std::string_view key) const;

  // The colour of a key with red in the low byte; 0, black, when it is not six hexadecimal digits long.
  std::uint32_t SkinColor(std::string_view key) const;

  // By the first letter of the text of a key, which must be small: l, r, c; left for all others.
  Align SkinAlign(std::string_view key) const;

 private:
  // What is said of a key, empty when absent.
  std::string_view Value(std::string_view key) const;
  void Blame(const SkinTable::Entry& entry) const;

  SkinTable SkinTable_;
  std::vector<std::string> files_;
  std::function<void(const std::string&, const std::string&)> fault_;
};

// The picture of a menu with this name, which has no extension: of the skin, then of the default skin; .jpg
// goes before .bmp before .gif. When there is none, retry is asked with the question to put to the player;
// the search goes on as long as it answers true, else the path is empty.
std::string SkinPicPath(const SkinPlaces& places, std::string_view name,
                        const std::function<bool(const std::string& question)>& retry);

// The same for a text file, ".txt".
std::string SkinDataPath(const SkinPlaces& places, std::string_view name,
                         const std::function<bool(const std::string& question)>& retry);

}  // namespace zorik
