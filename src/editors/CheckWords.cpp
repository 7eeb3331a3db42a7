#include "editors/CheckWords.h"

#include <QLocale>
#include <algorithm>
#include <array>

#include "screens/Marks.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kGemsWords{"caption.main.gems"};
constexpr StartWords kUnlimitedWords{"caption.main.unlimited"};

struct WordsRow {
  DoubtKind kind;
  int form;
  StartWords words;
};
constexpr std::array<WordsRow, 33> kRows{{
    {DoubtKind::NumberOutOfRange, 0, {"caption.doubt.number"}},
    {DoubtKind::TooLarge, 0, {"caption.doubt.size"}},
    {DoubtKind::UnknownLetter, 0, {"caption.doubt.letter"}},
    {DoubtKind::NoDog, 0, {"caption.doubt.nodog"}},
    {DoubtKind::DogMissing, 0, {"caption.doubt.dogmissing"}},
    {DoubtKind::DogTwice, 0, {"caption.doubt.dogtwice"}},
    {DoubtKind::NoFinish, 0, {"caption.doubt.nofinish"}},
    {DoubtKind::FinishShut, 0, {"caption.doubt.finishshut"}},
    {DoubtKind::KeyShut, 0, {"caption.doubt.keyshut"}},
    {DoubtKind::SensorShut, 0, {"caption.doubt.sensorshut"}},
    {DoubtKind::TeleportHalf, 0, {"caption.doubt.entrance"}},
    {DoubtKind::TeleportHalf, 1, {"caption.doubt.exit"}},
    {DoubtKind::HoleInRing, 0, {"caption.doubt.hole"}},
    {DoubtKind::TooFewGems, 0, {"caption.doubt.fewgems"}},
    {DoubtKind::TimeTooShort, 0, {"caption.doubt.time"}},
    {DoubtKind::CatMissing, 0, {"caption.doubt.nocat"}},
    {DoubtKind::CatStuck, 0, {"caption.doubt.catstuck"}},
    {DoubtKind::CatToken, 0, {"caption.doubt.catbegin"}},
    {DoubtKind::CatToken, 1, {"caption.doubt.catnothing"}},
    {DoubtKind::CatToken, 2, {"caption.doubt.catnever"}},
    {DoubtKind::CatLabel, 0, {"caption.doubt.catlabel"}},
    {DoubtKind::NameTooLong, 0, {"caption.doubt.longname"}},
    {DoubtKind::NameTwice, 0, {"caption.doubt.nametwice"}},
    {DoubtKind::Mirror, 0, {"caption.doubt.mirror"}},
    {DoubtKind::LooseLimit, 0, {"caption.doubt.loose"}},
    {DoubtKind::IdleStretch, 0, {"caption.doubt.idle"}},
    {DoubtKind::LowOdds, 0, {"caption.doubt.odds"}},
    {DoubtKind::NotWon, 0, {"caption.doubt.notwon"}},
    {DoubtKind::GemShut, 0, {"caption.doubt.gemshut"}},
    {DoubtKind::SlimeShut, 0, {"caption.doubt.slimeshut"}},
    {DoubtKind::CatKeyIdle, 0, {"caption.doubt.catkey"}},
    {DoubtKind::UnfairStart, 0, {"caption.doubt.unfair"}},
    {DoubtKind::AboveEditor, 0, {"caption.doubt.cut"}},
}};

struct LabelRow {
  std::string_view key;
  TextId label;
};
constexpr std::array<LabelRow, 5> kLabels{{
    {"time", TextId::TotalTime},
    {"magic-wall-time", TextId::MagicWallTime},
    {"amoeba-time", TextId::AmoebaTime},
    {"colouring", TextId::Colouring},
    {"slime", TextId::SlimePermeability},
}};

QStringList ValuesOf(const Skin& skin, const Doubt& doubt) {
  QStringList values;
  for (const std::string& value : doubt.values) values << QString::fromStdString(value);
  // A factor, and seconds.
  if (doubt.kind == DoubtKind::LooseLimit || doubt.kind == DoubtKind::IdleStretch)
    values[0] = QLocale(LanguageOf(skin)).toString(values[0].toDouble(), 'f', QLocale::FloatingPointShortest);
  if (doubt.kind != DoubtKind::NumberOutOfRange) return values;
  const auto* const row = std::find_if(kLabels.begin(), kLabels.end(),
                                       [&](const LabelRow& label) { return label.key == doubt.key; });
  if (row != kLabels.end()) values[0] = skin.Text(row->label);
  return values;
}

}  // namespace

QString DoubtInWords(const Skin& skin, const Doubt& doubt) {
  const auto* const row = std::find_if(kRows.begin(), kRows.end(), [&](const WordsRow& words) {
    return words.kind == doubt.kind && words.form == doubt.form;
  });
  return row == kRows.end() ? QString() : FillMarks(row->words.In(skin), ValuesOf(skin, doubt));
}

QString GemsInWords(const Skin& skin, const GemCount& gems) {
  const QString most = gems.most ? QString::number(*gems.most) : kUnlimitedWords.In(skin);
  return FillMarks(kGemsWords.In(skin), {QString::number(gems.there), most, QString::number(gems.needed)});
}

}  // namespace zorik
