#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/OtherWords.h"
#include "data/Readable.h"
#include "data/ReadableText.h"
#include "data/Result.h"
#include "zktool/Commands.h"
#include "zktool/Doubts.h"

namespace zorik {
namespace {

// The names of the cave files that collection.txt names. A mistake in it is told by the packing.
std::vector<std::string> NamedFiles(const std::string& content) {
  std::vector<std::string> names;
  const auto entries = ReadEntries(kCollectionFile, content);
  if (!entries) return names;
  for (const ReadableEntry& entry : *entries) {
    const std::string name = ToUtf8(entry.Text());
    const bool staysInFolder = name.find('/') == std::string::npos;
    if (entry.key == "cave" && staysInFolder && !name.empty()) names.push_back(name);
  }
  return names;
}

Result<TextFiles> ReadTexts(const std::string& folder) {
  const std::string start = folder + "/";
  const Result<std::string> content = ReadWhole(start + std::string(kCollectionFile));
  if (!content) return Failure{content.Message()};
  TextFiles files{{std::string(kCollectionFile), *content}};
  for (const std::string& name : NamedFiles(*content)) {
    Result<std::string> cave = ReadWhole(start + name);
    if (!cave) return Failure{cave.Message()};
    files[name] = std::move(*cave);
  }
  return files;
}

// The texts of the folder, in the words of a table if one is named.
Needed<TextFiles> TextsToPack(const CommandLine& line) {
  const std::string& folder = line.operands[0];
  Result<TextFiles> files = ReadTexts(folder);
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
  const std::vector<std::string> doubts = DoubtsOf(*files);
  const bool strict = line.Has("--strict");
  for (const std::string& doubt : doubts) {
    const std::string sentence = folder + ": " + doubt;
    if (strict)
      Fail(console, Exit::BadText, sentence);
    else
      Warn(console, sentence);
  }
  if (strict && !doubts.empty()) return Exit::BadText;
  const Result<Done> written = WriteWhole(line.operands[1], *bytes);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
