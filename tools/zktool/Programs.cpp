#include "zktool/Programs.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>

#include "data/ProgramFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// What a program gets in place of the streams of this one.
class Streams {
 public:
  Streams() { posix_spawn_file_actions_init(&actions_); }
  ~Streams() { posix_spawn_file_actions_destroy(&actions_); }
  Streams(const Streams&) = delete;
  Streams& operator=(const Streams&) = delete;

  void Give(int from, int to) { posix_spawn_file_actions_adddup2(&actions_, from, to); }
  void Write(int to, const std::string& path) {
    posix_spawn_file_actions_addopen(&actions_, to, path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  }
  const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

Result<pid_t> Start(const ProgramCall& call, const Streams& streams) {
  std::vector<char*> words;
  for (const std::string& word : call) words.push_back(const_cast<char*>(word.c_str()));  // it changes none
  words.push_back(nullptr);
  pid_t process = 0;
  const int error = posix_spawnp(&process, words[0], streams.Actions(), nullptr, words.data(), environ);
  if (error != 0) return Failure{call[0] + " cannot be started: " + std::strerror(error)};
  return process;
}

int WaitFor(pid_t process) {
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return kKilled;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled + WTERMSIG(status);
}

}  // namespace

std::string ProgramBeside(const std::string& name) {
  std::error_code error;
  const fs::path program = fs::path(RunningProgramFolder()) / name;
  return fs::is_regular_file(program, error) ? program.string() : std::string();
}

Result<int> RunProgram(const ProgramCall& call) {
  const Result<pid_t> process = Start(call, Streams());
  if (!process) return Failure{process.Message()};
  return WaitFor(*process);
}

Result<PipeEnd, NoPipe> RunPipe(const ProgramCall& writer, const ProgramCall& reader,
                                const std::string& words) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return NoPipe{{"the system gives no pipe"}};
  Streams into, from;
  from.Give(ends[0], STDIN_FILENO);
  from.Write(STDERR_FILENO, words);
  into.Give(ends[1], STDOUT_FILENO);
  const Result<pid_t> second = Start(reader, from);
  const Result<pid_t> first = second ? Start(writer, into) : Failure{second.Message()};
  close(ends[0]);
  close(ends[1]);
  PipeEnd end;
  if (first) end.writer = WaitFor(*first);
  if (second) end.reader = WaitFor(*second);
  if (!first) return NoPipe{{first.Message()}, !second};
  return end;
}

WorkFolder::WorkFolder() {
  std::error_code error;
  const fs::path temporary = fs::temp_directory_path(error);
  std::string path = (temporary / "zktool-XXXXXX").string();
  if (!error && mkdtemp(path.data()) != nullptr) path_ = path;
}

WorkFolder::~WorkFolder() {
  std::error_code error;
  if (IsThere()) fs::remove_all(path_, error);
}

}  // namespace zorik
