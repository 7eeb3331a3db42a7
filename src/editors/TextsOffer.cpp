#include "editors/TextsOffer.h"

#include <QFileDialog>
#include <array>

#include "data/CaveO.h"
#include "data/Files.h"
#include "data/TextFolder.h"
#include "platform/PathText.h"
#include "platform/UserFolders.h"
#include "screens/DesktopServices.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kToTextsWords{"caption.sada.totexts"};
constexpr StartWords kFromTextsWords{"caption.sada.fromtexts"};
constexpr StartWords kChooseWords{"caption.texts.choose"};
constexpr StartWords kThereWords{"caption.texts.there"};
constexpr StartWords kDoneWords{"caption.texts.done"};
constexpr StartWords kFileWords{"caption.texts.file"};
constexpr StartWords kLineWords{"caption.texts.line"};
constexpr StartWords kUnknownWords{"caption.texts.unclear"};
constexpr StartWords kUnreadableWords{"caption.texts.unreadable"};

// How what is wrong with a text begins, or what it holds, and how players are told.
struct ReasonRow {
  std::string_view start;
  StartWords words;
};
constexpr std::array<ReasonRow, 10> kReasons{{
    {"neither an entry", {"caption.texts.noentry"}},
    {"a character that Windows-1250 lacks", {"caption.texts.letter"}},
    {"a backslash", {"caption.texts.backslash"}},
    {"a line of text", {"caption.texts.below"}},
    {"unknown entry", {"caption.texts.key"}},
    {"a second entry", {"caption.texts.second"}},
    {"the entry \"", {"caption.texts.missing"}},
    {"there is no file", {"caption.texts.nofile"}},
    {"the entry is no number", {"caption.texts.number"}},
    {"a row", {"caption.texts.cells"}},
}};

QString ChosenFolder(Skin& skin, QWidget* parent, const QString& title) {
  QFileDialog box(parent, title, HomeText());
  PrepareFileBox(box, skin, kChooseWords.In(skin));
  box.setFileMode(QFileDialog::Directory);
  box.setOption(QFileDialog::ShowDirsOnly);
  box.setLabelText(QFileDialog::FileName, InMenu(kLookInWords.Before(skin)));
  // There is but one kind, and it has a word that no skin tells.
  for (const char* const name : {"fileTypeLabel", "fileTypeCombo"}) {
    if (auto* const kind = box.findChild<QWidget*>(name)) kind->hide();
  }
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return QString();
  return box.selectedFiles().constFirst();
}

QString ReasonInWords(const Skin& skin, const std::string& reason) {
  for (const ReasonRow& row : kReasons) {
    if (reason.starts_with(row.start)) return row.words.In(skin);
  }
  return kUnknownWords.In(skin);
}

void TellFault(Skin& skin, QWidget* parent, const QString& folder, const TextPlace& place,
               const QString& reason) {
  const QString file = ShownPath(place.file);
  const QString where = place.line > 0 ? FillMarks(kLineWords.In(skin), {file, QString::number(place.line)})
                                       : FillMarks(kFileWords.In(skin), {file});
  Tell(skin, parent, kFromTextsWords.In(skin),
       kNotOpenedWords.Before(skin) + '\n' + ShownPath(folder) + "\n\n" + where + '\n' + reason);
}

}  // namespace

void OfferTexts(Skin& skin, QWidget* parent, SadaModel& sada) {
  const QString title = kToTextsWords.In(skin);
  const QString chosen = ChosenFolder(skin, parent, title);
  if (chosen.isEmpty()) return;
  std::string name = CleanFileName(sada.Text(SadaText::Name));
  if (name.empty()) name = "sada";
  const std::string folder = PathBytes(chosen) + '/' + FileSystemName(name);
  const QString shown = '\n' + ShownPath(folder);
  if (HoldsSomething(folder) && !Ask(skin, parent, title, kThereWords.In(skin) + shown)) return;
  const Result<std::string> bytes = sada.Bytes();
  const Result<Done, FileFailure> written =
      bytes ? WriteTexts(UnpackCollection(*bytes), folder) : Result<Done, FileFailure>(FileFailure{});
  if (written) return Tell(skin, parent, title, kDoneWords.In(skin) + shown);
  Tell(skin, parent, title, kNotStoredWords.In(skin) + shown + LineOfTrouble(skin, written.Why().Trouble));
}

std::optional<SadaModel::OpenReport> TakeTexts(Skin& skin, QWidget* parent, SadaModel& sada) {
  const QString folder = ChosenFolder(skin, parent, kFromTextsWords.In(skin));
  if (folder.isEmpty()) return std::nullopt;
  const Result<TextFiles, TextFailure> texts = ReadTexts(PathBytes(folder));
  if (!texts) {
    TellFault(skin, parent, folder, {texts.Why().file, 0, {}}, kUnreadableWords.In(skin));
    return std::nullopt;
  }
  Chance decoration;
  const Result<std::string> bytes = PackCollection(*texts, decoration);
  const Result<SadaModel::OpenReport> report =
      bytes ? sada.Import(*bytes) : Result<SadaModel::OpenReport>(Failure{bytes.Message()});
  if (report) return *report;
  const TextPlace place = PlaceOfFailure(report.Message());
  const QString reason = ReasonInWords(skin, place.reason);
  if (!bytes && !place.file.empty()) {
    TellFault(skin, parent, folder, place, reason);
  } else {
    TellFault(skin, parent, folder, {kCollectionFile, 0, {}}, reason);
  }
  return std::nullopt;
}

}  // namespace zorik
