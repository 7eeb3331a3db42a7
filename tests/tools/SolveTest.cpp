#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <ctime>
#include <thread>

#include "data/Collection.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

std::string Hopeless() {
  return CaveTextOf({"WWWWWW", "W1DW;T", "WWWWWW"}, {.needed = 1, .name = "Hopeless"});
}

// Nothing proves it, but the second gem lies where no dog comes, and nobody frees the butterfly.
std::string Vain() {
  return CaveTextOf({"WWWWWWWW", "W1D;X.XT", "W;;;XDXW", "W;;;XXXU", "WWWWWWWW"},
                    {.needed = 11, .name = "Vain"});
}

std::string Collection(const std::vector<std::string>& caves) {
  EditedCollection collection;
  collection.Name = "sada";
  collection.Author = "n\xECkdo";
  collection.CaveList = caves;
  Chance decoration;
  return *BuildCollection(collection, decoration);
}

class Solve : public ::testing::Test {
 protected:
  Folder folder;
};

TEST_F(Solve, WritesARecordThatVerifies) {
  const std::string cave = folder.Write("cave", ShortCave());
  const std::string record = folder.In("win.zkr");
  const Told told = Zktool({"solve", cave, "--shorten", "0.1", "--record", record});
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  EXPECT_EQ(told.out.substr(0, 23), "won length=4 score=106 ") << told.out;
  const Told verdict = Zktool({"verify", record});
  EXPECT_EQ(verdict.exit, Exit::Fine);
  EXPECT_EQ(verdict.out.substr(0, 14), "won score=106 ");
}

TEST_F(Solve, OfACollectionTellsEachCaveAndTheWorstEnd) {
  const std::string collection = folder.Write("sada.zk", Collection({ShortCave(), Hopeless()}));
  const Told told =
      Zktool({"solve", collection, "--shorten", "0", "--jobs", "2", "--record", folder.In("records")});
  EXPECT_EQ(told.exit, Exit::Impossible) << told.err;
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].substr(0, 7), " 1 won ");
  EXPECT_EQ(lines[1], " 2 impossible: no dog can ever come to the finish; Hopeless");
  EXPECT_EQ(Zktool({"verify", folder.In("records/01.zkr")}).exit, Exit::Fine);
  EXPECT_EQ(BytesOf(folder.In("records/02.zkr")), "(no file)");
}

TEST_F(Solve, SaysThatItFoundNothingAndWritesNothing) {
  const std::string cave = folder.Write("cave", Vain());
  const Told told = Zktool({"solve", cave, "--seconds", "0.2", "--record", folder.In("win.zkr")});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(told.out.substr(0, 22), "not found in 0.2 s, ge") << told.out;
  EXPECT_EQ(BytesOf(folder.In("win.zkr")), "(no file)");
}

TEST_F(Solve, TellsWhatIsNoCave) {
  const Told told = Zktool({"solve", folder.Write("cave", "rubbish")});
  EXPECT_EQ(told.exit, Exit::BadCave);
  EXPECT_EQ(told.out.substr(0, 10), "bad-cave: ");
  EXPECT_EQ(Zktool({"solve", folder.In("none")}).exit, Exit::CannotRead);
}

TEST_F(Solve, TellsItsSecondsAsTheyWereGivenAlsoBehindAWin) {
  const std::string collection = folder.Write("sada.zk", Collection({ShortCave(), Vain()}));
  const Told told = Zktool({"solve", collection, "--seconds", "1.125", "--shorten", "0"});
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].substr(0, 7), " 1 won ");
  EXPECT_EQ(lines[1].substr(0, 26), " 2 not found in 1.125 s, g");
}

// A process that never rests, on the one core on which this thread and those that it starts are meanwhile.
class BusyNeighbour {
 public:
  BusyNeighbour() {
    if (sched_getaffinity(0, sizeof(before_), &before_) != 0) return;
    std::size_t core = 0;
    while (core + 1 < CPU_SETSIZE && !CPU_ISSET(core, &before_)) ++core;
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(core, &one);
    if (sched_setaffinity(0, sizeof(one), &one) != 0) return;
    child_ = fork();
    if (child_ == 0) Toil();
  }
  ~BusyNeighbour() {
    if (child_ > 0) {
      kill(child_, SIGKILL);
      waitpid(child_, nullptr, 0);
    }
    sched_setaffinity(0, sizeof(before_), &before_);
  }
  BusyNeighbour(const BusyNeighbour&) = delete;
  BusyNeighbour& operator=(const BusyNeighbour&) = delete;

  bool IsThere() const { return child_ > 0; }

 private:
  // Until it is killed, or the test is gone.
  [[noreturn]] static void Toil() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (volatile unsigned turns = 0;;) turns = turns + 1;
  }

  cpu_set_t before_{};
  pid_t child_ = -1;
};

// However busy the machine is otherwise: of the same seconds on the clock the neighbour would take its share.
TEST_F(Solve, IsAtWorkForItsSecondsIfOnlyWorkCounts) {
  const std::string cave = folder.Write("cave", Vain());
  const BusyNeighbour neighbour;
  ASSERT_TRUE(neighbour.IsThere());
  const std::clock_t start = std::clock();
  const Told told = Zktool({"solve", cave, "--seconds", "0.4", "--work-time"});
  const double work = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  EXPECT_EQ(told.out.substr(0, 22), "not found in 0.4 s, ge") << told.out;
  EXPECT_GE(work, 0.4);
  EXPECT_LT(work, 1.4);
}

// The way is found at once, and the rest of the work goes into a shorter one.
TEST_F(Solve, IsAtWorkForItsShorteningTooIfOnlyWorkCounts) {
  const std::string cave = folder.Write("cave", ShortCave());
  const BusyNeighbour neighbour;
  ASSERT_TRUE(neighbour.IsThere());
  const std::clock_t start = std::clock();
  const Told told = Zktool({"solve", cave, "--shorten", "0.4", "--work-time"});
  const double work = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  EXPECT_EQ(told.out.substr(0, 4), "won ") << told.out;
  EXPECT_GE(work, 0.4);
  EXPECT_LT(work, 1.4);
}

TEST_F(Solve, EndsWithinItsSecondsPlusOne) {
  const std::string cave = folder.Write("cave", Vain());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Zktool({"solve", cave, "--seconds", "0.5", "--jobs", "2"}).exit, Exit::No);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1500));
}

TEST_F(Solve, KeepsARecordAsSoonAsItIsFound) {
  const std::string collection = folder.Write("sada.zk", Collection({ShortCave(), Vain()}));
  std::atomic<bool> over = false;
  const std::jthread search([&] {
    Zktool({"solve", collection, "--seconds", "4", "--shorten", "0", "--record", folder.In("records")});
    over = true;
  });
  while (!over && BytesOf(folder.In("records/01.zkr")) == "(no file)")
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_FALSE(over);
}

TEST_F(Solve, TakesReadableCavesAndTellsWhoMadeTheRecord) {
  folder.Write("f/collection.txt", "name: Sada\nopen: 1\nauthor:\nmail:\ncave: b.txt\ncave: a.txt\n");
  const std::string cave =
      folder.Write("f/a.txt",
                   "name: A\ntime: 60\ngems: 1\npoints-before: 10\npoints-after: 15\nmagic-wall-time: 20\n"
                   "amoeba-time: 30\ncolouring: 4\nslime: 4\ncells:\n| W1D;\n| R;;T\n");
  const std::string record = folder.In("a.zkr");
  const Told told = Zktool({"solve", cave, "--shorten", "0", "--record", record, "--player", "Zor\xC3\xADk"});
  ASSERT_EQ(told.exit, Exit::Fine) << told.err;
  RecordLines lines(BytesOf(record));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CollectionName, "Sada");
  EXPECT_EQ(head.Player, "Zor\xEDk");
  EXPECT_EQ(head.CaveText.substr(head.CaveText.size() - 5), "---02");
}

TEST_F(Solve, RefusesACollectionWithoutCaves) {
  const std::string whole = Collection({ShortCave()});
  std::size_t end = 0;
  for (int line = 0; line < 3; ++line) end = whole.find('\n', end) + 1;
  const Told told = Zktool({"solve", folder.Write("sada.zk", whole.substr(0, end))});
  EXPECT_EQ(told.exit, Exit::BadCollection);
  EXPECT_EQ(told.out, "");
}

TEST_F(Solve, RefusesNumbersThatMakeNoSense) {
  const std::string cave = folder.Write("cave", ShortCave());
  for (const char* const jobs : {"0", "257", "-1", "two"})
    EXPECT_EQ(Zktool({"solve", cave, "--jobs", jobs}).exit, Exit::Usage) << jobs;
  for (const char* const seconds : {"-1", "x", "nan", "1e999"})
    EXPECT_EQ(Zktool({"solve", cave, "--seconds", seconds}).exit, Exit::Usage) << seconds;
}

}  // namespace
}  // namespace zorik::test
