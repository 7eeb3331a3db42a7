#include "screens/TroubleWords.h"

#include <array>

#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

struct TroubleRow {
  FileTrouble trouble;
  StartWords words;
};
constexpr std::array<TroubleRow, 10> kTroubles{{
    {FileTrouble::NoFile, {"caption.why.nofile"}},
    {FileTrouble::NoFolder, {"caption.why.nofolder"}},
    {FileTrouble::IsFolder, {"caption.why.isfolder"}},
    {FileTrouble::NoPlainFile, {"caption.why.noplainfile"}},
    {FileTrouble::NotAllowed, {"caption.why.denied"}},
    {FileTrouble::ReadOnly, {"caption.why.readonly"}},
    {FileTrouble::DiskFull, {"caption.why.full"}},
    {FileTrouble::NameTooLong, {"caption.why.longname"}},
    {FileTrouble::DiskFault, {"caption.why.fault"}},
    {FileTrouble::NoCollection, {"caption.why.nocollection"}},
}};

}  // namespace

QString LineOfTrouble(const Skin& skin, FileTrouble trouble) {
  for (const TroubleRow& row : kTroubles) {
    if (row.trouble == trouble) return '\n' + row.words.In(skin);
  }
  return QString();
}

}  // namespace zorik
