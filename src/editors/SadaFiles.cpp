#include "editors/SadaFiles.h"

#include <QDir>
#include <QStringList>
#include <utility>

#include "data/Files.h"
#include "editors/SadaBoxes.h"
#include "platform/PathText.h"
#include "screens/FrmLoading.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/SaveBox.h"
#include "screens/StartFolders.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kKeptWords{"caption.error.kept"};
constexpr StartWords kLeftOutWords{"caption.error.leftout"};
constexpr StartWords kStillHereWords{"caption.error.stillhere"};
constexpr StartWords kTooLongWords{"caption.error.length"};
constexpr StartWords kNoCopyWords{"caption.error.folder"};
constexpr StartWords kOutsideWords{"caption.sada.outside"};
constexpr StartWords kCopiedWords{"caption.sada.copied"};
constexpr StartWords kEditedWords{"caption.sada.edited"};

}  // namespace

SadaFiles::SadaFiles(Skin& skin, const Paths& paths, SadaModel& sada, FrmLoading& notice, Lead lead)
    : skin_(skin), paths_(paths), sada_(sada), notice_(notice), lead_(std::move(lead)) {}

bool SadaFiles::Save(QWidget& over) {
  if (sada_.FileName().empty()) return SaveAs(over);
  return SaveColl(over, PathText(sada_.FileName()));
}

bool SadaFiles::SaveAs(QWidget& over) {
  const QString path = AskForPath(over);
  return !path.isEmpty() && SaveColl(over, path);
}

QString SadaFiles::AskForPath(QWidget& over) {
  return AskForNewFile(
      skin_, &over,
      {skin_.Text(TextId::SaveCollectionTitle), skin_.Text(TextId::CollectionKind), "zk", ProposedPath()});
}

QString SadaFiles::ProposedPath() const {
  if (!sada_.FileName().empty()) return PathText(sada_.FileName());
  std::string name = CleanFileName(sada_.Text(SadaText::Name));
  if (name.empty()) name = "sada";
  return QDir(PathText(paths_.CavesPath)).absoluteFilePath(PathText(FileSystemName(name + ".zk")));
}

bool SadaFiles::SaveColl(QWidget& over, const QString& path) {
  if (!FitsFile(over)) return false;
  for (QString place = path; !place.isEmpty();) {
    const Result<Done, FileFailure> stored = Store(over, place);
    if (stored) return true;
    place = AskWhereElse(over, place, stored.Why().Trouble);
  }
  return false;
}

Result<Done, FileFailure> SadaFiles::Store(QWidget& over, const QString& path) {
  const Result<SadaModel::SaveReport, FileFailure> saved = [&] {
    const BusyNotice busy(notice_);
    return sada_.Save(PathBytes(path));
  }();
  if (!saved) return saved.Why();
  TellSaved(over, *saved);
  OfferCopy(over, path);
  return Done{};
}

void SadaFiles::TellSaved(QWidget& over, const SadaModel::SaveReport& report) {
  QStringList lines;
  if (!report.KeptAs.empty()) lines << kKeptWords.Before(skin_) + '\n' + ShownPath(report.KeptAs);
  if (report.CongratulationLeftOut) lines << kLeftOutWords.In(skin_);
  if (!lines.isEmpty()) Tell(skin_, &over, skin_.Text(TextId::Program), lines.join("\n\n"));
}

// The start screen lists the game's own folder only. Of each file this is said once.
void SadaFiles::OfferCopy(QWidget& over, const QString& path) {
  const std::string file = PathBytes(path);
  if (LiesIn(file, paths_.CavesPath) || !offered_.insert(file).second) return;
  const QString title = skin_.Text(TextId::Program);
  if (!Ask(skin_, &over, title, kOutsideWords.In(skin_))) return;
  const Result<std::string, FileFailure> copy = CopyColl(file, paths_.CavesPath);
  if (!copy) {
    Tell(skin_, &over, title,
         kNoCopyWords.Before(skin_) + '\n' + ShownPath(paths_.CavesPath) +
             LineOfTrouble(skin_, copy.Why().Trouble));
    return;
  }
  Tell(skin_, &over, title,
       kCopiedWords.Before(skin_) + '\n' + ShownPath(*copy) + "\n\n" + kEditedWords.Before(skin_) + '\n' +
           ShownPath(path));
}

QString SadaFiles::AskWhereElse(QWidget& over, const QString& path, FileTrouble trouble) {
  const QString question = kNotStoredWords.In(skin_) + '\n' + ShownPath(path) +
                           LineOfTrouble(skin_, trouble) + "\n\n" + kStillHereWords.In(skin_);
  switch (SkinMsgBox(skin_, &over, question, MsgButtons::NotStored, MsgIcon::OfSet,
                     skin_.Text(TextId::Program))) {
    case MsgResult::Retry:
      return path;
    case MsgResult::Elsewhere:
      return AskForPath(over);
    default:
      return QString();
  }
}

void SadaFiles::TellNotOpened(QWidget& over, const QString& path, FileTrouble trouble) {
  Tell(skin_, &over, skin_.Text(TextId::Program),
       kNotOpenedWords.Before(skin_) + '\n' + ShownPath(path) + LineOfTrouble(skin_, trouble));
}

// Names the text that is too long and leads the author to it.
bool SadaFiles::FitsFile(QWidget& over) {
  const auto tooLong = sada_.CannotHold();
  if (!tooLong) return true;
  const QString lengths =
      FillMarks(kTooLongWords.In(skin_), QString::number(tooLong->length), QString::number(tooLong->most));
  Tell(skin_, &over, skin_.Text(TextId::Program),
       kNotStoredWords.In(skin_) + '\n' + skin_.Text(LabelOf(tooLong->text)) + ": " + lengths);
  lead_(tooLong->text);
  return false;
}

}  // namespace zorik
