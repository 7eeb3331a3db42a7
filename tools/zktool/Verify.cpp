#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <optional>
#include <ostream>
#include <thread>
#include <utility>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/Result.h"
#include "zktool/Commands.h"
#include "zktool/Json.h"
#include "zktool/RecordFiles.h"
#include "zktool/Standing.h"
#include "zktool/Verdict.h"

namespace zorik {
namespace {

// What is told of a record file.
struct Report {
  Judgement judgement;
  RecordHead head;
  std::string cave;  // its name
  Standing standing;
};
using Reports = std::vector<Report>;  // one for each file
using Counts = std::array<std::size_t, kVerdicts>;

// The order in which the verdicts are counted for the user.
constexpr std::array<Verdict, kVerdicts> kCounted{Verdict::Won,     Verdict::ScoreDiffers,
                                                  Verdict::NotWon,  Verdict::RanDry,
                                                  Verdict::BadCave, Verdict::Unreadable};

// The collection may be missing.
Report ReportOn(Hra& hra, const std::string& file, const PlayedCollection* collection) {
  Report report;
  Result<std::string> bytes = ReadStream(file);
  if (bytes) {
    RecordLines lines(*bytes);
    report.head = ReadRecordHead(lines);
    if (const Result<CaveRecord> cave = ParseCaveText(report.head.CaveText)) report.cave = cave->Name;
    report.judgement = Judge(hra, std::move(*bytes));
  } else {
    report.judgement.message = bytes.Message();
  }
  if (collection != nullptr) report.standing = StandingOf(file, report.head, *collection);
  return report;
}

// All cores take files from the same counter; each has a game of its own.
Reports ReportOnAll(const std::vector<std::string>& files, const PlayedCollection* collection) {
  Reports reports(files.size());
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    const auto hra = std::make_unique<Hra>();
    for (std::size_t i = next++; i < files.size(); i = next++)
      reports[i] = ReportOn(*hra, files[i], collection);
  };
  const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
  std::vector<std::jthread> threads;
  for (std::size_t i = 0; i < std::min(cores, files.size()); ++i) threads.emplace_back(work);
  threads.clear();
  return reports;
}

Counts CountOf(const Reports& reports) {
  Counts counts{};
  for (const Report& report : reports) ++counts[static_cast<std::size_t>(report.judgement.verdict)];
  return counts;
}

bool DoesCount(const Report& report) {
  return report.standing.worth == Worth::Yes;
}

std::ptrdiff_t CountingOf(const Reports& reports) {
  return std::count_if(reports.begin(), reports.end(), DoesCount);
}

// A name as it stands in a record, in Windows-1250.
std::string Quoted(const std::string& name) {
  return JsonText(ToUtf8(name));
}

void PrintLines(const std::vector<std::string>& files, const Reports& reports, bool counted,
                std::ostream& out) {
  for (std::size_t i = 0; i < files.size(); ++i) {
    const auto& [judgement, head, cave, standing] = reports[i];
    out << WordOf(judgement.verdict) << " score=" << judgement.score << " stored=" << judgement.stored
        << " ticks=" << judgement.ticks;
    if (counted) out << " counts=" << WordOf(standing.worth) << " number=" << standing.number;
    out << " collection=" << Quoted(head.CollectionName) << " cave=" << Quoted(cave)
        << " player=" << Quoted(head.Player) << " " << files[i] << "\n";
  }
  const Counts counts = CountOf(reports);
  out << "total=" << files.size();
  for (const Verdict verdict : kCounted) {
    out << " " << WordOf(verdict) << "=" << counts[static_cast<std::size_t>(verdict)];
  }
  if (counted) out << " counting=" << CountingOf(reports);
  out << "\n";
}

void PrintJson(const std::vector<std::string>& files, const Reports& reports, bool counted,
               std::ostream& out) {
  out << "{\"records\": [";
  for (std::size_t i = 0; i < files.size(); ++i) {
    const auto& [judgement, head, cave, standing] = reports[i];
    out << (i == 0 ? "\n" : ",\n") << "  {\"file\": " << JsonText(files[i]) << ", \"verdict\": \""
        << WordOf(judgement.verdict) << "\", \"score\": " << judgement.score
        << ", \"stored\": " << judgement.stored << ", \"ticks\": " << judgement.ticks;
    if (counted) out << ", \"counts\": \"" << WordOf(standing.worth) << "\", \"number\": " << standing.number;
    out << ", \"collection\": " << Quoted(head.CollectionName) << ", \"cave\": " << Quoted(cave)
        << ", \"player\": " << Quoted(head.Player) << ", \"message\": " << JsonText(judgement.message) << "}";
  }
  const Counts counts = CountOf(reports);
  out << "\n], \"summary\": {\"total\": " << files.size();
  for (const Verdict verdict : kCounted) {
    out << ", \"" << WordOf(verdict) << "\": " << counts[static_cast<std::size_t>(verdict)];
  }
  if (counted) out << ", \"counting\": " << CountingOf(reports);
  out << "}}\n";
}

void PrintReasons(const std::vector<std::string>& files, const Reports& reports, Console& console) {
  for (std::size_t i = 0; i < files.size(); ++i) {
    const Judgement& judgement = reports[i].judgement;
    const std::string& reason = reports[i].standing.reason;
    if (judgement.verdict == Verdict::Unreadable) Fail(console, Exit::CannotRead, judgement.message);
    if (judgement.verdict == Verdict::BadCave) {
      Fail(console, Exit::BadCave, files[i] + ": " + judgement.message);
    }
    if (!reason.empty()) Fail(console, Exit::No, files[i] + ": " + reason);
  }
}

// The collection that the option names, or nothing if it is not given.
Needed<std::optional<PlayedCollection>> CollectionOf(const CommandLine& line) {
  if (!line.Has("--collection")) return std::optional<PlayedCollection>();
  const std::string& path = line.Value("--collection");
  const Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Refusal{{bytes.Message()}, Exit::CannotRead};
  Result<PlayedCollection> collection = ReadForPlay(*bytes);
  if (!collection) return Refusal{{path + ": " + collection.Message()}, Exit::BadCollection};
  return std::optional(std::move(*collection));
}

Exit Verify(const CommandLine& line, const std::optional<PlayedCollection>& collection, Console& console) {
  const std::vector<std::string> files = RecordFilesOf(line.operands);
  const bool counted = collection.has_value();
  const Reports reports = ReportOnAll(files, counted ? &*collection : nullptr);
  PrintReasons(files, reports, console);
  const auto print = line.Has("--json") ? PrintJson : PrintLines;
  print(files, reports, counted, console.out);
  if (files.empty()) return Fail(console, Exit::No, "there is no record in " + line.operands[0]);
  const bool fine = std::all_of(reports.begin(), reports.end(), [counted](const Report& report) {
    return report.judgement.verdict == Verdict::Won && (!counted || DoesCount(report));
  });
  return fine ? Exit::Fine : Exit::No;
}

}  // namespace

Exit VerifyCommand(const CommandLine& line, Console& console) {
  const auto collection = CollectionOf(line);
  if (!collection) return Fail(console, collection.Why());
  return Verify(line, *collection, console);
}

}  // namespace zorik
