#include "editors/NameNote.h"

#include <string>
#include <vector>

#include "editors/CheckWords.h"
#include "flow/SadaModel.h"
#include "screens/Marks.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"
#include "solve/Lint.h"

namespace zorik {
namespace {

constexpr StartWords kDoubtWords{"caption.sada.doubt"};
constexpr StartWords kDoubtsWords{"caption.sada.doubts"};

}  // namespace

std::map<int, QString> DoubtfulNames(const Skin& skin, const SadaModel& sada) {
  std::vector<std::string> names;
  for (int number = 1; number <= sada.ListCount(); ++number) names.push_back(sada.Name(number));
  std::map<int, QString> doubts;
  for (const NameDoubt& found : DoubtsAboutNames(sada.Text(SadaText::Name), names)) {
    QString& words = doubts[static_cast<int>(found.cave) + 1];
    if (!words.isEmpty()) words += ' ';
    words += DoubtInWords(skin, found.doubt);
  }
  return doubts;
}

QString NameNote(const Skin& skin, const std::map<int, QString>& doubts, int selected) {
  if (doubts.empty()) return QString();
  const auto own = doubts.find(selected);
  const auto& [number, doubt] = own != doubts.end() ? *own : *doubts.begin();
  const StartWords& words = doubts.size() > 1 ? kDoubtsWords : kDoubtWords;
  return OneLine(FillMarks(words.In(skin), {QString::number(number), doubt, QString::number(doubts.size())}));
}

}  // namespace zorik
