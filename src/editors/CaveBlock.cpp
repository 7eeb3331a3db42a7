#include "editors/CaveBlock.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/Objects.h"
#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/ReadableText.h"
#include "data/Trimmed.h"

namespace zorik {
namespace {

constexpr std::string_view kCells = "cells";
constexpr const char* kTextName = "the text";

// The headings of the monsters, left 1, up 2, right 3, down 4, after a turn.
using Headings = std::array<std::uint8_t, kHighestHeading + 1>;
struct TurnRow {
  CaveTurn turn;
  bool quarter;
  Headings headings;
};
constexpr std::array<TurnRow, 4> kTurns{{
    {CaveTurn::MirrorAside, false, {0, 3, 2, 1, 4}},
    {CaveTurn::MirrorUpright, false, {0, 1, 4, 3, 2}},
    {CaveTurn::Right, true, {0, 2, 3, 4, 1}},
    {CaveTurn::Left, true, {0, 4, 1, 2, 3}},
}};
const TurnRow& RowOf(CaveTurn turn) {
  return kTurns[static_cast<std::size_t>(turn)];
}

Object TurnedObject(Object code, bool quarter) {
  if (!quarter) return code;
  if (code == kWallH) return kWallV;
  return code == kWallV ? kWallH : code;
}

// Where the letter of a cell of the turned block stood.
char LetterBefore(const CaveBlock& block, CaveTurn turn, int x, int y) {
  if (turn == CaveTurn::MirrorAside) return block.At(block.width - 1 - x, y);
  if (turn == CaveTurn::MirrorUpright) return block.At(x, block.height - 1 - y);
  if (turn == CaveTurn::Right) return block.At(y, block.height - 1 - x);
  return block.At(block.width - 1 - y, x);
}

BlockFailure Refused(BlockFault fault, int line, const std::string& message) {
  BlockFailure failure;
  failure.fault = fault;
  failure.line = line;
  failure.message = line == 0 ? message : FailureAt(kTextName, line, message).message;
  return failure;
}

// The lines of a text with their numbers, without blanks around them and without those that are empty.
std::vector<ReadableLine> LinesOf(std::string_view text) {
  std::vector<ReadableLine> lines;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    line = Trimmed(line);
    if (!line.empty()) lines.push_back({std::string(line), number});
  }
  return lines;
}

Result<CaveBlock, BlockFailure> BlockOf(const std::vector<ReadableLine>& rows) {
  if (rows.empty()) return Refused(BlockFault::NoCells, 0, "there are no cells");
  CaveBlock block;
  for (const ReadableLine& row : rows) {
    if (row.text.size() > CaveRecord::kColumns || block.height == CaveRecord::kRows) {
      return Refused(BlockFault::TooLarge, row.number, "more cells than a cave can have");
    }
    if (row.text.size() != rows[0].text.size()) {
      return Refused(BlockFault::Uneven, row.number, "a row that is not as long as the first");
    }
    block.letters += row.text;
    ++block.height;
  }
  block.width = static_cast<int>(rows[0].text.size());
  if (block.width == 0) return Refused(BlockFault::NoCells, rows[0].number, "there are no cells");
  return block;
}

// The rows below the entry of the cells.
Result<CaveBlock, BlockFailure> ReadEntry(std::string_view text) {
  const auto entries = ReadEntries(kTextName, text);
  if (!entries) return Refused(BlockFault::Form, 0, entries.Message());
  const ReadableEntry* const cells = FindEntry(*entries, kCells);
  return BlockOf(cells == nullptr ? std::vector<ReadableLine>() : cells->lines);
}

Result<CaveBlock, BlockFailure> ReadBareRows(std::vector<ReadableLine> rows) {
  for (ReadableLine& row : rows) {
    if (row.text.starts_with('|')) row.text = Trimmed(std::string(row.text, 1));
    const bool known = std::all_of(row.text.begin(), row.text.end(),
                                   [](char letter) { return FindLetter(letter) != nullptr; });
    if (!known) return Refused(BlockFault::Letter, row.number, "a character that stands for no object");
  }
  return BlockOf(rows);
}

}  // namespace

char Turned(char letter, CaveTurn turn) {
  const ObjectLetter* const object = FindLetter(letter);
  if (object == nullptr || DogNumber(letter) != 0) return letter;
  const TurnRow& row = RowOf(turn);
  const auto turned = std::find_if(kObjectLetters.begin(), kObjectLetters.end(), [&](const ObjectLetter& it) {
    return it.code == TurnedObject(object->code, row.quarter) && it.state == object->state &&
           it.mark == row.headings[object->mark];
  });
  return turned == kObjectLetters.end() ? letter : turned->letter;
}

CaveBlock Turned(const CaveBlock& block, CaveTurn turn) {
  const bool quarter = RowOf(turn).quarter;
  CaveBlock turned{quarter ? block.height : block.width, quarter ? block.width : block.height, {}};
  turned.letters.reserve(block.letters.size());
  for (int y = 0; y < turned.height; ++y) {
    for (int x = 0; x < turned.width; ++x) turned.letters += Turned(LetterBefore(block, turn, x, y), turn);
  }
  return turned;
}

std::string WriteBlock(const CaveBlock& block) {
  const auto width = static_cast<std::size_t>(block.width);
  std::vector<std::string> rows;
  for (std::size_t at = 0; at < block.letters.size(); at += width) {
    rows.push_back(block.letters.substr(at, width));
  }
  std::string text;
  WriteLines(text, kCells, rows);
  return text;
}

Result<CaveBlock, BlockFailure> ReadBlock(std::string_view text) {
  const std::vector<ReadableLine> lines = LinesOf(text);
  if (lines.empty()) return Refused(BlockFault::NoCells, 0, "there are no cells");
  const bool whole = std::any_of(lines.begin(), lines.end(), [](const ReadableLine& line) {
    return line.text.starts_with(std::string(kCells) + ':');
  });
  if (whole) return ReadEntry(text);
  return ReadBareRows(lines);
}

}  // namespace zorik
