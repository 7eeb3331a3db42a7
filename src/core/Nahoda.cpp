// Nahoda, chance: drawn in play and written into the record, read from there in a replay.
#include <algorithm>

#include "core/Machine.h"

namespace zorik {
namespace {

constexpr int kLargestRange = 190;  // keeps a stored outcome within one byte
constexpr int kFirstCode = 65;

void Store(Hra& hra, int outcome) {
  hra.RecordText.push_back(static_cast<char>(static_cast<unsigned char>(outcome + kFirstCode)));
}

int ReadBack(Hra& hra) {
  if (hra.RecordLine.empty()) {
    hra.RanDry = true;
    return 0;
  }
  const int outcome = static_cast<unsigned char>(hra.RecordLine.front()) - kFirstCode;
  hra.RecordLine.remove_prefix(1);
  return outcome;
}

}  // namespace

int Nahoda(Hra& hra, int range) {
  if (hra.ReplayPlaying) return ReadBack(hra);
  const int limited = std::clamp(range, 0, kLargestRange);
  const int outcome = static_cast<int>(hra.Luck.Below(static_cast<std::uint32_t>(limited))) + 1;
  Store(hra, outcome);
  return outcome;
}

void PseudoNahoda(Hra& hra, int value) {
  Store(hra, value + 1);
}

}  // namespace zorik
