#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "data/Chance.h"

namespace zorik {

// What ends a line: only carriage return and line feed together, as in records, or a line feed alone as
// well, as in collections and skin files, which people may have edited.
enum class LineEnds { CrLf, CrLfOrLf };

// Reads a file's bytes line by line, and a record's tick by tick. An unterminated last line counts, a
// terminated one adds no empty line behind it. Bytes stay as they are. A copy shares the bytes and goes on
// by itself, so it costs next to nothing.
class RecordLines {
 public:
  explicit RecordLines(std::string bytes = {}, LineEnds ends = LineEnds::CrLf)
      : bytes_(std::make_shared<const std::string>(std::move(bytes))), ends_(ends) {}

  bool AtEnd() const { return place_ >= bytes_->size(); }

  // The next line without its end; empty at the end of the bytes. The view lives as long as this object or
  // any copy of it.
  std::string_view Next();

 private:
  std::shared_ptr<const std::string> bytes_;
  std::size_t place_ = 0;
  LineEnds ends_;
};

// What stands before the moves of a recorded run.
struct RecordHead {
  std::string CollectionName;
  int Score = 0;         // 0 when the line names none
  std::string Player;    // empty for a test run
  std::string CaveText;  // plain, with its marker if it came from a collection
};

// The highest score that a record can tell of.
inline constexpr int kHighestScore = 99999;

// A score, or a sum of scores, as five digits, or more if it has more.
std::string FiveDigits(int score);

// Reads the three scrambled lines; missing lines give empty fields.
RecordHead ReadRecordHead(RecordLines& lines);

// The first two lines of a record, with their line ends. The score is held to 0..99999.
std::string BuildRecordHead(std::string_view collectionName, int score, std::string_view player,
                            Chance& decoration);

// The name under which a player's run of a cave is kept in the player's folder, in Windows-1250.
std::string RecordFileName(std::string_view collectionName, std::string_view caveName);

// The same for a run that the cave editor tries out.
std::string TestRecordFileName(std::string_view caveName);

}  // namespace zorik
