#include "zktool/Console.h"

#include <array>
#include <iomanip>
#include <ostream>

namespace zorik {
namespace {

struct ExitRow {
  Exit exit;
  std::string_view word;
  std::string_view meaning;
};

constexpr std::array<ExitRow, 13> kExits{{
    {Exit::Fine, "fine", "all went well"},
    {Exit::No, "no", "a check said no: verify, diff, solve, lint, rate, postcard"},
    {Exit::Usage, "usage", "the command line is wrong"},
    {Exit::CannotRead, "cannot-read", "a file or folder cannot be read"},
    {Exit::CannotWrite, "cannot-write", "a file, a folder or the output cannot be written"},
    {Exit::BadCave, "bad-cave", "a text tells no cave that can be played"},
    {Exit::BadKeys, "bad-keys", "a key script holds something else than keys"},
    {Exit::BadCollection, "bad-collection", "a file is no collection"},
    {Exit::BadText, "bad-text", "a readable text, a postcard's word or a page's template has a mistake"},
    {Exit::BadTrace, "bad-trace", "a saved trace holds a line that is none of a trace"},
    {Exit::NoSuchCave, "no-such-cave", "the collection has no cave of this number"},
    {Exit::Failed, "failed", "the system gave no more memory or threads, or lacks a program"},
    {Exit::Impossible, "impossible", "a cave can certainly not be won"},
}};

}  // namespace

void PrintExitCodes(std::ostream& out) {
  out << "Exit codes; a failure is told to the standard error as \"zktool: word: sentence\", and what looks "
         "wrong but\n"
         "stops nothing as \"zktool: warning: sentence\":\n";
  for (const ExitRow& row : kExits) {
    out << std::setw(4) << static_cast<int>(row.exit) << "  " << std::left << std::setw(16) << row.word
        << std::right << row.meaning << "\n";
  }
}

Exit Fail(Console& console, Exit exit, std::string_view sentence) {
  console.err << "zktool: " << kExits[static_cast<std::size_t>(exit)].word << ": " << sentence << "\n";
  return exit;
}

Exit Fail(Console& console, const Refusal& refusal) {
  return Fail(console, refusal.exit, refusal.message);
}

void Warn(Console& console, std::string_view sentence) {
  console.err << "zktool: warning: " << sentence << "\n";
}

}  // namespace zorik
