#include <string>

#include "data/Files.h"
#include "data/Result.h"
#include "data/WebPage.h"
#include "zktool/Commands.h"

namespace zorik {
namespace {

// The template that the command line names, or the one that belongs to this program.
Result<std::string> ReadTemplate(const CommandLine& line) {
  if (line.Has("--template")) return ReadWhole(line.Value("--template"));
  const auto path = FindWebPageTemplate(RunningProgramFolder());
  if (!path) {
    return Failure{
        "the page's template page.html is neither beside this program nor in the data of the game; "
        "cmake --preset web && cmake --build build/web makes it, and --template names it"};
  }
  return ReadWhole(*path);
}

}  // namespace

Exit PageCommand(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  const Result<std::string> bytes = ReadWhole(path);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  const Result<std::string> pageTemplate = ReadTemplate(line);
  if (!pageTemplate) return Fail(console, Exit::CannotRead, pageTemplate.Message());
  const Result<std::string> page = BuildWebPage(*pageTemplate, *bytes);
  if (!page) return Fail(console, Exit::BadCollection, path + ": " + page.Message());
  const Result<Done> written = WriteWhole(line.Value("-o"), *page);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
