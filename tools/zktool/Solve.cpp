#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <filesystem>
#include <functional>
#include <iomanip>
#include <memory>
#include <mutex>
#include <ostream>
#include <sstream>
#include <thread>

#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "solve/Impossible.h"
#include "solve/Shorten.h"
#include "solve/Solver.h"
#include "zktool/Commands.h"
#include "zktool/Verdict.h"

namespace zorik {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kPlayer = "hrac";
constexpr std::string_view kCollection = "sada";
constexpr double kLongest = 86'400;    // seconds
constexpr std::uint64_t kSlice = 200;  // ticks between two looks at the clock
// What all searches together may take, and what each may take in any case.
constexpr std::size_t kMostBytes = std::size_t{1} << 30U, kLeastBytes = std::size_t{32} << 20U;

struct Task {
  int number = 0;  // of the cave in its collection, 0 for a cave text
  std::string text;
  std::string collection{kCollection};
};

struct Terms {
  double seconds = 60;
  double shortening = 5;
  std::uint64_t seed = 0;
  int jobs = 1;
  std::string out;  // file or folder for records, empty for none
};

enum class Outcome { Won, NotFound, Impossible, BadCave };

struct Solved {
  Outcome outcome = Outcome::NotFound;
  std::string name;
  std::string reason;  // where it is impossible or no cave
  Plan plan;
  double seconds = 0;       // until the first plan was found, or until the end
  std::uint64_t ticks = 0;  // that the search took
  int gems = 0, needed = 0;
};

double Since(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Runs work(0), work(1) and so on, each on a thread of its own. What one of them throws is thrown here when
// all are done.
void RunAll(std::size_t count, const std::function<void(std::size_t)>& work) {
  std::mutex lock;
  std::exception_ptr thrown;
  {
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < count; ++i) {
      threads.emplace_back([&, i] {
        try {
          work(i);
        } catch (...) {
          const std::scoped_lock held(lock);
          thrown = std::current_exception();
        }
      });
    }
  }
  if (thrown) std::rethrow_exception(thrown);
}

std::size_t BytesForOne(const Terms& terms) {
  return std::max(kLeastBytes, kMostBytes / static_cast<std::size_t>(terms.jobs));
}

// Looks for one plan; several threads may do so with seeds of their own, and the first ends the others. Takes
// what is known of the cave and adds what came of it.
Solved Look(const Hra& begin, std::uint64_t seed, const Terms& terms, std::atomic<bool>& found,
            Solved solved) {
  const auto start = Clock::now();
  const auto solver = std::make_unique<Solver>(begin, seed, BytesForOne(terms));
  while (!found && Since(start) < terms.seconds) {
    if (!solver->Go(kSlice)) continue;
    if (!found.exchange(true)) {
      solved.outcome = Outcome::Won;
      solved.plan = *solver->Found();
    }
    break;
  }
  solved.seconds = Since(start);
  solved.ticks = solver->Ticks();
  solved.gems = solver->MostGems();
  return solved;
}

// Takes out what is not needed, then looks for shorter ways as long as there is time.
Plan MakeShort(const Hra& begin, Plan plan, const Terms& terms, double seconds) {
  const auto start = Clock::now();
  const auto enough = [&] { return Since(start) >= seconds; };
  plan = Shorten(begin, std::move(plan), enough);
  const auto solver = std::make_unique<Solver>(begin, ~terms.seed, BytesForOne(terms));
  while (!enough()) {
    solver->SetBound(static_cast<int>(plan.size()));
    while (!enough() && !solver->Go(kSlice)) continue;
    if (solver->Found()) plan = Shorten(begin, *solver->Found(), enough);
  }
  return plan;
}

Solved Solve(const Task& task, const Terms& terms, int lanes) {
  Solved solved;
  const auto begin = std::make_unique<Hra>(terms.seed);
  begin->PlayerName = kPlayer;
  begin->CollectionName = task.collection;
  const Result<Done> started = PaintCave(*begin, task.text, RunKind::Play);
  if (!started) {
    solved.outcome = Outcome::BadCave;
    solved.reason = started.Message();
    return solved;
  }
  solved.name = WithoutControls(ToUtf8(begin->CaveName));
  solved.needed = begin->GemsNeeded;
  if (const auto reason = WhyImpossible(*begin)) {
    solved.outcome = Outcome::Impossible;
    solved.reason = *reason;
    return solved;
  }
  std::atomic<bool> found = false;
  std::vector<Solved> tried(static_cast<std::size_t>(lanes));
  RunAll(tried.size(), [&](std::size_t lane) {
    tried[lane] = Look(*begin, terms.seed * 1000 + lane, terms, found, solved);
  });
  solved = *std::max_element(tried.begin(), tried.end(), [](const Solved& a, const Solved& b) {
    return std::pair(a.outcome == Outcome::Won, a.gems) < std::pair(b.outcome == Outcome::Won, b.gems);
  });
  if (solved.outcome != Outcome::Won) return solved;
  const double left = std::min(terms.shortening, terms.seconds - solved.seconds);
  solved.plan = MakeShort(*begin, std::move(solved.plan), terms, left);
  return solved;
}

// The record that a player would have made with this plan.
std::string RecordOf(const Task& task, const Terms& terms, const Plan& plan) {
  const auto hra = std::make_unique<Hra>(terms.seed);
  hra->PlayerName = kPlayer;
  hra->CollectionName = task.collection;
  if (!PaintCave(*hra, task.text, RunKind::Play)) return {};
  for (const Move move : plan) Tick(*hra, KeysOf(move));
  return hra->Win ? SaveRecord(*hra, hra->Win->Score) : std::string();
}

std::string PathFor(const Task& task, const Terms& terms) {
  if (task.number == 0) return terms.out;
  std::ostringstream name;
  name << terms.out << "/" << std::setw(2) << std::setfill('0') << task.number << ".zkr";
  return name.str();
}

Exit Store(const Task& task, const Terms& terms, const std::string& record, Console& console) {
  if (terms.out.empty()) return Exit::Fine;
  if (task.number != 0) {
    std::error_code error;
    std::filesystem::create_directories(terms.out, error);
  }
  const Result<Done> written = WriteWhole(PathFor(task, terms), record);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

Exit TellWon(const Task& task, const Terms& terms, const Solved& solved, Console& console) {
  const std::string record = RecordOf(task, terms, solved.plan);
  const auto hra = std::make_unique<Hra>();
  const Judgement judgement = Judge(*hra, record);
  if (judgement.verdict != Verdict::Won)
    return Fail(console, Exit::Failed, "a plan was found that the replay does not win");
  console.out << "won length=" << solved.plan.size() << " score=" << judgement.score
              << " seconds=" << std::fixed << std::setprecision(2) << solved.seconds
              << " ticks=" << solved.ticks << " " << solved.name << "\n";
  return Store(task, terms, record, console);
}

Exit TellOutcome(const Task& task, const Terms& terms, const Solved& solved, Console& console) {
  if (task.number != 0) console.out << std::setw(2) << task.number << " ";
  switch (solved.outcome) {
    case Outcome::Won:
      return TellWon(task, terms, solved, console);
    case Outcome::NotFound:
      console.out << "not found in " << std::defaultfloat << std::setprecision(6) << terms.seconds
                  << " s, gems=" << solved.gems << "/" << solved.needed << " ticks=" << solved.ticks << " "
                  << solved.name << "\n";
      return Exit::No;
    case Outcome::Impossible:
      console.out << "impossible: " << solved.reason << "; " << solved.name << "\n";
      return Exit::Impossible;
    case Outcome::BadCave:
      console.out << "bad-cave: " << solved.reason << "\n";
      return Exit::BadCave;
  }
  return Exit::Failed;
}

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
    const auto start = Clock::now();
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

std::vector<Solved> SolveAll(const std::vector<Task>& tasks, const Terms& terms, Console& console) {
  std::vector<Solved> solved(tasks.size());
  std::atomic<std::size_t> next = 0;
  Ticker ticker(tasks.size(), console);
  const auto jobs = static_cast<std::size_t>(terms.jobs);
  const int lanes = tasks.size() == 1 ? terms.jobs : 1;
  RunAll(std::min(jobs, tasks.size()), [&](std::size_t) {
    for (std::size_t i = next++; i < tasks.size(); i = next++) {
      solved[i] = Solve(tasks[i], terms, lanes);
      ticker.CaveDone();
    }
  });
  return solved;
}

// A collection, or else the text of a single cave.
std::vector<Task> TasksOf(const std::string& bytes) {
  const Result<PlayedCollection> collection = ReadForPlay(bytes);
  if (!collection) return {{0, bytes}};
  std::vector<Task> tasks;
  for (const PlayedCave& cave : collection->Caves)
    tasks.push_back({static_cast<int>(tasks.size()) + 1, cave.Text, collection->Name});
  return tasks;
}

Result<double> SecondsBehind(const CommandLine& line, std::string_view option, double otherwise) {
  if (!line.Has(option)) return otherwise;
  const Result<double> seconds = ReadNumber<double>(line.Value(option));
  if (!seconds) return Failure{std::string(option) + ": " + seconds.Message()};
  if (!(*seconds <= kLongest)) return Failure{std::string(option) + ": a number of seconds, up to a day"};
  return seconds;
}

Result<Terms> ReadTerms(const CommandLine& line) {
  Terms terms;
  const Result<double> seconds = SecondsBehind(line, "--seconds", terms.seconds);
  if (!seconds) return Failure{seconds.Message()};
  const Result<double> shortening = SecondsBehind(line, "--shorten", terms.shortening);
  if (!shortening) return Failure{shortening.Message()};
  const Result<std::uint64_t> seed = NumberBehind<std::uint64_t>(line, "--seed", 0);
  if (!seed) return Failure{seed.Message()};
  constexpr int kMostJobs = 256;
  const Result<int> jobs = NumberBehind(line, "--jobs", 1);
  if (!jobs) return Failure{jobs.Message()};
  if (*jobs < 1 || *jobs > kMostJobs) return Failure{"--jobs: a number from 1 to 256"};
  terms.seconds = *seconds;
  terms.shortening = *shortening;
  terms.seed = *seed;
  terms.jobs = *jobs;
  if (line.Has("--record")) terms.out = line.Value("--record");
  return terms;
}

}  // namespace

Exit SolveCommand(const CommandLine& line, Console& console) {
  const Result<Terms> terms = ReadTerms(line);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const Result<std::string> bytes = ReadStream(line.operands[0]);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  const std::vector<Task> tasks = TasksOf(*bytes);
  if (tasks.empty()) return Fail(console, Exit::BadCollection, "the collection has no cave");
  const std::vector<Solved> solved = SolveAll(tasks, *terms, console);
  Exit worst = Exit::Fine;
  for (std::size_t i = 0; i < tasks.size(); ++i) {
    const Exit exit = TellOutcome(tasks[i], *terms, solved[i], console);
    if (exit != Exit::Fine && (worst == Exit::Fine || worst == Exit::No)) worst = exit;
  }
  return worst;
}

}  // namespace zorik
