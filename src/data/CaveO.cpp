#include "data/CaveO.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "data/Cp1250.h"
#include "data/Result.h"

namespace zorik {

namespace {

// Takes a cave text apart from its front. The first number that cannot be read sets the failure; what is
// taken afterwards is of no value.
class CaveTextReader {
 public:
  explicit CaveTextReader(std::string_view text) : text_(text) {}

  int Number(const char* field) {
    if (!failure_.empty()) return 0;
    if (place_ >= text_.size()) {
      failure_ = "the cave text ends at byte " + std::to_string(text_.size()) + ", before its " + field;
      return 0;
    }
    const int code = static_cast<unsigned char>(text_[place_]);
    ++place_;
    if (code < kNumberOffset) {
      failure_ = std::string("the ") + field + " at byte " + std::to_string(place_) +
                 " of the cave text is no number (code " + std::to_string(code) + ", at least 65 expected)";
      return 0;
    }
    return code - kNumberOffset;
  }

  std::uint8_t Byte(const char* field) { return static_cast<std::uint8_t>(Number(field)); }

  std::string_view Text(int length) { return Take(static_cast<std::size_t>(length)); }

  std::string_view Rest() { return Take(text_.size()); }

  char Cell() { return place_ < text_.size() ? text_[place_++] : '.'; }

  void Fail(std::string message) {
    if (failure_.empty()) failure_ = std::move(message);
  }

  const std::string& failure() const { return failure_; }

 private:
  std::string_view Take(std::size_t length) {
    const std::string_view taken = text_.substr(std::min(place_, text_.size()), length);
    place_ += taken.size();
    return taken;
  }

  std::string_view text_;
  std::size_t place_ = 0;
  std::string failure_;
};

std::string SizeFailure(int width, int height) {
  return "a cave of " + std::to_string(width) + " x " + std::to_string(height) + " cells is too large, " +
         std::to_string(CaveRecord::kColumns) + " x " + std::to_string(CaveRecord::kRows) + " is the most";
}

bool FitsMatrix(int width, int height) {
  return width <= CaveRecord::kColumns && height <= CaveRecord::kRows;
}

void ReadProperties(CaveTextReader& reader, CaveRecord& record) {
  record.Width = reader.Byte("width");
  record.Height = reader.Byte("height");
  const int timeTens = reader.Number("time");
  const int units = reader.Number("units of time and gems");
  const int gemTens = reader.Number("number of gems needed");
  record.Time = static_cast<std::int16_t>(timeTens * 10 + units / 10);
  record.GemsNeeded = static_cast<std::int16_t>(gemTens * 10 + units % 10);
  record.PointsBefore = reader.Byte("points before the finish opens");
  record.PointsAfter = reader.Byte("points after the finish opens");
  record.MagicWallTime = reader.Byte("magic wall time");
  record.AmoebaTime = reader.Byte("amoeba time");
  record.Colouring = reader.Byte("colouring");
  if (!FitsMatrix(record.Width, record.Height)) reader.Fail(SizeFailure(record.Width, record.Height));
}

void ReadCells(CaveTextReader& reader, CaveRecord& record) {
  for (std::size_t y = 0; y < record.Height; ++y) {
    for (std::size_t x = 0; x < record.Width; ++x) record.Cells[x][y] = reader.Cell();
  }
}

// Puts a cave text together; the first number without a character of its own sets the failure.
class CaveTextWriter {
 public:
  void Number(int number, const char* field, int limit = kHighestNumber) {
    NumberOfWhole(number, number, field, limit);
  }

  // A number that is a part of a larger one: whole and limit are those of the larger.
  void NumberOfWhole(int number, int whole, const char* field, int limit) {
    if (failure_.empty() && (whole < 0 || whole > limit)) {
      failure_ = std::string("the ") + field + " is " + std::to_string(whole) + ", a cave text holds 0 to " +
                 std::to_string(limit);
    }
    text_ += static_cast<char>(number + kNumberOffset);
  }

  void Text(std::string_view text, const char* field) {
    if (failure_.empty() && text.size() > kHighestNumber) {
      failure_ = std::string("the ") + field + " has " + std::to_string(text.size()) +
                 " characters, a cave text holds at most " + std::to_string(kHighestNumber);
    }
    text_ += static_cast<char>(text.size() + kNumberOffset);
    text_ += text;
  }

  void Append(char cell) { text_ += cell; }
  void Append(std::string_view rest) { text_ += rest; }

  const std::string& failure() const { return failure_; }
  std::string&& TakeText() { return std::move(text_); }

 private:
  std::string text_;
  std::string failure_;
};

void WriteProperties(CaveTextWriter& writer, const CaveRecord& record) {
  writer.Number(record.Width, "width");
  writer.Number(record.Height, "height");
  writer.NumberOfWhole(record.Time / 10, record.Time, "time", kHighestPair);
  writer.Number((record.Time % 10) * 10 + record.GemsNeeded % 10, "units of time and gems");
  writer.NumberOfWhole(record.GemsNeeded / 10, record.GemsNeeded, "number of gems needed", kHighestPair);
  writer.Number(record.PointsBefore, "points before the finish opens");
  writer.Number(record.PointsAfter, "points after the finish opens");
  writer.Number(record.MagicWallTime, "magic wall time");
  writer.Number(record.AmoebaTime, "amoeba time");
  writer.Number(record.Colouring, "colouring");
}

}  // namespace

Result<CaveRecord> ParseCaveText(std::string_view text) {
  CaveRecord record;
  if (text.empty()) return record;
  CaveTextReader reader(text);
  record.SlimePermeability = reader.Byte("slime permeability");
  record.Name = reader.Text(reader.Number("length of the name"));
  record.Description = reader.Text(reader.Number("length of the description"));
  ReadProperties(reader, record);
  if (!reader.failure().empty()) return Failure{reader.failure()};
  ReadCells(reader, record);
  const std::string_view rest = reader.Rest();
  record.Script = EndsWithMarker(rest) ? WithoutMarker(rest) : rest;
  return record;
}

Result<std::string> BuildCaveText(const CaveRecord& record) {
  if (!FitsMatrix(record.Width, record.Height)) return Failure{SizeFailure(record.Width, record.Height)};
  CaveTextWriter writer;
  writer.Number(record.SlimePermeability, "slime permeability");
  writer.Text(record.Name, "name");
  writer.Text(record.Description, "description");
  WriteProperties(writer, record);
  if (!writer.failure().empty()) return Failure{writer.failure()};
  for (std::size_t y = 0; y < record.Height; ++y) {
    for (std::size_t x = 0; x < record.Width; ++x) writer.Append(record.Cells[x][y]);
  }
  writer.Append(record.Script);
  return writer.TakeText();
}

bool EndsWithMarker(std::string_view text) {
  return text.size() >= kMarkerLength && text.substr(text.size() - kMarkerLength, 3) == "---";
}

std::string_view WithoutMarker(std::string_view text) {
  return text.substr(0, text.size() - std::min(text.size(), kMarkerLength));
}

std::string CleanFileName(std::string_view text) {
  constexpr std::string_view kForbidden = "?*\\/,;:=\t\"";
  std::string name(text);
  std::erase_if(name, [&](char character) { return kForbidden.find(character) != std::string_view::npos; });
  return name;
}

bool JeBonus(std::string_view name) {
  return LowerCase(name).find("bonus") != std::string::npos;
}

}  // namespace zorik
