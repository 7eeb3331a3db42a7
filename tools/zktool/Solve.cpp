#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <iomanip>
#include <memory>
#include <mutex>
#include <ostream>
#include <sstream>
#include <thread>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "zktool/Caves.h"
#include "zktool/Commands.h"
#include "zktool/Searching.h"
#include "zktool/Verdict.h"

namespace zorik {
namespace {

struct Terms {
  SearchTerms search;
  std::uint64_t seed = 0;
  int jobs = 1;
  std::string out;  // file or folder for records, empty for none
  std::string player = "hrac";
};

// On a terminal a line tells how far it has come.
class Ticker {
 public:
  Ticker(std::size_t caves, Console& console) : caves_(caves), console_(console) {
    if (isatty(STDERR_FILENO) == 0) return;
    thread_ = std::jthread([this](const std::stop_token& stop) { Run(stop); });
  }
  void CaveDone() { ++done_; }

 private:
  void Run(const std::stop_token& stop) {
    const auto start = SearchClock::now();
    while (!stop.stop_requested()) {
      console_.err << "\r" << done_ << "/" << caves_ << " caves, " << static_cast<int>(Since(start)) << " s "
                   << std::flush;
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    console_.err << "\r                              \r" << std::flush;
  }

  std::size_t caves_;
  Console& console_;
  std::atomic<std::size_t> done_ = 0;
  std::jthread thread_;
};

// Solves the caves of a set, keeps the records as they come, and tells the caves in their order, each as soon
// as all before it are done.
class Solving {
 public:
  Solving(const CaveSet& set, const Terms& terms, Console& console)
      : set_(set), terms_(terms), console_(console), solved_(set.caves.size()), done_(set.caves.size()) {}

  Exit Run() {
    const auto jobs = static_cast<std::size_t>(terms_.jobs);
    std::atomic<std::size_t> next = 0;
    Ticker ticker(set_.caves.size(), console_);
    RunAll(std::min(jobs, set_.caves.size()), [&](std::size_t) {
      for (std::size_t i = next++; i < set_.caves.size(); i = next++) {
        Solve(i);
        ticker.CaveDone();
      }
    });
    return worst_;
  }

 private:
  RunTerms TermsOf(std::size_t i) const {
    return {set_.caves[i].text, set_.name, terms_.seed, terms_.player};
  }

  void Solve(std::size_t i) {
    Solved solved =
        SolveCave(TermsOf(i), terms_.search, [&](const std::string& record) { Store(i, record); });
    const std::scoped_lock held(lock_);
    solved_[i] = std::move(solved);
    done_[i] = true;
    for (; told_ < done_.size() && done_[told_]; ++told_) Note(Tell(told_));
    console_.out.flush();
  }

  // Of all ends the first counts that is more than a cave without a way.
  void Note(Exit exit) {
    if (exit != Exit::Fine && (worst_ == Exit::Fine || worst_ == Exit::No)) worst_ = exit;
  }

  std::string PathFor(std::size_t i) const {
    if (!set_.collection) return terms_.out;
    std::ostringstream name;
    name << terms_.out << "/" << std::setw(2) << std::setfill('0') << set_.caves[i].number << ".zkr";
    return name.str();
  }

  void Store(std::size_t i, const std::string& record) {
    if (terms_.out.empty() || record.empty()) return;
    std::error_code error;
    if (set_.collection) std::filesystem::create_directories(terms_.out, error);
    const Result<Done> written = WriteWhole(PathFor(i), record);
    if (written) return;
    const std::scoped_lock held(lock_);
    Note(Fail(console_, Exit::CannotWrite, written.Message()));
  }

  Exit TellWon(const Solved& solved, const std::string& name) {
    const auto hra = std::make_unique<Hra>();
    const Judgement judgement = Judge(*hra, solved.record);
    if (judgement.verdict != Verdict::Won)
      return Fail(console_, Exit::Failed, "a plan was found that the replay does not win");
    console_.out << "won length=" << solved.plan.size() << " score=" << judgement.score
                 << " seconds=" << std::fixed << std::setprecision(2) << solved.seconds
                 << " ticks=" << solved.ticks << " " << name << "\n";
    return Exit::Fine;
  }

  Exit Tell(std::size_t i) {
    const Solved& solved = solved_[i];
    const std::string name = ShownName(set_.caves[i].record);
    if (set_.collection) console_.out << std::setw(2) << set_.caves[i].number << " ";
    switch (solved.outcome) {
      case Outcome::Won:
        return TellWon(solved, name);
      case Outcome::NotFound:
        console_.out << "not found in " << std::defaultfloat << std::setprecision(6) << terms_.search.seconds
                     << " s, gems=" << solved.gems << "/" << solved.needed << " ticks=" << solved.ticks << " "
                     << name << "\n";
        return Exit::No;
      case Outcome::Impossible:
        console_.out << "impossible: " << solved.reason << "; " << name << "\n";
        return Exit::Impossible;
      case Outcome::BadCave:
        console_.out << "bad-cave: " << solved.reason << "\n";
        return Exit::BadCave;
    }
    return Exit::Failed;
  }

  const CaveSet& set_;
  const Terms& terms_;
  Console& console_;
  std::mutex lock_;
  std::vector<Solved> solved_;
  std::vector<bool> done_;
  std::size_t told_ = 0;
  Exit worst_ = Exit::Fine;
};

// "X,Y,WxH": cells that no dog may enter or act on.
Result<Avoided> AvoidedOf(const std::string& text) {
  int x = 0, y = 0, width = 0, height = 0;
  char comma = 0, second = 0, times = 0;
  std::istringstream stream(text);
  stream >> x >> comma >> y >> second >> width >> times >> height;
  const bool whole = stream && stream.peek() == std::istringstream::traits_type::eof();
  const bool form = whole && comma == ',' && second == ',' && times == 'x';
  const bool inside = x >= 0 && y >= 0 && width > 0 && height > 0 && x <= kMaxWidth - width &&
                      y <= kMaxHeight - height && width <= kMaxWidth && height <= kMaxHeight;
  if (!form || !inside) return Failure{"--avoid: \"" + text + "\" is not X,Y,WxH with cells of a cave"};
  auto cells = std::make_shared<CellSet>();
  for (int dy = 0; dy < height; ++dy) {
    for (int dx = 0; dx < width; ++dx) cells->Add({x + dx, y + dy});
  }
  return Avoided(std::move(cells));
}

Result<Terms> ReadTerms(const CommandLine& line) {
  Terms terms;
  const Result<double> seconds = SecondsBehind(line, "--seconds", terms.search.seconds);
  if (!seconds) return Failure{seconds.Message()};
  const Result<double> shortening = SecondsBehind(line, "--shorten", terms.search.shortening);
  if (!shortening) return Failure{shortening.Message()};
  const Result<std::uint64_t> seed = NumberBehind<std::uint64_t>(line, "--seed", 0);
  if (!seed) return Failure{seed.Message()};
  const Result<int> jobs = JobsOf(line);
  if (!jobs) return Failure{jobs.Message()};
  if (line.Has("--avoid")) {
    Result<Avoided> avoided = AvoidedOf(line.Value("--avoid"));
    if (!avoided) return Failure{avoided.Message()};
    terms.search.avoided = std::move(*avoided);
  }
  terms.search.seconds = *seconds;
  terms.search.work = line.Has("--work-time");
  terms.search.shortening = *shortening;
  terms.seed = *seed;
  terms.jobs = *jobs;
  const Result<std::string> player = PlayerBehind(line, terms.player);
  if (!player) return Failure{player.Message()};
  terms.player = *player;
  if (line.Has("--record")) terms.out = line.Value("--record");
  return terms;
}

}  // namespace

Exit SolveCommand(const CommandLine& line, Console& console) {
  Result<Terms> terms = ReadTerms(line);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const Needed<CaveSet> set = ReadCaves(line.operands[0]);
  if (!set && set.Why().exit == Exit::BadCave) {
    console.out << "bad-cave: " << set.Message() << "\n";
    return Exit::BadCave;
  }
  if (!set) return Fail(console, set.Why());
  if (set->caves.empty()) return Fail(console, Exit::BadCollection, "the collection has no cave");
  terms->search.lanes = set->caves.size() == 1 ? terms->jobs : 1;
  terms->search.bytes = BytesForOne(terms->jobs);
  return Solving(*set, *terms, console).Run();
}

}  // namespace zorik
