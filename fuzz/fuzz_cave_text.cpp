#include "Input.h"
#include "data/CaveO.h"
#include "data/Result.h"

namespace zorik {

// A text that parses builds to one that parses to the same cave, and stays the same from then on.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = fuzz::TextOf(data, size);
  const Result<CaveRecord> cave = ParseCaveText(input);
  if (!cave) {
    fuzz::Require(!cave.Message().empty());
    return 0;
  }
  fuzz::Require(cave->Width <= CaveRecord::kColumns && cave->Height <= CaveRecord::kRows);
  const Result<std::string> text = BuildCaveText(*cave);
  if (!text) {
    fuzz::Require(cave->Time > kHighestPair);  // all else that a text can hold has its character
    return 0;
  }
  const Result<CaveRecord> again = ParseCaveText(*text + "---01");
  fuzz::Require(again && *again == *cave);
  fuzz::Require(*BuildCaveText(*again) == *text);
  return 0;
}

}  // namespace zorik
