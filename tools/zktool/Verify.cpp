#include <algorithm>
#include <atomic>
#include <istream>
#include <memory>
#include <mutex>
#include <optional>
#include <ostream>
#include <sstream>
#include <thread>
#include <utility>

#include "data/Files.h"
#include "data/Result.h"
#include "zktool/Commands.h"
#include "zktool/RecordFiles.h"
#include "zktool/Report.h"
#include "zktool/Searching.h"

namespace zorik {
namespace {

constexpr const char* kFromInput = "-";  // stands for the paths on the standard input
constexpr const char* kInputName = "the standard input";

// How records are verified.
struct VerifyTerms {
  ReportForm form;
  std::size_t jobs = 1;
  const PlayedCollection* collection = nullptr;
};

// All jobs take files from the same counter; each has a game of its own.
std::vector<Report> ReportOnAll(const std::vector<std::string>& files, const VerifyTerms& terms) {
  std::vector<Report> reports(files.size());
  std::atomic<std::size_t> next = 0;
  RunAll(std::min(terms.jobs, files.size()), [&](std::size_t) {
    const auto hra = std::make_unique<Hra>();
    for (std::size_t i = next++; i < files.size(); i = next++)
      reports[i] = ReportOn(*hra, files[i], terms.collection);
  });
  return reports;
}

void PrintAll(const std::vector<std::string>& files, const std::vector<Report>& reports, const ReportSum& sum,
              ReportForm form, std::ostream& out) {
  out << (form.json ? "{\"records\": [" : "");
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (form.json) out << (i == 0 ? "\n  " : ",\n  ");
    PrintReport(files[i], reports[i], form, out);
    if (!form.json) out << "\n";
  }
  out << (form.json ? "\n], \"summary\": " : "");
  sum.Print(form, out);
  out << (form.json ? "}\n" : "\n");
}

Exit EndOf(const ReportSum& sum, const std::string& place, Console& console) {
  if (sum.Total() == 0) return Fail(console, Exit::No, "there is no record in " + place);
  return sum.AllFine() ? Exit::Fine : Exit::No;
}

Exit VerifyFiles(const CommandLine& line, const VerifyTerms& terms, Console& console) {
  const std::vector<std::string> files = RecordFilesOf(line.operands);
  const std::vector<Report> reports = ReportOnAll(files, terms);
  ReportSum sum(terms.form.counted);
  for (std::size_t i = 0; i < files.size(); ++i) {
    sum.Add(reports[i]);
    PrintReason(files[i], reports[i], console);
  }
  PrintAll(files, reports, sum, terms.form, console.out);
  return EndOf(sum, line.operands[0], console);
}

// Paths come from the standard input one by one and are told as soon as they are judged: however many there
// are, no more is kept than what the jobs are busy with.
class Stream {
 public:
  Stream(const VerifyTerms& terms, Console& console)
      : terms_(terms), console_(console), sum_(terms.form.counted) {}

  Exit Run() {
    // A stream that is tied to the output flushes it whenever it is read, while another job writes there.
    console_.in.tie(nullptr);
    RunAll(terms_.jobs, [this](std::size_t) { Work(); });
    console_.out << (terms_.form.json ? "{\"summary\": " : "");
    sum_.Print(terms_.form, console_.out);
    console_.out << (terms_.form.json ? "}\n" : "\n");
    return EndOf(sum_, kInputName, console_);
  }

 private:
  void Work() {
    const auto hra = std::make_unique<Hra>();
    while (const std::optional<std::string> path = Next()) {
      for (const std::string& file : RecordFilesOf({*path}))
        Tell(file, ReportOn(*hra, file, terms_.collection));
    }
  }

  // When nobody takes the lines any more there is no sense in going on.
  std::optional<std::string> Next() {
    const std::lock_guard guard(reading_);
    std::string path;
    while (!deaf_ && std::getline(console_.in, path)) {
      if (!path.empty()) return path;
    }
    return std::nullopt;
  }

  void Tell(const std::string& file, const Report& report) {
    std::ostringstream text;
    PrintReport(file, report, terms_.form, text);
    text << "\n";
    const std::lock_guard guard(telling_);
    sum_.Add(report);
    PrintReason(file, report, console_);
    if (!(console_.out << text.view()).flush()) deaf_ = true;
  }

  const VerifyTerms& terms_;
  Console& console_;
  ReportSum sum_;
  std::mutex reading_, telling_;
  std::atomic<bool> deaf_ = false;
};

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

// As many jobs as there are cores, if nobody says anything else.
Result<std::size_t> VerifyJobsOf(const CommandLine& line) {
  if (!line.Has("--jobs")) return std::size_t{std::max(1U, std::thread::hardware_concurrency())};
  const Result<int> jobs = JobsOf(line);
  if (!jobs) return Failure{jobs.Message()};
  return static_cast<std::size_t>(*jobs);
}

}  // namespace

Exit VerifyCommand(const CommandLine& line, Console& console) {
  const std::vector<std::string>& operands = line.operands;
  const bool streams = std::find(operands.begin(), operands.end(), kFromInput) != operands.end();
  if (streams && operands.size() > 1) return Fail(console, Exit::Usage, "\"-\" stands alone");
  const Result<std::size_t> jobs = VerifyJobsOf(line);
  if (!jobs) return Fail(console, Exit::Usage, jobs.Message());
  const auto collection = CollectionOf(line);
  if (!collection) return Fail(console, collection.Why());
  const bool counted = collection->has_value();
  const VerifyTerms terms{{line.Has("--json"), counted}, *jobs, counted ? &**collection : nullptr};
  return streams ? Stream(terms, console).Run() : VerifyFiles(line, terms, console);
}

}  // namespace zorik
