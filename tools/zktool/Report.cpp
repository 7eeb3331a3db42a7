#include "zktool/Report.h"

#include <ostream>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/Result.h"
#include "zktool/Json.h"

namespace zorik {
namespace {

// The order in which the verdicts are counted for the user.
constexpr std::array<Verdict, kVerdicts> kCounted{Verdict::Won,     Verdict::ScoreDiffers,
                                                  Verdict::NotWon,  Verdict::RanDry,
                                                  Verdict::BadCave, Verdict::Unreadable};

bool DoesCount(const Report& report) {
  return report.standing.worth == Worth::Yes;
}

// A name as it stands in a record, in Windows-1250.
std::string Quoted(const std::string& name) {
  return JsonText(ToUtf8(name));
}

void PrintLine(const std::string& file, const Report& report, bool counted, std::ostream& out) {
  const auto& [judgement, head, cave, standing] = report;
  out << WordOf(judgement.verdict) << " score=" << judgement.score << " stored=" << judgement.stored
      << " ticks=" << judgement.ticks;
  if (counted) out << " counts=" << WordOf(standing.worth) << " number=" << standing.number;
  out << " collection=" << Quoted(head.CollectionName) << " cave=" << Quoted(cave)
      << " player=" << Quoted(head.Player) << " " << file;
}

void PrintJson(const std::string& file, const Report& report, bool counted, std::ostream& out) {
  const auto& [judgement, head, cave, standing] = report;
  out << "{\"file\": " << JsonText(file) << ", \"verdict\": \"" << WordOf(judgement.verdict)
      << "\", \"score\": " << judgement.score << ", \"stored\": " << judgement.stored
      << ", \"ticks\": " << judgement.ticks;
  if (counted) out << ", \"counts\": \"" << WordOf(standing.worth) << "\", \"number\": " << standing.number;
  out << ", \"collection\": " << Quoted(head.CollectionName) << ", \"cave\": " << Quoted(cave)
      << ", \"player\": " << Quoted(head.Player) << ", \"message\": " << JsonText(judgement.message) << "}";
}

}  // namespace

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

void PrintReason(const std::string& file, const Report& report, Console& console) {
  const Judgement& judgement = report.judgement;
  if (judgement.verdict == Verdict::Unreadable) Fail(console, Exit::CannotRead, judgement.message);
  if (judgement.verdict == Verdict::BadCave) Fail(console, Exit::BadCave, file + ": " + judgement.message);
  if (!report.standing.reason.empty()) Fail(console, Exit::No, file + ": " + report.standing.reason);
}

void PrintReport(const std::string& file, const Report& report, ReportForm form, std::ostream& out) {
  (form.json ? PrintJson : PrintLine)(file, report, form.counted, out);
}

void ReportSum::Add(const Report& report) {
  ++total_;
  ++verdicts_[static_cast<std::size_t>(report.judgement.verdict)];
  if (DoesCount(report)) ++counting_;
  if (report.judgement.verdict == Verdict::Won && (!counted_ || DoesCount(report))) ++fine_;
}

void ReportSum::Print(ReportForm form, std::ostream& out) const {
  const auto print = [&](std::string_view word, std::size_t number) {
    const char* const between = word == "total" ? "" : form.json ? ", " : " ";
    out << between << (form.json ? "\"" : "") << word << (form.json ? "\": " : "=") << number;
  };
  out << (form.json ? "{" : "");
  print("total", total_);
  for (const Verdict verdict : kCounted) print(WordOf(verdict), verdicts_[static_cast<std::size_t>(verdict)]);
  if (counted_) print("counting", counting_);
  out << (form.json ? "}" : "");
}

}  // namespace zorik
