#include "editors/FaultWords.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kHeadWords{"caption.fault.head",
                                "V souboru sady není něco v pořádku (čísla jsou jeho řádky)"};
constexpr StartWords kEndWords{"caption.fault.end",
                               "Při prvním uložení zůstane původní soubor vedle nového."};

struct FaultRow {
  CollectionFault fault;
  StartWords words;
};
constexpr std::array<FaultRow, 8> kFaults{{
    {CollectionFault::UnreadableCave, {"caption.fault.cave", "Vynechána komnata, kterou nelze přečíst"}},
    {CollectionFault::Marker, {"caption.fault.marker", "Vynechána komnata s poškozeným číslem"}},
    {CollectionFault::NoCave, {"caption.fault.line", "Vynechán řádek, který není komnata"}},
    {CollectionFault::TooMany, {"caption.fault.many", "Vynechána komnata, která se do sady nevejde"}},
    {CollectionFault::Letters, {"caption.fault.letters", "V řádku jsou znaky, které tam nepatří"}},
    {CollectionFault::CutLine, {"caption.fault.cut", "Soubor končí uprostřed řádku"}},
    {CollectionFault::NoCongratulation, {"caption.fault.congrat", "Místo gratulace je na konci komnata"}},
    {CollectionFault::NoCaves, {"caption.fault.none", "Žádná komnata se nenašla, sada má jednu novou."}},
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
