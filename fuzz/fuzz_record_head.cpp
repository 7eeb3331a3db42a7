#include "Input.h"
#include "data/Lines.h"
#include "data/RecordFile.h"

namespace zorik {

namespace {

// Lines and their ends give the file again.
void RequireWholeFile(std::string_view input) {
  std::string joined;
  for (RecordLines lines{std::string(input)}; !lines.AtEnd();) {
    joined += lines.Next();
    joined += "\r\n";
  }
  const bool terminated = input.empty() || input.ends_with("\r\n");
  fuzz::Require(joined == std::string(input) + (terminated ? "" : "\r\n"));
}

void RequireNoLineFeed(std::string_view input) {
  for (RecordLines lines(std::string(input), LineEnds::CrLfOrLf); !lines.AtEnd();) {
    fuzz::Require(lines.Next().find('\n') == std::string_view::npos);
  }
}

// A head that was read can be written and read again.
void RequireSameHead(std::string_view input) {
  RecordLines lines{std::string(input)};
  const RecordHead head = ReadRecordHead(lines);
  fuzz::Require(head.Score >= 0 && head.Score <= 99999);
  Chance chance(input.size());
  RecordLines built(BuildRecordHead(head.CollectionName, head.Score, head.Player, chance));
  const RecordHead again = ReadRecordHead(built);
  fuzz::Require(again.CollectionName == head.CollectionName && again.Score == head.Score);
  fuzz::Require(again.Player == head.Player && again.CaveText.empty() && built.AtEnd());
}

}  // namespace

// Any bytes are a record: its lines are all there, and its head can be read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = fuzz::TextOf(data, size);
  RequireWholeFile(input);
  RequireNoLineFeed(input);
  RequireSameHead(input);
  return 0;
}

}  // namespace zorik
