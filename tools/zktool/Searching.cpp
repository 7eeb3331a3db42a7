#include "zktool/Searching.h"

#include <time.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

#include "data/Result.h"
#include "solve/Impossible.h"
#include "solve/Solver.h"

namespace zorik {
namespace {

constexpr double kLongest = 86'400;    // seconds
constexpr std::uint64_t kSlice = 200;  // ticks between two looks at the clock
// What all searches together may take, and what each may take in any case.
constexpr std::size_t kMostBytes = std::size_t{1} << 30U, kLeastBytes = std::size_t{32} << 20U;

// That this thread was at work.
double WorkSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// Tells the seconds from now on, those of this thread's work or those on the clock.
std::function<double()> Stopwatch(bool work) {
  if (!work) return [start = SearchClock::now()] { return Since(start); };
  return [before = WorkSeconds()] { return WorkSeconds() - before; };
}

// Looks for one plan; several threads may do so with seeds of their own, and the first ends the others.
Solved Look(const Hra& begin, std::uint64_t seed, const SearchTerms& terms, std::atomic<bool>& found) {
  const auto spent = Stopwatch(terms.work);
  const auto solver = std::make_unique<Solver>(begin, seed, terms.bytes, terms.avoided);
  Solved solved;
  while (!found && spent() < terms.seconds) {
    if (!solver->Go(kSlice)) continue;
    if (!found.exchange(true)) {
      solved.outcome = Outcome::Won;
      solved.plan = *solver->Found();
    }
    break;
  }
  solved.seconds = spent();
  solved.ticks = solver->Ticks();
  solved.gems = solver->MostGems();
  solved.needed = begin.GemsNeeded;
  return solved;
}

Solved LookInLanes(const Hra& begin, std::uint64_t seed, const SearchTerms& terms) {
  std::atomic<bool> found = false;
  std::vector<Solved> tried(static_cast<std::size_t>(terms.lanes));
  RunAll(tried.size(),
         [&](std::size_t lane) { tried[lane] = Look(begin, seed * 1000 + lane, terms, found); });
  return *std::max_element(tried.begin(), tried.end(), [](const Solved& a, const Solved& b) {
    return std::pair(a.outcome == Outcome::Won, a.gems) < std::pair(b.outcome == Outcome::Won, b.gems);
  });
}

}  // namespace

std::size_t BytesForOne(int searches) {
  return std::max(kLeastBytes, kMostBytes / static_cast<std::size_t>(searches));
}

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

Solved SolveCave(const RunTerms& run, const SearchTerms& terms,
                 const std::function<void(const std::string& record)>& keep) {
  const auto begin = BeginRun(run);
  if (!begin) return {Outcome::BadCave, begin.Message(), {}, {}, 0, 0, 0, 0};
  if (const auto reason = WhyImpossible(**begin))
    return {Outcome::Impossible, *reason, {}, {}, 0, 0, 0, (*begin)->GemsNeeded};
  Solved solved = LookInLanes(**begin, run.seed, terms);
  if (solved.outcome != Outcome::Won) return solved;
  const auto store = [&] {
    solved.record = RecordOfPlan(run, solved.plan);
    if (keep) keep(solved.record);
  };
  store();
  const double most = std::min(terms.shortening, terms.seconds - solved.seconds);
  const auto enough = [&, spent = Stopwatch(terms.work)] { return spent() >= most; };
  const std::size_t length = solved.plan.size();
  solved.plan = MakeShort(**begin, std::move(solved.plan), ~run.seed, terms.bytes, enough, terms.avoided);
  if (solved.plan.size() < length) store();
  return solved;
}

Result<double> SecondsBehind(const CommandLine& line, std::string_view option, double otherwise) {
  if (!line.Has(option)) return otherwise;
  const Result<double> seconds = ReadNumber<double>(line.Value(option));
  if (!seconds) return Failure{std::string(option) + ": " + seconds.Message()};
  if (!(*seconds <= kLongest)) return Failure{std::string(option) + ": a number of seconds, up to a day"};
  return seconds;
}

Result<int> JobsOf(const CommandLine& line) {
  constexpr int kMostJobs = 256;
  const Result<int> jobs = NumberBehind(line, "--jobs", 1);
  if (jobs && (*jobs < 1 || *jobs > kMostJobs)) return Failure{"--jobs: a number from 1 to 256"};
  return jobs;
}

}  // namespace zorik
