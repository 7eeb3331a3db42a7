#include "screens/PairMenu.h"

#include "data/Files.h"
#include "data/Result.h"
#include "flow/Flow.h"
#include "platform/PathText.h"
#include "screens/ChoiceMenu.h"
#include "screens/DesktopServices.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PairWindow.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

// A second record, and what it is called in a message.
struct Second {
  std::string bytes;
  QString name;
};

void Say(Skin& skin, QWidget& window, const QString& text) {
  Tell(skin, &window, skin.Text(TextId::Program), text);
}

QString WordsFor(const Skin& skin, const Rival& rival) {
  return FillMarks(kRivalRecordWords.In(skin), OneLine(ToQString(rival.Player), kMostInCaption),
                   QString::number(rival.Score));
}

std::optional<Second> FromFile(Skin& skin, const Flow& flow, QWidget& window) {
  const QString path = AskForFile(skin, &window, kRecordFileWords.In(skin),
                                  PathText(flow.Caves().PlayerFolder()), {RecordFilter(skin)});
  if (path.isEmpty()) return std::nullopt;
  Result<std::string> bytes = ReadWhole(PathBytes(path));
  if (bytes) return Second{std::move(*bytes), ShownPath(path)};
  Say(skin, window, kNotOpenedWords.Before(skin) + '\n' + ShownPath(path));
  return std::nullopt;
}

// With nobody else who has won the cave a file is all that is left, which nobody is led to unasked.
std::optional<Second> Choose(Skin& skin, const Flow& flow, QWidget& window, const QPoint& at) {
  const std::vector<Rival> rivals = flow.Rivals();
  if (rivals.empty()) {
    const bool file = Ask(skin, &window, skin.Text(TextId::Program), kNoRivalWords.In(skin));
    return file ? FromFile(skin, flow, window) : std::nullopt;
  }
  QStringList lines;
  for (const Rival& rival : rivals) lines += WordsFor(skin, rival);
  lines += kRecordFileWords.In(skin);
  const auto chosen = ChooseFromMenu(skin, window, "pairMenu", lines, std::nullopt, at);
  if (!chosen) return std::nullopt;
  if (*chosen == rivals.size()) return FromFile(skin, flow, window);
  const QString name = lines[static_cast<qsizetype>(*chosen)];
  if (std::optional<std::string> bytes = flow.RecordOf(rivals[*chosen])) return Second{*bytes, name};
  Say(skin, window, kNotOpenedWords.Before(skin) + '\n' + name);
  return std::nullopt;
}

}  // namespace

void ShowPairOfRecords(Skin& skin, const Flow& flow, int interval, QWidget& window, const QPoint& at) {
  const std::string own = flow.OwnRecord();
  if (own.empty()) return Say(skin, window, kNoOwnRecordWords.In(skin));
  const std::optional<Second> second = Choose(skin, flow, window, at);
  if (!second) return;
  PairWindow pair(skin, interval, &window);
  if (!pair.Open(own, second->bytes))
    return Say(skin, window, kNoPairWords.Before(skin) + '\n' + second->name);
  pair.exec();
}

}  // namespace zorik
