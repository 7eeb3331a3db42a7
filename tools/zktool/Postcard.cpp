#include "data/Postcard.h"

#include <ostream>

#include "data/Files.h"
#include "data/Result.h"
#include "zktool/Commands.h"
#include "zktool/PostcardText.h"
#include "zktool/Verdict.h"

namespace zorik {
namespace {

constexpr int kModule = 6;  // pixels

Result<Done> CheckCave(const std::string& record) {
  Hra hra;
  return Replay(hra, record);
}

Exit Write(const CommandLine& line, const std::string& bytes, Console& console) {
  const Result<Done> written = WriteWhole(line.Value("-o"), bytes);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

// The operand is the word itself, or a file that holds it.
Exit ReadPostcard(const CommandLine& line, Console& console) {
  const std::string& given = line.operands[0];
  if (!line.Has("-o")) return Fail(console, Exit::Usage, "-o is missing");
  std::string word = given;
  if (!given.starts_with(kPostcardStart)) {
    Result<std::string> bytes = ReadStream(given);
    if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
    word = std::move(*bytes);
  }
  const Result<std::string> record = RecordOnPostcard(word);
  if (!record) return Fail(console, Exit::BadText, record.Message());
  const Result<Done> cave = CheckCave(*record);
  if (!cave) return Fail(console, Exit::BadCave, cave.Message());
  return Write(line, *record, console);
}

Exit WritePostcard(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  const Result<std::string> record = ReadStream(path);
  if (!record) return Fail(console, Exit::CannotRead, record.Message());
  const Result<Done> cave = CheckCave(*record);
  if (!cave) return Fail(console, Exit::BadCave, path + ": " + cave.Message());
  const Result<std::string> word = PostcardOf(*record);
  if (!word) return Fail(console, Exit::No, path + ": " + word.Message());
  if (!line.Has("-o")) {
    console.out << *word << "\n";
    return Exit::Fine;
  }
  if (word->size() > kMostPostcardLetters) {
    return Fail(console, Exit::No,
                path + ": the run takes " + std::to_string(word->size()) + " letters, and a postcard holds " +
                    std::to_string(kMostPostcardLetters));
  }
  const Result<std::string> picture = QrPicture(*word, kModule);
  if (!picture) return Fail(console, Exit::Failed, picture.Message());
  return Write(line, *picture, console);
}

}  // namespace

Exit PostcardCommand(const CommandLine& line, Console& console) {
  if (!KnowsPostcards()) {
    return Fail(console, Exit::Failed,
                "this zktool was built without zlib and libqrencode, which postcards need (in Debian the "
                "packages zlib1g-dev and libqrencode-dev)");
  }
  return line.Has("--read") ? ReadPostcard(line, console) : WritePostcard(line, console);
}

}  // namespace zorik
