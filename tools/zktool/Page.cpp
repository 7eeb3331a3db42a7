#include <optional>
#include <string>

#include "data/Files.h"
#include "data/ProgramFolder.h"
#include "data/Result.h"
#include "data/WebPage.h"
#include "zktool/Commands.h"

namespace zorik {
namespace {

// The template that the command line names, or the one that belongs to this program.
Needed<std::string> ReadTemplate(const CommandLine& line) {
  const auto path = line.Has("--template") ? std::optional(line.Value("--template"))
                                           : FindWebPageTemplate(RunningProgramFolder());
  if (!path) {
    return Refusal{
        {"the page's template page.html is neither beside this program nor in the data of the game; "
         "cmake --preset web && cmake --build build/web makes it, and --template names it"},
        Exit::CannotRead};
  }
  Result<std::string> text = ReadStream(*path);
  if (!text) return Refusal{{text.Message()}, Exit::CannotRead};
  if (!IsWebPageTemplate(*text))
    return Refusal{{*path + ": this template has no place for what the page shall show"}, Exit::BadText};
  return std::move(*text);
}

}  // namespace

Exit PageCommand(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  const Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  const Needed<std::string> pageTemplate = ReadTemplate(line);
  if (!pageTemplate) return Fail(console, pageTemplate.Why());
  const Result<std::string> page = BuildWebPage(*pageTemplate, *bytes);
  if (!page) return Fail(console, Exit::BadCollection, path + ": " + page.Message());
  const Result<Done> written = WriteWhole(line.Value("-o"), *page);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
