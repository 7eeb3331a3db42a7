#include "data/Files.h"
#include "data/Readable.h"
#include "data/Result.h"
#include "data/TextFolder.h"
#include "zktool/Commands.h"

namespace zorik {

Exit UnpackCommand(const CommandLine& line, Console& console) {
  const std::string& folder = line.operands[1];
  if (!line.Has("--force") && HoldsSomething(folder)) {
    return Fail(console, Exit::CannotWrite, folder + " is not empty; name another folder, or give --force");
  }
  const Result<std::string> bytes = ReadStream(line.operands[0]);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  const Result<Done, FileFailure> written = WriteTexts(UnpackCollection(*bytes), folder);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
