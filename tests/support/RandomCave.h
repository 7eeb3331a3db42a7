#pragma once

#include <cstdint>
#include <string>

#include "data/Chance.h"
#include "trace/Trace.h"

namespace zorik::test {

// A cave of any size with all kinds of objects, a cat's program, and the keys that somebody hammers in it.
struct RandomRun {
  std::uint64_t seed = 0;  // also for the chance of the run
  std::string caveText;
  KeyScript keys;  // a snapshot for each tick that the run is to last
};

// The same number makes the same run.
RandomRun MakeRun(std::uint64_t number);

// What a careless hand, a broken disk or an editor may do to a record: flips, cuts, drops and inserts bytes,
// in the moves or in the cave, at least once.
std::string Damaged(std::string record, Chance& chance);

// How many runs a test makes: its usual number, or more when ZORIK_MANY in the environment asks for more.
// Under the sanitizers, where a run takes some twelve times as long, it is a quarter of the usual number: the
// others are made without them, and the hours of the endurance are for more.
int HowMany(int usual);

}  // namespace zorik::test
