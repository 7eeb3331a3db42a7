#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "core/TextId.h"
#include "data/ResultFwd.h"
#include "skin/SkinPlaces.h"

namespace zorik {

// The language table. A text stands in it at the place that its number tells.
class Texts {
 public:
  // Reads a language file: two lines of head, then a text a line, in which "#" stands for a line break.
  // A file that begins with the mark of UTF-8 is that, all others are Windows-1250. Fails when the file is
  // too short; the places that it lacks are empty then.
  Result<Done> LoadTexts(std::string_view bytes);

  // A text, UTF-8; empty when it is not there.
  const std::string& At(TextId text) const;

 private:
  std::array<std::string, kTextCount> texts_;
};

// Loads the language of a skin, or of the default skin when it has none. When neither has one, retry is asked
// as for every text file. Fails when the file is missing, cannot be read or is too short; the places that it
// lacks are empty then.
Result<Done> LoadLanguage(const SkinPlaces& places, Texts& texts,
                          const std::function<bool(const std::string& name)>& retry = {});

// Puts a number, with one blank in front of it, in place of a mark that includes its own blank.
std::string WithNumber(std::string text, std::string_view mark, int number);

// Joins two texts with exactly one blank.
std::string BlankJoin(std::string_view left, std::string_view right);

// Puts a text in place of a mark.
std::string WithText(std::string text, std::string_view mark, std::string_view replacement);

}  // namespace zorik
