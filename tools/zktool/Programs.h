#pragma once

#include <string>
#include <vector>

#include "data/Result.h"

namespace zorik {

// Other programs that a command starts. The first word names the program, by its path or as the system looks
// for it; none of the words goes through a shell.
using ProgramCall = std::vector<std::string>;

// The path of a program that is built and installed with this one; empty where it is not there.
std::string ProgramBeside(const std::string& name);

// Exit codes of programs that did not end by themselves begin here.
inline constexpr int kKilled = 128;

// Runs a program on the same standard streams, and answers its exit code; kKilled and more when it was
// killed. Fails when it cannot be started.
Result<int> RunProgram(const ProgramCall& call);

struct PipeEnd {
  int writer = 0, reader = 0;  // exit codes, as above
};

// Why there is no pipe of two programs.
struct NoPipe : Failure {
  bool lacksReader = false;  // the second one cannot be started
};

// Runs two programs, the second of which reads what the first writes. What the second says of failures goes
// into a file.
Result<PipeEnd, NoPipe> RunPipe(const ProgramCall& writer, const ProgramCall& reader,
                                const std::string& words);

// A folder for what programs hand to one another, gone with all in it when this is.
class WorkFolder {
 public:
  WorkFolder();
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  bool IsThere() const { return !path_.empty(); }
  std::string In(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

}  // namespace zorik
