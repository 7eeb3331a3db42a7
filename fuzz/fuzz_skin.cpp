#include <algorithm>

#include "Input.h"
#include "data/Result.h"
#include "data/Trimmed.h"
#include "skin/SkinTable.h"
#include "skin/Texts.h"

namespace zorik {

namespace {

void RequireSoundTable(const std::vector<std::string>& files) {
  SkinTable table;
  for (std::size_t i = 0; i < files.size(); ++i) table.Add(files[i], i);
  fuzz::Require(table.Entries().size() <= SkinTable::kMostEntries);
  for (const SkinTable::Entry& entry : table.Entries()) {
    fuzz::Require(entry.file < files.size());
    fuzz::Require(Trimmed(entry.Key) == entry.Key && Trimmed(entry.Value) == entry.Value);
    const SkinTable::Entry* found = table.Find(entry.Key);
    fuzz::Require(found != nullptr && found >= &entry && found->Key == entry.Key);
    const auto number = SkinNumber(entry.Value);
    fuzz::Require(!number || (*number >= -32768 && *number <= 32767));
    fuzz::Require(SkinColourNumber(entry.Value).value_or(0) <= 0xFFFFFF);
  }
}

void RequireSoundTexts(std::string_view bytes) {
  constexpr auto kLines = static_cast<std::ptrdiff_t>(kTextCount) + 2;
  Texts texts;
  const bool complete = static_cast<bool>(texts.LoadTexts(bytes));
  const auto ends = std::count(bytes.begin(), bytes.end(), '\n');
  fuzz::Require(!complete || ends >= kLines - 1);
  fuzz::Require(complete || ends < kLines);
  for (int place = -1; place <= static_cast<int>(kTextCount); ++place) {
    fuzz::Require(texts.At(static_cast<TextId>(place)).find('#') == std::string::npos);
  }
}

}  // namespace

// The input is taken as the tables of a skin, one file after another, and as a language file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = fuzz::TextOf(data, size);
  RequireSoundTable(fuzz::PiecesOf(input));
  RequireSoundTexts(input);
  return 0;
}

}  // namespace zorik
