#include "editors/Mnemonics.h"

#include <QEvent>
#include <QMenu>
#include <QSet>
#include <algorithm>
#include <tuple>
#include <vector>

namespace zorik {
namespace {

constexpr QChar kMark('&');
constexpr QStringView kSpare = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

// A place in a caption that can have the mark, best ones first.
struct Candidate {
  int rank;
  qsizetype place;

  bool operator<(const Candidate& other) const {
    return std::tie(rank, place) < std::tie(other.rank, other.place);
  }
};

bool OnEveryKeyboard(QChar letter) {
  return letter.unicode() < 0x80;
}

int RankOf(const QString& caption, qsizetype place) {
  const QChar letter = caption[place];
  const bool begins = place == 0 || !caption[place - 1].isLetterOrNumber();
  const bool ends = place + 1 == caption.size();
  if (letter.isDigit() && begins && ends) return 0;
  if (!OnEveryKeyboard(letter)) return begins ? 4 : 5;
  if (!letter.isLetter()) return begins ? 2 : 6;
  return begins ? 1 : 3;
}

std::vector<Candidate> CandidatesOf(const QString& caption) {
  std::vector<Candidate> candidates;
  for (qsizetype place = 0; place < caption.size(); ++place) {
    if (caption[place].isLetterOrNumber()) candidates.push_back({RankOf(caption, place), place});
  }
  std::sort(candidates.begin(), candidates.end());
  return candidates;
}

QString WithMnemonic(const QString& caption, QSet<QChar>& taken) {
  for (const Candidate& candidate : CandidatesOf(caption)) {
    const QChar letter = caption[candidate.place].toUpper();
    if (taken.contains(letter)) continue;
    taken.insert(letter);
    return QString(caption).insert(candidate.place, kMark);
  }
  for (const QChar letter : kSpare) {
    if (taken.contains(letter)) continue;
    taken.insert(letter);
    return caption + " (" + kMark + letter + ')';
  }
  return caption;
}

class MnemonicKeeper : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show) GiveMnemonics(static_cast<QMenu*>(object)->actions());
    return false;
  }
};

}  // namespace

QString WithoutMnemonic(const QString& caption) {
  QString plain;
  for (qsizetype place = 0; place < caption.size(); ++place) {
    const bool mark = caption[place] == kMark;
    if (mark && place + 1 < caption.size() && caption[place + 1] == kMark) {
      plain += "&&";
      ++place;
    } else if (!mark) {
      plain += caption[place];
    }
  }
  return plain;
}

QChar MnemonicOf(const QString& caption) {
  for (qsizetype place = 0; place + 1 < caption.size(); ++place) {
    if (caption[place] != kMark) continue;
    if (caption[place + 1] != kMark) return caption[place + 1].toUpper();
    ++place;
  }
  return {};
}

QStringList WithMnemonics(const QStringList& captions) {
  QSet<QChar> taken;
  QStringList marked;
  for (const QString& caption : captions) marked << WithMnemonic(WithoutMnemonic(caption), taken);
  return marked;
}

void GiveMnemonics(const QList<QAction*>& actions) {
  QList<QAction*> entries;
  QStringList captions;
  for (QAction* const action : actions) {
    if (action->isSeparator()) continue;
    entries << action;
    captions << action->text();
  }
  const QStringList marked = WithMnemonics(captions);
  for (qsizetype i = 0; i < entries.size(); ++i) entries[i]->setText(marked[i]);
}

void KeepMnemonics(QMenu& menu) {
  menu.installEventFilter(new MnemonicKeeper(&menu));
}

}  // namespace zorik
