#include <string>

#include "data/CaveO.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "zktool/Caves.h"
#include "zktool/Commands.h"
#include "zktool/Verdict.h"

namespace zorik {
namespace {

// The same cave, whatever it is called. A bonus cave is worth more, and so would be another one.
bool AreSame(CaveRecord one, const CaveRecord& other) {
  if (JeBonus(one.Name) != JeBonus(other.Name)) return false;
  one.Name = other.Name;
  one.Description = other.Description;
  return one == other;
}

Needed<std::string> Carried(const std::string& record, const CaveSet& collection, int number,
                            const CommandLine& line) {
  if (number < 1 || static_cast<std::size_t>(number) > collection.caves.size())
    return Refusal{{"the collection has no cave with the number " + std::to_string(number)},
                   Exit::NoSuchCave};
  const NamedCave& cave = collection.caves[static_cast<std::size_t>(number) - 1];
  RecordLines lines(record);
  const RecordHead head = ReadRecordHead(lines);
  const Result<CaveRecord> own = ParseCaveText(head.CaveText);
  if (!own) return Refusal{{own.Message()}, Exit::BadCave};
  if (!AreSame(*own, cave.record)) return Refusal{{"the record's cave is another one"}, Exit::BadCave};
  const Result<std::string> player = PlayerBehind(line, head.Player);
  if (!player) return Refusal{{player.Message()}, Exit::Usage};
  Chance decoration;
  std::string carried = BuildRecordHead(collection.name, head.Score, *player, decoration) +
                        ScrambleText(cave.text, decoration) + "\r\n" + MovesOf(record);
  Hra hra;
  if (Judge(hra, carried).verdict != Verdict::Won) return Refusal{{"the record does not win"}, Exit::No};
  return carried;
}

}  // namespace

Exit CarryCommand(const CommandLine& line, Console& console) {
  const Result<std::string> record = ReadWhole(line.operands[0]);
  if (!record) return Fail(console, Exit::CannotRead, record.Message());
  const Result<int> number = ReadNumber<int>(line.operands[2]);
  if (!number) return Fail(console, Exit::Usage, number.Message());
  const Needed<CaveSet> collection = ReadCaves(line.operands[1]);
  if (!collection) return Fail(console, collection.Why());
  const Needed<std::string> carried = Carried(*record, *collection, *number, line);
  if (!carried) return Fail(console, carried.Why());
  const Result<Done> written = WriteWhole(line.operands[3], *carried);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
