#include <algorithm>
#include <iomanip>
#include <ostream>

#include "data/Cp1250.h"
#include "data/Result.h"
#include "zktool/Caves.h"
#include "zktool/Commands.h"
#include "zktool/Json.h"
#include "zktool/Rated.h"

namespace zorik {
namespace {

double Seconds(int ticks) {
  return static_cast<double>(ticks) / kTicksPerSecond;
}

double Percent(int part, int whole) {
  return whole > 0 ? 100.0 * part / whole : 0;
}

// The words of the things whose bits are set.
std::vector<std::string> WordsOfThings(std::uint64_t things) {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < kThings.size(); ++i) {
    if ((things >> i & 1U) != 0) words.emplace_back(kThings[i].word);
  }
  return words;
}

std::uint64_t ThingsOf(const NamedCave& cave) {
  const auto run = std::make_unique<Hra>();
  return PaintCave(*run, cave.text, RunKind::Play) ? ThingsIn(*run) : 0;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text.empty() ? "nothing" : text;
}

std::string Place(const Skippable& place) {
  return std::to_string(place.from.x) + "," + std::to_string(place.from.y) + "," +
         std::to_string(place.width) + "x" + std::to_string(place.height);
}

void PrintRating(const NamedCave& cave, const Rated& rated, std::ostream& out) {
  const Rating& rating = *rated.rating;
  const Review& review = rating.review;
  const std::uint64_t there = ThingsOf(cave);
  out << std::fixed << std::setprecision(1) << "  length      " << Seconds(review.ticks) << " s, "
      << review.ticks << " ticks; the limit is " << rating.limitRatio << " times that\n"
      << "  idle        " << Percent(review.idleTicks, review.ticks) << " % of the ticks, at the longest "
      << Seconds(review.idleStretch) << " s from tick " << review.idleFrom + 1 << " on\n"
      << "  decisions   " << review.decisions << "\n  danger      " << review.closeCalls << " narrow escapes";
  if (review.closeCalls > 0) out << ", the closest " << review.margin << " ticks from death";
  out << "\n  odds        " << rating.survived << " of " << rating.tries << " other seeds\n"
      << "  used        " << Joined(WordsOfThings(review.used & there)) << "\n"
      << "  not used    " << Joined(WordsOfThings(there & ~review.used)) << "\n"
      << std::setprecision(2) << "  mirror      " << rating.mirror << "\n  paws        " << rating.paws
      << "\n";
  for (const Skippable& place : rated.skippable)
    out << "  skippable   " << Place(place) << " " << ToUtf8(place.letters) << "\n";
  out << "  untouched by " << rating.wins << (rating.wins == 1 ? " win:\n" : " wins:\n");
  for (const std::string& row : UntouchedRows(cave.record, rating)) out << "  | " << ToUtf8(row) << "\n";
}

void PrintLines(const CaveSet& set, const std::vector<Rated>& all, std::ostream& out) {
  for (std::size_t i = 0; i < all.size(); ++i) {
    const NamedCave& cave = set.caves[i];
    if (cave.number > 0) out << std::setw(2) << cave.number << " ";
    out << ShownName(cave.record) << "\n";
    if (all[i].rating) {
      PrintRating(cave, all[i], out);
    } else {
      out << "  not rated: " << all[i].reason << "\n";
    }
  }
}

void PrintList(std::string_view key, const std::vector<std::string>& texts, std::ostream& out) {
  out << ", \"" << key << "\": [";
  for (std::size_t i = 0; i < texts.size(); ++i) out << (i > 0 ? ", " : "") << JsonText(texts[i]);
  out << "]";
}

void PrintJsonRating(const NamedCave& cave, const Rated& rated, std::ostream& out) {
  const Rating& rating = *rated.rating;
  const Review& review = rating.review;
  const std::uint64_t there = ThingsOf(cave);
  out << ", \"ticks\": " << review.ticks << ", \"limitRatio\": " << rating.limitRatio
      << ", \"idleShare\": " << Percent(review.idleTicks, review.ticks) / 100
      << ", \"idleStretch\": " << review.idleStretch << ", \"idleFrom\": " << review.idleFrom + 1
      << ", \"decisions\": " << review.decisions << ", \"narrowEscapes\": " << review.closeCalls
      << ", \"margin\": " << review.margin << ", \"survived\": " << rating.survived
      << ", \"retries\": " << rating.tries << ", \"mirror\": " << rating.mirror
      << ", \"paws\": " << rating.paws << ", \"wins\": " << rating.wins;
  PrintList("used", WordsOfThings(review.used & there), out);
  PrintList("notUsed", WordsOfThings(there & ~review.used), out);
  std::vector<std::string> places;
  for (const Skippable& place : rated.skippable) places.push_back(Place(place));
  PrintList("skippable", places, out);
  std::vector<std::string> rows = UntouchedRows(cave.record, rating);
  for (std::string& row : rows) row = ToUtf8(row);
  PrintList("untouched", rows, out);
}

void PrintJson(const CaveSet& set, const std::vector<Rated>& all, std::ostream& out) {
  out << "{\"caves\": [";
  for (std::size_t i = 0; i < all.size(); ++i) {
    const NamedCave& cave = set.caves[i];
    out << (i > 0 ? ",\n" : "\n") << "  {\"cave\": " << cave.number
        << ", \"name\": " << JsonText(ShownName(cave.record))
        << ", \"rated\": " << (all[i].rating ? "true" : "false");
    if (all[i].rating) {
      PrintJsonRating(cave, all[i], out);
    } else {
      out << ", \"reason\": " << JsonText(all[i].reason);
    }
    out << "}";
  }
  out << "\n]}\n";
}

}  // namespace

Exit RateCommand(const CommandLine& line, Console& console) {
  const Result<RateTerms> terms = ReadRateTerms(line);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const Needed<CaveSet> set = ReadCaves(line.operands[0]);
  if (!set) return Fail(console, set.Why());
  if (set->caves.empty()) return Fail(console, Exit::BadCollection, "the collection has no cave");
  const std::vector<Rated> all = RateAll(*set, *terms);
  const auto print = line.Has("--json") ? PrintJson : PrintLines;
  print(*set, all, console.out);
  const bool rated =
      std::all_of(all.begin(), all.end(), [](const Rated& one) { return one.rating.has_value(); });
  return rated ? Exit::Fine : Exit::No;
}

}  // namespace zorik
