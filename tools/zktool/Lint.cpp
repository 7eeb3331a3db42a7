#include <algorithm>
#include <iomanip>
#include <ostream>

#include "data/Result.h"
#include "zktool/Caves.h"
#include "zktool/Commands.h"
#include "zktool/Doubts.h"
#include "zktool/Json.h"
#include "zktool/Rated.h"

namespace zorik {
namespace {

using Doubts = std::vector<PlacedDoubt>;

bool IsFault(const PlacedDoubt& placed) {
  return RowOf(placed.doubt.kind).fault;
}

void PrintLines(const CaveSet& set, const Doubts& doubts, const std::string& path, std::ostream& out) {
  for (const PlacedDoubt& placed : doubts) {
    const Doubt& doubt = placed.doubt;
    out << path
        << (placed.place.empty()                  ? ""
            : set.texts.contains(kCollectionFile) ? ": "
                                                  : ", ")
        << placed.place << ": " << (IsFault(placed) ? "fault " : "hint ") << RowOf(doubt.kind).word;
    if (doubt.cell) out << " at " << doubt.cell->x << "," << doubt.cell->y;
    out << ": " << doubt.sentence << "\n";
  }
  const auto faults = std::count_if(doubts.begin(), doubts.end(), IsFault);
  out << "caves=" << set.caves.size() << " faults=" << faults
      << " hints=" << static_cast<std::ptrdiff_t>(doubts.size()) - faults << "\n";
}

void PrintJson(const CaveSet& set, const Doubts& doubts, const std::string& path, std::ostream& out) {
  out << "{\"doubts\": [";
  for (const PlacedDoubt& placed : doubts) {
    const Doubt& doubt = placed.doubt;
    out << (&placed == &doubts.front() ? "\n" : ",\n")
        << "  {\"fault\": " << (IsFault(placed) ? "true" : "false") << ", \"word\": \""
        << RowOf(doubt.kind).word << "\", \"file\": " << JsonText(path)
        << ", \"place\": " << JsonText(placed.place);
    if (placed.ofCave) {
      const NamedCave& cave = set.caves[placed.cave];
      out << ", \"cave\": " << cave.number << ", \"name\": " << JsonText(ShownName(cave.record));
    }
    if (doubt.cell) out << ", \"x\": " << doubt.cell->x << ", \"y\": " << doubt.cell->y;
    out << ", \"text\": " << JsonText(doubt.sentence) << "}";
  }
  const auto faults = std::count_if(doubts.begin(), doubts.end(), IsFault);
  out << "\n], \"summary\": {\"caves\": " << set.caves.size() << ", \"faults\": " << faults
      << ", \"hints\": " << static_cast<std::ptrdiff_t>(doubts.size()) - faults << "}}\n";
}

// The hints of the proofs, behind all others.
void AddProofs(const CaveSet& set, const RateTerms& terms, Doubts& doubts) {
  const std::vector<Rated> all = RateAll(set, terms);
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].wrongProof) doubts.push_back(Placed(set, i, {DoubtKind::NotWon, all[i].reason, "cells", {}}));
    if (!all[i].rating) continue;
    for (Doubt& doubt : DoubtsAboutProof(*all[i].rating)) doubts.push_back(Placed(set, i, std::move(doubt)));
  }
}

}  // namespace

void PrintDoubtWords(std::ostream& out) {
  for (const bool fault : {true, false}) {
    out << (fault ? "Faults:\n" : "\nHints:\n");
    for (const DoubtRow& row : DoubtRows()) {
      if (row.fault == fault)
        out << "  " << std::left << std::setw(16) << row.word << std::right << row.meaning << "\n";
    }
  }
}

Exit LintCommand(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  Result<RateTerms> terms = ReadRateTerms(line);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const Needed<CaveSet> set = ReadCaves(path);
  if (!set) return Fail(console, set.Why());
  Doubts doubts = DoubtsOf(*set);
  terms->skips = false;
  if (!terms->proofs.empty()) AddProofs(*set, *terms, doubts);
  const auto print = line.Has("--json") ? PrintJson : PrintLines;
  print(*set, doubts, path, console.out);
  return std::any_of(doubts.begin(), doubts.end(), IsFault) ? Exit::No : Exit::Fine;
}

}  // namespace zorik
