#include "data/CollectionFaults.h"

#include <string>

#include "data/CaveO.h"
#include "data/Collection.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"

namespace zorik {

namespace {

// Goes through the lines of a file from the first to the last.
class Inspection {
 public:
  void Look(std::string_view scrambled, bool last) {
    ++line_;
    if (!IsScrambled(scrambled)) Report(CollectionFault::Letters);
    if (line_ <= kHeadLines) return;
    const std::string plain = UnscrambleText(scrambled);
    if (EndsWithCaveNumber(plain)) {
      LookAtCave(WithoutMarker(plain), last);
    } else if (EndsWithMarker(plain)) {
      Report(CollectionFault::Marker);
    } else if (!last) {
      Report(CollectionFault::NoCave);
    }
  }

  std::vector<FaultyLine> Finish(bool ended) {
    if (!ended) Report(CollectionFault::CutLine);
    if (caves_ == 0) Report(CollectionFault::NoCaves);
    return std::move(faults_);
  }

 private:
  void LookAtCave(std::string_view cave, bool last) {
    ++numbered_;
    if (numbered_ > kMostCaves) {
      Report(CollectionFault::TooMany);
    } else if (!IsReadableCave(cave)) {
      Report(CollectionFault::UnreadableCave);
    } else {
      ++caves_;
      if (last) Report(CollectionFault::NoCongratulation);
    }
  }

  void Report(CollectionFault fault) { faults_.push_back({fault, line_}); }

  std::vector<FaultyLine> faults_;
  std::size_t line_ = 0;
  int numbered_ = 0;
  int caves_ = 0;
};

}  // namespace

std::vector<FaultyLine> FaultsOfCollection(std::string_view bytes) {
  Inspection inspection;
  for (RecordLines lines(std::string(bytes), LineEnds::CrLfOrLf); !lines.AtEnd();) {
    const std::string_view line = lines.Next();
    inspection.Look(line, lines.AtEnd());
  }
  return inspection.Finish(bytes.ends_with('\n'));
}

bool IsReadableCave(std::string_view text) {
  return !text.empty() && ParseCaveText(text);
}

}  // namespace zorik
