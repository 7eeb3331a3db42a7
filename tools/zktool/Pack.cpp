#include "data/Files.h"
#include "data/Readable.h"
#include "data/Result.h"
#include "zktool/Caves.h"
#include "zktool/Commands.h"
#include "zktool/Doubts.h"

namespace zorik {
namespace {

// What is certainly wrong, a sentence each.
std::vector<std::string> FaultsOf(const TextFiles& files) {
  std::vector<std::string> faults;
  for (const PlacedDoubt& placed : DoubtsOf(files)) {
    if (RowOf(placed.doubt.kind).fault) faults.push_back(placed.place + ": " + placed.doubt.sentence);
  }
  return faults;
}

}  // namespace

Exit PackCommand(const CommandLine& line, Console& console) {
  const std::string& folder = line.operands[0];
  const Result<TextFiles> files = ReadTexts(folder);
  if (!files) return Fail(console, Exit::CannotRead, files.Message());
  Chance decoration;
  const Result<std::string> bytes = PackCollection(*files, decoration);
  if (!bytes) return Fail(console, Exit::BadText, folder + ": " + bytes.Message());
  const std::vector<std::string> faults = FaultsOf(*files);
  const bool strict = line.Has("--strict");
  for (const std::string& fault : faults) {
    const std::string sentence = folder + ": " + fault;
    if (strict)
      Fail(console, Exit::BadText, sentence);
    else
      Warn(console, sentence);
  }
  if (strict && !faults.empty()) return Exit::BadText;
  const Result<Done> written = WriteWhole(line.operands[1], *bytes);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
