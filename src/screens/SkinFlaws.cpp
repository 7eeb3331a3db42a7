#include "screens/SkinFlaws.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "platform/PathText.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kMostNamed = 5;  // of one kind; the message is to be read

struct KindRow {
  SkinFlaw::Kind kind;
  StartWords words;
};

constexpr std::array kKinds = {
    KindRow{SkinFlaw::Kind::NotUnderstood, kSkinFaultWords},
    KindRow{SkinFlaw::Kind::ShortLanguage, kNoLanguageWords},
    KindRow{SkinFlaw::Kind::Held, kSkinHeldWords},
    KindRow{SkinFlaw::Kind::TooManyKeys, kSkinManyWords},
    KindRow{SkinFlaw::Kind::PictureTooLarge, kPictureLargeWords},
    KindRow{SkinFlaw::Kind::PictureBroken, kPictureBrokenWords},
    KindRow{SkinFlaw::Kind::SoundTooLong, kSoundLongWords},
    KindRow{SkinFlaw::Kind::SoundBroken, kSoundBrokenWords},
};

// What is wrong in one manner: keys, and below those of one file its path.
QStringList LinesOf(const SkinFlaws& flaws, SkinFlaw::Kind kind) {
  QStringList lines;
  QString file;
  const auto nameFile = [&] {
    if (!file.isEmpty()) lines.push_back(file);
  };
  int named = 0;
  for (const SkinFlaw& flaw : flaws) {
    if (flaw.kind != kind) continue;
    const QString next = ShownPath(flaw.file);
    if (next != file) nameFile();
    file = next;
    if (++named > kMostNamed) {
      lines.push_back(QString(QChar(0x2026)));
      if (!flaw.what.empty()) nameFile();
      return lines;
    }
    if (!flaw.what.empty()) lines.push_back(QString::fromStdString(flaw.what));
  }
  nameFile();
  return lines;
}

bool Has(const SkinFlaws& flaws, SkinFlaw::Kind kind) {
  return std::any_of(flaws.begin(), flaws.end(), [&](const SkinFlaw& flaw) { return flaw.kind == kind; });
}

}  // namespace

void TellFlaws(Skin& skin, QWidget* parent, const SkinFlaws& flaws, const QString& outcome) {
  if (flaws.empty()) return;
  QStringList lines;
  for (const KindRow& row : kKinds) {
    if (!Has(flaws, row.kind)) continue;
    lines.push_back(row.words.In(skin));
    lines += LinesOf(flaws, row.kind);
  }
  if (!outcome.isEmpty()) lines.push_back(outcome);
  Tell(skin, parent, skin.Text(TextId::Program), lines.join('\n'));
}

}  // namespace zorik
