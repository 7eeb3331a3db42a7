#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/Chance.h"

// What the tests share that go on for as long as they are told to. tools/endurance.sh tells them by the
// environment:
//   ENDURANCE_SECONDS  how long; without it each test takes a moment, as all other tests do
//   ENDURANCE_SEED     where their chances begin, so that they try other things each time
//   ENDURANCE_FOLDER   where they leave what they have found
namespace zorik::test {

// Tells when a test has gone on for long enough.
class Patience {
 public:
  // Rounds that are gone in any case.
  explicit Patience(int rounds);

  // Whether one more round is to be gone. It counts them.
  bool Lasts();

  int Rounds() const { return rounds_ - 1; }

 private:
  double end_;
  int least_;
  int rounds_ = 0;
};

// The chance of this time.
Chance ChanceOfNow();
std::uint64_t SeedOfNow();

// Says how often something was done, for the account of the whole.
void Count(long times, const std::string& what);

// What is being tried at the moment, in a file that stays when the program dies of it or a test fails.
class Evidence {
 public:
  explicit Evidence(const std::string& name);
  ~Evidence();
  Evidence(const Evidence&) = delete;
  Evidence& operator=(const Evidence&) = delete;

  void Hold(std::string_view bytes) const;

 private:
  std::string path_;
  int file_ = -1;
};

// Leaves a copy of a folder as evidence.
void KeepFolder(const std::string& folder, const std::string& name);

// What this process holds: bytes of its heap, open files and sockets, and whatever else is told to it. It is
// looked at again and again while the same thing is done.
class Growth {
 public:
  // The names of what else is told, and the bytes that each look may cost: it keeps some itself.
  explicit Growth(std::vector<std::string> others = {}, double bytesEach = 64)
      : names_(std::move(others)), bytesEach_(bytesEach) {}

  void Look(const std::vector<long>& others = {});

  // Fails the test when something has grown all the way. The looks are taken in five parts, of which the
  // first does not count, since all is met for the first time then; what grows has its least in each of the
  // others above that in the one before, so a cache that is filled late is no growth. Bytes must be more than
  // a few thousand, since pictures and sounds come and go, and more than the looks may cost.
  void ExpectNone() const;

 private:
  struct Held {
    long bytes;
    long handles;
    std::vector<long> others;
  };

  static void ExpectNone(const std::string& name, const std::vector<long>& values, double slack);

  std::vector<std::string> names_;
  double bytesEach_;
  std::vector<Held> looks_;
};

}  // namespace zorik::test
