#pragma once

#include <array>
#include <cstddef>
#include <iosfwd>
#include <string>

#include "data/Collection.h"
#include "data/RecordFile.h"
#include "zktool/Console.h"
#include "zktool/Standing.h"
#include "zktool/Verdict.h"

namespace zorik {

// What verify tells of a record file.
struct Report {
  Judgement judgement;
  RecordHead head;
  std::string cave;  // its name
  Standing standing;
};

// Judges a file; the collection may be missing. The game may be used again and again.
Report ReportOn(Hra& hra, const std::string& file, const PlayedCollection* collection);

// Tells why a record is worth less than it might be.
void PrintReason(const std::string& file, const Report& report, Console& console);

// How reports are written: a line each, or as JSON; counted: in view of a collection.
struct ReportForm {
  bool json = false;
  bool counted = false;
};

// A record, without a line end.
void PrintReport(const std::string& file, const Report& report, ReportForm form, std::ostream& out);

// What all reports come to.
class ReportSum {
 public:
  explicit ReportSum(bool counted) : counted_(counted) {}

  void Add(const Report& report);
  std::size_t Total() const { return total_; }

  // There is a record, all are won and, in view of a collection, count.
  bool AllFine() const { return total_ > 0 && fine_ == total_; }

  // The numbers: as words, or as a JSON object.
  void Print(ReportForm form, std::ostream& out) const;

 private:
  bool counted_;
  std::size_t total_ = 0, fine_ = 0, counting_ = 0;
  std::array<std::size_t, kVerdicts> verdicts_{};
};

}  // namespace zorik
