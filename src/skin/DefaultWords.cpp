#include "skin/DefaultWords.h"

#include "skin/SkinTable.h"

namespace zorik {
namespace {

// The build puts the file in here.
constexpr std::string_view kTable =
#include "skin/DefaultTable.inc"
    ;

SkinTable ReadTable() {
  SkinTable table;
  table.Add(kTable, 0);
  return table;
}

}  // namespace

std::string_view DefaultWords(std::string_view key) {
  static const SkinTable kWords = ReadTable();
  const SkinTable::Entry* const entry = kWords.Find(key);
  return entry == nullptr ? std::string_view() : entry->Value;
}

}  // namespace zorik
