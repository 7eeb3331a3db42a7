#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <ostream>
#include <thread>

#include "zktool/Commands.h"
#include "zktool/Json.h"
#include "zktool/RecordFiles.h"
#include "zktool/Verdict.h"

namespace zorik {
namespace {

using Judgements = std::vector<Judgement>;  // one for each file
using Counts = std::array<std::size_t, kVerdicts>;

// The order in which the verdicts are counted for the user.
constexpr std::array<Verdict, kVerdicts> kCounted{Verdict::Won,     Verdict::ScoreDiffers,
                                                  Verdict::NotWon,  Verdict::RanDry,
                                                  Verdict::BadCave, Verdict::Unreadable};

// All cores take files from the same counter; each has a game of its own.
Judgements JudgeAll(const std::vector<std::string>& files) {
  Judgements judgements(files.size());
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    const auto hra = std::make_unique<Hra>();
    for (std::size_t i = next++; i < files.size(); i = next++) judgements[i] = JudgeFile(*hra, files[i]);
  };
  const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
  std::vector<std::jthread> threads;
  for (std::size_t i = 0; i < std::min(cores, files.size()); ++i) threads.emplace_back(work);
  threads.clear();
  return judgements;
}

Counts CountOf(const Judgements& judgements) {
  Counts counts{};
  for (const Judgement& judgement : judgements) ++counts[static_cast<std::size_t>(judgement.verdict)];
  return counts;
}

void PrintLines(const std::vector<std::string>& files, const Judgements& judgements, std::ostream& out) {
  for (std::size_t i = 0; i < files.size(); ++i) {
    const Judgement& judgement = judgements[i];
    out << WordOf(judgement.verdict) << " score=" << judgement.score << " stored=" << judgement.stored
        << " ticks=" << judgement.ticks << " " << files[i] << "\n";
  }
  const Counts counts = CountOf(judgements);
  out << "total=" << files.size();
  for (const Verdict verdict : kCounted) {
    out << " " << WordOf(verdict) << "=" << counts[static_cast<std::size_t>(verdict)];
  }
  out << "\n";
}

void PrintJson(const std::vector<std::string>& files, const Judgements& judgements, std::ostream& out) {
  out << "{\"records\": [";
  for (std::size_t i = 0; i < files.size(); ++i) {
    const Judgement& judgement = judgements[i];
    out << (i == 0 ? "\n" : ",\n") << "  {\"file\": " << JsonText(files[i]) << ", \"verdict\": \""
        << WordOf(judgement.verdict) << "\", \"score\": " << judgement.score
        << ", \"stored\": " << judgement.stored << ", \"ticks\": " << judgement.ticks
        << ", \"message\": " << JsonText(judgement.message) << "}";
  }
  const Counts counts = CountOf(judgements);
  out << "\n], \"summary\": {\"total\": " << files.size();
  for (const Verdict verdict : kCounted) {
    out << ", \"" << WordOf(verdict) << "\": " << counts[static_cast<std::size_t>(verdict)];
  }
  out << "}}\n";
}

void PrintReasons(const std::vector<std::string>& files, const Judgements& judgements, Console& console) {
  for (std::size_t i = 0; i < files.size(); ++i) {
    const Judgement& judgement = judgements[i];
    if (judgement.verdict == Verdict::Unreadable) Fail(console, Exit::CannotRead, judgement.message);
    if (judgement.verdict == Verdict::BadCave) {
      Fail(console, Exit::BadCave, files[i] + ": " + judgement.message);
    }
  }
}

}  // namespace

Exit VerifyCommand(const CommandLine& line, Console& console) {
  const std::vector<std::string> files = RecordFilesOf(line.operands);
  const Judgements judgements = JudgeAll(files);
  PrintReasons(files, judgements, console);
  if (line.Has("--json")) {
    PrintJson(files, judgements, console.out);
  } else {
    PrintLines(files, judgements, console.out);
  }
  if (files.empty()) return Fail(console, Exit::No, "there is no record in " + line.operands[0]);
  const bool allWon = std::all_of(judgements.begin(), judgements.end(), [](const Judgement& judgement) {
    return judgement.verdict == Verdict::Won;
  });
  return allWon ? Exit::Fine : Exit::No;
}

}  // namespace zorik
