#include "screens/RunCaption.h"

#include "data/Cp1250.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {

QString RunCaption(const Hra& hra, const Skin& skin) {
  QString caption = QString(kProgramTitle) + " - ";
  if (!hra.EditorRun() && !hra.CollectionName.empty()) caption += ToQString(hra.CollectionName) + " - ";
  caption += ToQString(hra.CaveName) + "   ...";
  const bool nobody = hra.PlayerName == kNobody;
  if (hra.ReplayPlaying() && nobody) {
    caption += skin.Text(TextId::PlayingRecord);
  } else if (hra.Practising() && nobody) {
    caption += kPracticeWords.In(skin);
  } else {
    const TextId what = hra.EditorRun()       ? TextId::TestedBy
                        : hra.ReplayPlaying() ? TextId::RecordForPlayer
                                              : TextId::PlayedBy;
    const std::string player = nobody ? std::string() : ToUtf8(hra.PlayerName);
    const std::string words =
        hra.Practising() ? kPractisedByWords.In(skin).toStdString() : skin.Words().At(what);
    caption += QString::fromStdString(BlankJoin(words, player));
  }
  return QString::fromStdString(WithoutControls(caption.toStdString()));
}

}  // namespace zorik
