#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "solve/Move.h"
#include "solve/Win.h"
#include "zktool/CommandLine.h"

namespace zorik {

using SearchClock = std::chrono::steady_clock;

inline double Since(SearchClock::time_point start) {
  return std::chrono::duration<double>(SearchClock::now() - start).count();
}

// How long and how a cave is searched.
struct SearchTerms {
  double seconds = 60;    // in all
  bool work = false;      // only those count in which the search is at work, not those in which others are
  double shortening = 5;  // of these, once a way is known
  int lanes = 1;          // searches at a time
  std::size_t bytes = 0;  // of memory for each
  Avoided avoided;
};

enum class Outcome { Won, NotFound, Impossible, BadCave };

struct Solved {
  Outcome outcome = Outcome::NotFound;
  std::string reason;  // where it is impossible or no cave
  Plan plan;
  std::string record;
  double seconds = 0;       // until the first plan was found, or until the end
  std::uint64_t ticks = 0;  // that the search took
  int gems = 0, needed = 0;
};

// What all searches together may take is shared out among so many.
std::size_t BytesForOne(int searches);

// Runs work(0), work(1) and so on, each on a thread of its own. What one of them throws is thrown here when
// all are done.
void RunAll(std::size_t count, const std::function<void(std::size_t)>& work);

// Searches a cave for a win. keep: gets the record of the first way as soon as it is found, and that of a
// shorter one at the end.
Solved SolveCave(const RunTerms& run, const SearchTerms& terms,
                 const std::function<void(const std::string& record)>& keep = {});

// The number of seconds behind an option, up to a day.
Result<double> SecondsBehind(const CommandLine& line, std::string_view option, double otherwise);

// The number of jobs behind "--jobs", 1 if it is not there.
Result<int> JobsOf(const CommandLine& line);

}  // namespace zorik
