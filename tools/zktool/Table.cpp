#include <algorithm>
#include <atomic>
#include <filesystem>
#include <iomanip>
#include <map>
#include <mutex>
#include <sstream>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/ReadableText.h"
#include "data/Result.h"
#include "zktool/Caves.h"
#include "zktool/Commands.h"
#include "zktool/Rated.h"
#include "zktool/Searching.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNotes = "notes.txt";

struct TableTerms {
  RateTerms rate;
  double seconds = 60;  // of the solver, for each cave and seed
  int seeds = 3;        // of the solver
};

// What the author has written down of a cave.
struct Note {
  std::string idea, trial;
};
using Notes = std::map<std::string, Note>;  // by the cave's file

// A text that is no mark-up, whatever stands in it.
std::string Plain(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (std::string_view("\\`*_[]<>|#").find(c) != std::string_view::npos) plain += '\\';
    plain += c == '\r' || c == '\n' ? ' ' : c;
  }
  return plain;
}

std::string Number(double number, int digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(digits) << number;
  return text.str();
}

Result<Notes> ReadNotes(const fs::path& folder) {
  const std::string path = (folder / kNotes).string();
  Notes notes;
  std::error_code error;
  if (!fs::exists(path, error)) return notes;
  const Result<std::string> content = ReadWhole(path);
  if (!content) return Failure{content.Message()};
  const auto entries = ReadEntries(path, *content);
  if (!entries) return Failure{entries.Message()};
  constexpr std::array<std::string_view, 3> kKeys{"cave", "idea", "trial"};
  if (const Result<Done> keys = CheckKeys(path, *entries, {}, kKeys); !keys) return Failure{keys.Message()};
  Note* note = nullptr;
  for (const ReadableEntry& entry : *entries) {
    if (entry.key == "cave") {
      note = &notes[ToUtf8(entry.Text())];
    } else if (note == nullptr) {
      return Failure{FailureAt(path, entry.number, "there is no cave above").message};
    } else {
      (entry.key == "idea" ? note->idea : note->trial) = ToUtf8(entry.Text());
    }
  }
  return notes;
}

// A collection with all that its table tells.
struct Sheet {
  std::string folder;
  CaveSet set;
  std::vector<Rated> rated;
  std::vector<std::vector<Solved>> solved;  // by cave and seed
  Notes notes;
};

std::vector<fs::path> FoldersOf(const std::string& path) {
  std::vector<fs::path> folders;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(path, error)) {
    if (fs::exists(entry.path() / kCollectionFile, error)) folders.push_back(entry.path());
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

// The solver's runs, each cave with each seed.
void SolveAll(Sheet& sheet, const TableTerms& terms) {
  const std::size_t caves = sheet.set.caves.size(), seeds = static_cast<std::size_t>(terms.seeds);
  sheet.solved.assign(caves, std::vector<Solved>(seeds));
  SearchTerms search;
  search.seconds = terms.seconds;
  search.shortening = 0;
  search.work = true;
  search.bytes = BytesForOne(terms.rate.jobs);
  std::atomic<std::size_t> next = 0;
  RunAll(std::min(static_cast<std::size_t>(terms.rate.jobs), caves * seeds), [&](std::size_t) {
    for (std::size_t i = next++; i < caves * seeds; i = next++) {
      const RunTerms run{sheet.set.caves[i / seeds].text, sheet.set.name, i % seeds, "hrac"};
      sheet.solved[i / seeds][i % seeds] = SolveCave(run, search);
    }
  });
}

Needed<Sheet> ReadSheet(const fs::path& folder, const TableTerms& terms) {
  Needed<CaveSet> set = ReadCaves(folder.string());
  if (!set) return set.Why();
  Result<Notes> notes = ReadNotes(folder);
  if (!notes) return Refusal{{notes.Message()}, Exit::BadText};
  Sheet sheet{folder.filename().string(), std::move(*set), {}, {}, std::move(*notes)};
  RateTerms rate = terms.rate;
  rate.proofs = (folder / "records").string();
  rate.skips = false;
  sheet.rated = RateAll(sheet.set, rate);
  SolveAll(sheet, terms);
  return sheet;
}

void WriteRating(const Rated& rated, std::ostream& out) {
  if (!rated.rating) {
    out << " | no proof: " << Plain(rated.reason) << " | | | | | ";
    return;
  }
  const Rating& rating = *rated.rating;
  const Review& review = rating.review;
  out << " | " << review.ticks << " | " << Number(rating.limitRatio, 1) << " | "
      << Number(100.0 * review.idleTicks / std::max(1, review.ticks), 0) << " % | "
      << Number(static_cast<double>(review.idleStretch) / kTicksPerSecond, 1) << " s | " << rating.survived
      << "/" << rating.tries << " | " << rating.paws;
}

void WriteRatings(const Sheet& sheet, std::ostream& out) {
  out << "| | Cave | Size | Ticks | Limit | Idle | At once | Odds | Paws | Idea | What the trial changed |\n"
         "|---|---|---|---|---|---|---|---|---|---|---|\n";
  for (std::size_t i = 0; i < sheet.set.caves.size(); ++i) {
    const NamedCave& cave = sheet.set.caves[i];
    const auto note = sheet.notes.find(cave.file);
    out << "| " << cave.number << " | " << Plain(ShownName(cave.record)) << " | " << int{cave.record.Width}
        << " x " << int{cave.record.Height};
    WriteRating(sheet.rated[i], out);
    out << " | " << (note == sheet.notes.end() ? "" : Plain(note->second.idea)) << " | "
        << (note == sheet.notes.end() ? "" : Plain(note->second.trial)) << " |\n";
  }
}

// The caves in which a thing stands; those in bold whose proof uses it.
std::string CavesWith(const Sheet& sheet, const std::vector<std::uint64_t>& there, std::size_t thing) {
  std::string caves;
  for (std::size_t i = 0; i < there.size(); ++i) {
    if ((there[i] >> thing & 1U) == 0) continue;
    const bool used = sheet.rated[i].rating && (sheet.rated[i].rating->review.used >> thing & 1U) != 0;
    const std::string number = std::to_string(sheet.set.caves[i].number);
    caves += (caves.empty() ? "" : " ") + (used ? "**" + number + "**" : number);
  }
  return caves;
}

void WriteThings(const Sheet& sheet, std::ostream& out) {
  std::vector<std::uint64_t> there;
  for (const NamedCave& cave : sheet.set.caves) {
    const auto run = std::make_unique<Hra>();
    there.push_back(PaintCave(*run, cave.text, RunKind::Play) ? ThingsIn(*run) : 0);
  }
  out << "\nObjects and the caves in which they stand, in bold where the proof uses them:\n\n"
         "| Object | Caves |\n|---|---|\n";
  for (std::size_t thing = 0; thing < kThings.size(); ++thing)
    out << "| " << kThings[thing].word << " | " << CavesWith(sheet, there, thing) << " |\n";
}

std::string Told(const Solved& solved) {
  switch (solved.outcome) {
    case Outcome::Won:
      return Number(solved.seconds, 1) + " s, " + std::to_string(solved.plan.size()) + " ticks";
    case Outcome::NotFound:
      return "not found, " + std::to_string(solved.gems) + "/" + std::to_string(solved.needed) + " gems";
    case Outcome::Impossible:
    case Outcome::BadCave:
      break;
  }
  return Plain(solved.reason);
}

void WriteSolved(const Sheet& sheet, const TableTerms& terms, std::ostream& out) {
  if (terms.seeds == 0) return;
  std::size_t found = 0, all = 0;
  out << "\nWhat `zktool solve` finds in " << Number(terms.seconds, 0)
      << " s on one core, by seeds:\n\n| | Cave |";
  for (int seed = 0; seed < terms.seeds; ++seed) out << " " << seed << " |";
  out << "\n|---|---|" << [&] {
    std::string dashes;
    for (int seed = 0; seed < terms.seeds; ++seed) dashes += "---|";
    return dashes;
  }() << "\n";
  for (std::size_t i = 0; i < sheet.solved.size(); ++i) {
    const NamedCave& cave = sheet.set.caves[i];
    out << "| " << cave.number << " | " << Plain(ShownName(cave.record)) << " |";
    for (const Solved& solved : sheet.solved[i]) {
      out << " " << Told(solved) << " |";
      found += solved.outcome == Outcome::Won ? 1U : 0U;
      ++all;
    }
    out << "\n";
  }
  out << "\nFound: " << found << " of " << all << ".\n";
}

std::string Page(const std::vector<Sheet>& sheets, const TableTerms& terms) {
  std::ostringstream out;
  out << "# Caves\n\nWritten by `zktool table`; do not edit. Ideas and trials are kept in the file `"
      << kNotes << "` beside each\n`" << kCollectionFile
      << "`. Ticks, limit (in times of the proof), idle ticks and the longest row of them, odds and paws "
         "are\n"
         "those of the proof, as `zktool rate --help` tells.\n";
  for (const Sheet& sheet : sheets) {
    out << "\n## " << Plain(WithoutControls(ToUtf8(sheet.set.name))) << "\n\nFolder `caves/"
        << Plain(sheet.folder) << "`.\n\n";
    WriteRatings(sheet, out);
    WriteThings(sheet, out);
    WriteSolved(sheet, terms, out);
  }
  return out.str();
}

Result<TableTerms> ReadTableTerms(const CommandLine& line) {
  TableTerms terms;
  const Result<double> seconds = SecondsBehind(line, "--seconds", terms.seconds);
  if (!seconds) return Failure{seconds.Message()};
  const Result<int> seeds = NumberBehind(line, "--seeds", terms.seeds);
  if (!seeds) return Failure{seeds.Message()};
  if (*seeds > 10) return Failure{"--seeds: a number up to 10"};
  const Result<int> tries = NumberBehind(line, "--retries", terms.rate.tries);
  if (!tries) return Failure{tries.Message()};
  const Result<int> jobs = JobsOf(line);
  if (!jobs) return Failure{jobs.Message()};
  terms.seconds = *seconds;
  terms.seeds = *seeds;
  terms.rate.tries = *tries;
  terms.rate.jobs = *jobs;
  return terms;
}

}  // namespace

Exit TableCommand(const CommandLine& line, Console& console) {
  const Result<TableTerms> terms = ReadTableTerms(line);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const std::vector<fs::path> folders = FoldersOf(line.operands[0]);
  if (folders.empty())
    return Fail(console, Exit::CannotRead, line.operands[0] + " has no folder with a " + kCollectionFile);
  std::vector<Sheet> sheets;
  for (const fs::path& folder : folders) {
    Needed<Sheet> sheet = ReadSheet(folder, *terms);
    if (!sheet) return Fail(console, sheet.Why());
    sheets.push_back(std::move(*sheet));
  }
  const Result<Done> written = WriteWhole(line.operands[1], Page(sheets, *terms));
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
