#include "editors/Formality.h"

#include <algorithm>

#include "editors/SuperReplace.h"

namespace zorik {
namespace {

constexpr int kFirstOfList = 10;  // from here on each colouring has an entry of its own

// The amoeba turns to stone when it fills 5 of 22 cells.
constexpr int kStonePart = 5;
constexpr int kStoneWhole = 22;

// Whole division that rounds down, below 0 too.
constexpr int Floor(int value, int divisor) {
  return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

template <class T>
T As(int value) {
  return static_cast<T>(value);
}

void CorrectText(std::string& text, TextId label, std::vector<Correction>& report) {
  std::string clean = SuperReplace(text);
  if (clean == text || clean.size() > kHighestNumber) return;
  text = std::move(clean);
  report.push_back({.label = label});
}

}  // namespace

std::size_t EntryOfColouring(int colouring) {
  if (colouring < kFirstOfList) return 0;
  const auto row =
      std::find_if(kColourings.begin(), kColourings.end(), [colouring](const ColouringRow& entry) {
        return std::find(entry.alike.begin(), entry.alike.end(), colouring) != entry.alike.end();
      });
  return row == kColourings.end() ? 0 : static_cast<std::size_t>(row - kColourings.begin());
}

std::optional<TextId> CaptionOfColouring(int colouring) {
  for (const ColouringRow& row : kColourings) {
    if (std::find(row.alike.begin(), row.alike.end(), colouring) != row.alike.end()) return row.caption;
  }
  return std::nullopt;
}

Formality FormalityOf(const CaveRecord& cave) {
  return {cave.Name,
          cave.Description,
          {cave.Width, cave.Height, cave.Time, cave.GemsNeeded, cave.PointsBefore, cave.PointsAfter,
           cave.MagicWallTime, cave.AmoebaTime, cave.SlimePermeability},
          EntryOfColouring(cave.Colouring)};
}

void TakeFormality(const Formality& formality, CaveRecord& cave) {
  cave.Name = formality.Name;
  cave.Description = formality.Description;
  cave.Width = As<std::uint8_t>(formality.Number(CaveNumber::Width));
  cave.Height = As<std::uint8_t>(formality.Number(CaveNumber::Height));
  cave.Time = As<std::int16_t>(formality.Number(CaveNumber::Time));
  cave.GemsNeeded = As<std::int16_t>(formality.Number(CaveNumber::GemsNeeded));
  cave.PointsBefore = As<std::uint8_t>(formality.Number(CaveNumber::PointsBefore));
  cave.PointsAfter = As<std::uint8_t>(formality.Number(CaveNumber::PointsAfter));
  cave.MagicWallTime = As<std::uint8_t>(formality.Number(CaveNumber::MagicWallTime));
  cave.AmoebaTime = As<std::uint8_t>(formality.Number(CaveNumber::AmoebaTime));
  cave.SlimePermeability = As<std::uint8_t>(formality.Number(CaveNumber::SlimePermeability));
  cave.Colouring = As<std::uint8_t>(kColourings[formality.Colouring].number);
}

std::vector<Correction> Correct(Formality& formality) {
  std::vector<Correction> report;
  for (const NumberRow& row : kNumberRows) {
    int& value = formality.Numbers[static_cast<std::size_t>(row.number)];
    const int limited = std::clamp(value, row.lower, row.upper);
    if (limited == value) continue;
    value = limited;
    report.push_back({.label = row.label, .limit = limited});
  }
  CorrectText(formality.Name, TextId::Name, report);
  CorrectText(formality.Description, TextId::Description, report);
  return report;
}

std::optional<TextId> LabelWithoutRoom(const CaveRecord& cave) {
  struct Row {
    TextId label;
    std::size_t size;
    std::size_t most;
  };
  const auto size = [](int number) { return static_cast<std::size_t>(std::max(number, 0)); };
  const std::array<Row, 4> rows{{
      {TextId::Name, cave.Name.size(), kHighestNumber},
      {TextId::Description, cave.Description.size(), kHighestNumber},
      {kNumberRows[static_cast<std::size_t>(CaveNumber::Time)].label, size(cave.Time), kHighestPair},
      {kNumberRows[static_cast<std::size_t>(CaveNumber::GemsNeeded)].label, size(cave.GemsNeeded),
       kHighestPair},
  }};
  for (const Row& row : rows) {
    if (row.size > row.most) return row.label;
  }
  return std::nullopt;
}

// In its slow time it gains a cell in 3.2 seconds, then one in 0.4 seconds.
Petrifying ComputePetrifying(int width, int height, int amoebas, int amoebaTime) {
  const int limit = (width * height * kStonePart + kStoneWhole - 1) / kStoneWhole;
  const int cells = limit - amoebas;
  const int slow = amoebaTime * 10 / 32;
  if (slow > cells) return {cells, Floor(cells * 32, 10)};
  return {cells, Floor((cells - slow) * 4 + amoebaTime * 10, 10)};
}

int SlimeOdds(int permeability) {
  return (1 << (8 - permeability)) - 1;
}

}  // namespace zorik
