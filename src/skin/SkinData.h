#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "skin/SkinFlaw.h"
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

  // Reads the table anew: the default skin's Menu and Game folder, then the skin's, each file from the first
  // of the folders of skins that has it. Files that are not there are skipped. Numbers that no screen can
  // show are held to what one can. Returns what was not as it should be; a value that does not parse passes
  // for an absent one.
  SkinFlaws LoadSkinData(const SkinPlaces& places);

  // The text of a key, empty when absent; "#" stands for a line break, the character 13.
  std::string SkinText(std::string_view key) const;

  // The same for words that no window can do without: where the key is absent, those of the default skin as
  // the program was built with it.
  std::string SkinWords(std::string_view key) const;

  // Whether the skin itself says something of a key, and not the default skin in its place.
  bool IsOwn(std::string_view key) const;

  // The number of a key, 16 bits, whole and decimal; -1 when absent.
  int SkinInt(std::string_view key) const;

  // The colour of a key with red in the low byte; 0, black, when it is not six hexadecimal digits long.
  std::uint32_t SkinColor(std::string_view key) const;

  // By the first letter of the text of a key, which must be small: l, r, c; left for all others.
  Align SkinAlign(std::string_view key) const;

 private:
  // What is said of a key, empty when absent.
  std::string_view Value(std::string_view key) const;
  SkinFlaws Check(const std::vector<std::string>& files);

  SkinTable SkinTable_;
  std::size_t firstOwn_ = 0;  // the files from this one on are those of the skin
};

// The picture of a menu with this name, which has no extension: of the skin, then of the default skin; .jpg
// goes before .bmp before .gif. One that is of no use is passed over. When there is none, retry is asked, and
// told what was searched for; the search goes on as long as it answers true, else the path is empty.
std::string SkinPicPath(
    const SkinPlaces& places, std::string_view name,
    const std::function<bool(const std::string& searched)>& retry,
    const std::function<bool(const std::string& path)>& usable = [](const std::string&) { return true; });

// The same for a text file, ".txt".
std::string SkinDataPath(const SkinPlaces& places, std::string_view name,
                         const std::function<bool(const std::string& name)>& retry);

}  // namespace zorik
