#include "zktool/Rated.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <iomanip>
#include <sstream>

#include "core/Objects.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "solve/Odds.h"
#include "zktool/Searching.h"

namespace zorik {
namespace {

constexpr double kShortening = 1;  // seconds, for each win that is looked for
constexpr double kMostForOne = 2;  // seconds, for each place that might be walked past
constexpr int kTogether = 2;       // cells: things so close belong together
constexpr int kMoreWins = 2;

using Enough = std::function<bool()>;

// The things of a cave that stand close together, and the smallest rectangle around them.
struct Group {
  std::vector<Spot> cells;
  Skippable place;
};

bool IsThing(char letter) {
  return std::string_view(".;WT").find(letter) == std::string_view::npos && DogNumber(letter) == 0;
}

bool Near(const Group& group, Spot spot) {
  return std::any_of(group.cells.begin(), group.cells.end(), [spot](Spot other) {
    return std::abs(other.x - spot.x) <= kTogether && std::abs(other.y - spot.y) <= kTogether;
  });
}

void Enclose(Group& group, const CaveRecord& cave) {
  Spot to = group.cells.front();
  group.place.from = to;
  for (const Spot spot : group.cells) {
    group.place.from = {std::min(group.place.from.x, spot.x), std::min(group.place.from.y, spot.y)};
    to = {std::max(to.x, spot.x), std::max(to.y, spot.y)};
    group.place.letters += cave.Cells[static_cast<std::size_t>(spot.x)][static_cast<std::size_t>(spot.y)];
  }
  std::sort(group.place.letters.begin(), group.place.letters.end());
  group.place.width = to.x - group.place.from.x + 1;
  group.place.height = to.y - group.place.from.y + 1;
}

// Things of brick join nothing: they are walls.
std::vector<Group> GroupsOf(const CaveRecord& cave) {
  std::vector<Group> groups;
  for (int y = 0; y < cave.Height; ++y) {
    for (int x = 0; x < cave.Width; ++x) {
      const char letter = cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
      if (!IsThing(letter) || letter == 'X') continue;
      Group joined{{Spot{x, y}}, {}};
      std::erase_if(groups, [&](const Group& group) {
        if (!Near(group, {x, y})) return false;
        joined.cells.insert(joined.cells.end(), group.cells.begin(), group.cells.end());
        return true;
      });
      groups.push_back(std::move(joined));
    }
  }
  for (Group& group : groups) Enclose(group, cave);
  return groups;
}

Avoided CellsOf(const Skippable& place) {
  auto cells = std::make_shared<CellSet>();
  for (int y = 0; y < place.height; ++y) {
    for (int x = 0; x < place.width; ++x) cells->Add({place.from.x + x, place.from.y + y});
  }
  return cells;
}

bool LeavesAlone(const Review& win, const Group& group) {
  return std::none_of(group.cells.begin(), group.cells.end(),
                      [&](Spot spot) { return win.touched[Cell(spot.x, spot.y).place()]; });
}

class CaveRating {
 public:
  CaveRating(const CaveSet& set, std::size_t cave, const RateTerms& terms)
      : set_(set), cave_(set.caves[cave]), terms_(terms) {}

  Rated Run() {
    if (!FindProof()) return std::move(rated_);
    Result<Review> review = ReviewRecord(rated_.record);
    if (!review) {
      rated_.reason = review.Message();
      rated_.wrongProof = true;
      return std::move(rated_);
    }
    wins_.push_back(std::move(*review));
    Follow();
    if (terms_.skips) FindMoreWins();
    if (terms_.skips) FindSkippable();
    rated_.rating = RateCave(cave_.record, std::move(wins_), tried_, survived_);
    return std::move(rated_);
  }

 private:
  double Left(double share) const { return share * terms_.seconds - Since(start_); }
  RunTerms TermsOf(std::uint64_t seed) const { return {cave_.text, set_.name, seed, "hrac"}; }

  std::string PathOfProof() const {
    std::error_code error;
    if (terms_.proofs.empty()) return {};
    if (!std::filesystem::is_directory(terms_.proofs, error)) return terms_.proofs;
    std::ostringstream path;
    path << terms_.proofs << "/" << std::setw(2) << std::setfill('0') << cave_.number << ".zkr";
    return path.str();
  }

  // The proof that is given, or else one that a search finds in half of the time.
  bool FindProof() {
    const std::string path = PathOfProof();
    if (!path.empty()) return ReadProof(path);
    Solved solved = Search(terms_.seed, Left(0.5), {});
    if (solved.outcome == Outcome::NotFound) rated_.reason = "no way to win was found";
    if (solved.outcome == Outcome::Impossible) rated_.reason = "impossible: " + solved.reason;
    if (solved.outcome == Outcome::BadCave) rated_.reason = solved.reason;
    rated_.record = std::move(solved.record);
    return solved.outcome == Outcome::Won;
  }

  bool ReadProof(const std::string& path) {
    Result<std::string> bytes = ReadWhole(path);
    if (!bytes) {
      rated_.reason = bytes.Message();
      return false;
    }
    RecordLines lines(*bytes);
    const std::string text = ReadRecordHead(lines).CaveText;
    const auto plain = [](std::string_view cave) {
      return EndsWithMarker(cave) ? WithoutMarker(cave) : cave;
    };
    if (plain(text) != plain(cave_.text)) {
      rated_.reason = path + " is a record of another cave";
      rated_.wrongProof = true;
      return false;
    }
    rated_.record = std::move(*bytes);
    return true;
  }

  Solved Search(std::uint64_t seed, double seconds, Avoided avoided) const {
    SearchTerms search;
    search.seconds = std::max(0.0, seconds);
    search.shortening = kShortening;
    search.bytes = BytesForOne(terms_.jobs);
    search.avoided = std::move(avoided);
    return SolveCave(TermsOf(seed), search);
  }

  void Follow() {
    const auto enough = [this] { return Left(0.8) <= 0; };
    for (int i = 1; i <= terms_.tries && !enough(); ++i) {
      const bool won = FollowPlan(cave_.text, wins_.front().deeds,
                                  terms_.seed + 1000 + static_cast<std::uint64_t>(i), enough);
      if (!won && enough()) return;  // nobody knows
      ++tried_;
      survived_ += won ? 1 : 0;
    }
  }

  bool AddWin(const Solved& solved) {
    if (solved.outcome != Outcome::Won) return false;
    Result<Review> review = ReviewRecord(solved.record);
    if (review) wins_.push_back(std::move(*review));
    return static_cast<bool>(review);
  }

  void FindMoreWins() {
    for (int i = 1; i <= kMoreWins; ++i) {
      AddWin(Search(terms_.seed + static_cast<std::uint64_t>(i), std::min(Left(1), kMostForOne), {}));
    }
  }

  // What one of the wins leaves alone, or a win that is looked for which has to.
  void FindSkippable() {
    for (const Group& group : GroupsOf(cave_.record)) {
      const auto leaves = [&](const Review& win) { return LeavesAlone(win, group); };
      bool skips = std::any_of(wins_.begin(), wins_.end(), leaves);
      if (!skips && Left(1) > 0)
        skips = AddWin(Search(terms_.seed + 7, std::min(Left(1), kMostForOne), CellsOf(group.place)));
      if (skips) rated_.skippable.push_back(group.place);
    }
  }

  const SearchClock::time_point start_ = SearchClock::now();
  const CaveSet& set_;
  const NamedCave& cave_;
  const RateTerms& terms_;
  std::vector<Review> wins_;
  int tried_ = 0, survived_ = 0;
  Rated rated_;
};

}  // namespace

std::vector<Rated> RateAll(const CaveSet& set, const RateTerms& terms) {
  std::vector<Rated> rated(set.caves.size());
  std::atomic<std::size_t> next = 0;
  RunAll(std::min(static_cast<std::size_t>(terms.jobs), rated.size()), [&](std::size_t) {
    for (std::size_t i = next++; i < rated.size(); i = next++) rated[i] = CaveRating(set, i, terms).Run();
  });
  return rated;
}

Result<RateTerms> ReadRateTerms(const CommandLine& line) {
  RateTerms terms;
  const Result<double> seconds = SecondsBehind(line, "--seconds", terms.seconds);
  if (!seconds) return Failure{seconds.Message()};
  const Result<int> tries = NumberBehind(line, "--retries", terms.tries);
  if (!tries) return Failure{tries.Message()};
  const Result<std::uint64_t> seed = NumberBehind<std::uint64_t>(line, "--seed", 0);
  if (!seed) return Failure{seed.Message()};
  const Result<int> jobs = JobsOf(line);
  if (!jobs) return Failure{jobs.Message()};
  terms.seconds = *seconds;
  terms.tries = *tries;
  terms.seed = *seed;
  terms.jobs = *jobs;
  if (line.Has("--proofs")) terms.proofs = line.Value("--proofs");
  return terms;
}

}  // namespace zorik
