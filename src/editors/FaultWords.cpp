#include "editors/FaultWords.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kHeadWords{"caption.fault.head"};
constexpr StartWords kEndWords{"caption.fault.end"};

struct FaultRow {
  CollectionFault fault;
  StartWords words;
};
constexpr std::array<FaultRow, 8> kFaults{{
    {CollectionFault::UnreadableCave, {"caption.fault.cave"}},
    {CollectionFault::Marker, {"caption.fault.marker"}},
    {CollectionFault::NoCave, {"caption.fault.line"}},
    {CollectionFault::TooMany, {"caption.fault.many"}},
    {CollectionFault::Letters, {"caption.fault.letters"}},
    {CollectionFault::CutLine, {"caption.fault.cut"}},
    {CollectionFault::NoCongratulation, {"caption.fault.congrat"}},
    {CollectionFault::NoCaves, {"caption.fault.none"}},
}};

constexpr qsizetype kMostLines = 20;  // that are named of a fault

}  // namespace

QString FaultsInWords(const Skin& skin, const std::vector<FaultyLine>& faults) {
  QStringList lines{kHeadWords.In(skin) + ':'};
  for (const FaultRow& row : kFaults) {
    QStringList numbers;
    for (const FaultyLine& line : faults) {
      if (line.fault == row.fault) numbers << QString::number(line.line);
    }
    if (numbers.isEmpty()) continue;
    const QString more = numbers.size() > kMostLines ? ", …" : "";
    const QString where = ": " + numbers.mid(0, kMostLines).join(", ") + more;
    lines << row.words.In(skin) + (row.fault == CollectionFault::NoCaves ? QString() : where);
  }
  return lines.join('\n') + "\n\n" + kEndWords.In(skin);
}

}  // namespace zorik
