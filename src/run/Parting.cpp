#include "run/Parting.h"

#include "run/TickText.h"

namespace zorik {
namespace {

// The text up to the separator, which goes with it.
std::string_view Cut(std::string_view& text, char separator) {
  const std::string_view piece = text.substr(0, text.find(separator));
  text.remove_prefix(piece.size() < text.size() ? piece.size() + 1 : piece.size());
  return piece;
}

Parting Of(std::string what, std::string_view a, std::string_view b) {
  return {std::move(what), std::string(a), std::string(b)};
}

}  // namespace

std::optional<Parting> PartingOfLines(std::string_view a, std::string_view b) {
  if (a == b) return std::nullopt;
  std::string_view restA = a;
  std::string_view restB = b;
  while (!restA.empty() && !restB.empty()) {
    std::string_view valueA = Cut(restA, ' ');
    std::string_view valueB = Cut(restB, ' ');
    if (valueA == valueB) continue;
    const std::string_view keyA = Cut(valueA, '=');
    const std::string_view keyB = Cut(valueB, '=');
    return keyA == keyB ? Of(std::string(keyA), valueA, valueB) : Of("line", a, b);
  }
  return Of("line", a, b);
}

std::optional<Parting> PartingOfGrids(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    std::string_view rowA = Cut(a, '\n');
    std::string_view rowB = Cut(b, '\n');
    std::string_view name = Cut(rowA, ' ');
    Cut(rowB, ' ');
    Cut(name, '=');
    for (int x = 0; !rowA.empty() && !rowB.empty(); ++x) {
      const std::string_view cellA = Cut(rowA, ' ');
      const std::string_view cellB = Cut(rowB, ' ');
      if (cellA != cellB) return Of(std::to_string(x) + "," + std::string(name), cellA, cellB);
    }
  }
  return std::nullopt;
}

std::optional<Parting> PartingOf(const Hra& a, const Hra& b) {
  std::optional<Parting> counter = PartingOfLines(TickLine(a), TickLine(b));
  const bool cells = counter && counter->what == "hash";
  return cells ? PartingOfGrids(GridLines(a), GridLines(b)) : counter;
}

}  // namespace zorik
