#include "data/Files.h"
#include "data/OtherWords.h"
#include "data/Readable.h"
#include "data/Result.h"
#include "data/TextFolder.h"
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

// The texts of the folder, in the words of a table if one is named.
Needed<TextFiles> TextsToPack(const CommandLine& line) {
  const std::string& folder = line.operands[0];
  Result<TextFiles, TextFailure> files = ReadTexts(folder);
  if (!files) return Refusal{{files.Message()}, Exit::CannotRead};
  if (!line.Has("--words")) return std::move(*files);
  const std::string& path = line.Value("--words");
  const Result<std::string> table = ReadWhole(path);
  if (!table) return Refusal{{table.Message()}, Exit::CannotRead};
  Result<TextFiles> reworded = InOtherWords(*files, path, *table);
  if (!reworded) return Refusal{{reworded.Message()}, Exit::BadText};
  return std::move(*reworded);
}

}  // namespace

Exit PackCommand(const CommandLine& line, Console& console) {
  const std::string& folder = line.operands[0];
  const Needed<TextFiles> files = TextsToPack(line);
  if (!files) return Fail(console, files.Why());
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
