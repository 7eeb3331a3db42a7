#include "zktool/PictureTerms.h"

#include <algorithm>

#include "core/Schemes.h"
#include "data/Result.h"

namespace zorik {
namespace {

constexpr int kMostPixels = 80;  // the edge of a tile: more would show nothing more

Result<std::string> SchemeBehind(const CommandLine& line) {
  if (!line.Has("--scheme")) return std::string();
  const std::string& scheme = line.Value("--scheme");
  const auto named = [&](const SchemeRow& row) { return row.name == scheme; };
  if (std::any_of(kSchemes.begin(), kSchemes.end(), named)) return scheme;
  return Failure{"--scheme: Classic, Cold, Hot, Natural or Mystery"};
}

}  // namespace

Result<PictureTerms> ReadPictureTerms(const CommandLine& line, int cell) {
  PictureTerms terms;
  terms.follow = line.Has("--follow");
  const Result<std::string> scheme = SchemeBehind(line);
  if (!scheme) return Failure{scheme.Message()};
  terms.scheme = *scheme;
  const Result<int> pixels = NumberBehind(line, "--cell", cell);
  if (!pixels) return Failure{pixels.Message()};
  if (*pixels < 1 || *pixels > kMostPixels) return Failure{"--cell: a number from 1 to 80"};
  terms.cell = *pixels;
  const Result<int> tick = NumberBehind(line, "--tick", 0);
  if (!tick) return Failure{tick.Message()};
  terms.tick = *tick;
  const Result<int> number = NumberBehind(line, "--cave", 0);
  if (!number) return Failure{number.Message()};
  terms.number = *number;
  return terms;
}

std::vector<std::string> WordsOf(const PictureTerms& terms) {
  std::vector<std::string> words{"--cell", std::to_string(terms.cell)};
  if (!terms.scheme.empty()) words.insert(words.end(), {"--scheme", terms.scheme});
  if (terms.follow) words.emplace_back("--follow");
  if (terms.tick != 0) words.insert(words.end(), {"--tick", std::to_string(terms.tick)});
  if (terms.number != 0) words.insert(words.end(), {"--cave", std::to_string(terms.number)});
  return words;
}

Exit EndOf(int exitCode, Console& console) {
  constexpr int kLast = static_cast<int>(Exit::Impossible);
  if (exitCode <= kLast) return static_cast<Exit>(exitCode);
  return Fail(console, Exit::Failed, std::string(kPainter) + " has come to a bad end");
}

}  // namespace zorik
