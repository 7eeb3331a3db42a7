#include "editors/SaveBox.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSplitter>
#include <QToolButton>

#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kSaveWords{"caption.sada.save", "Uložit"};
constexpr StartWords kReplaceWords{"caption.sada.replace", "Tento soubor už existuje. Přepsat ho?"};

constexpr int kLetters = 14;
constexpr int kSideWidth = 150;  // of the places beside the files

// It looks like the box that asks for a file to open.
void Prepare(QFileDialog& box, const Skin& skin, const SaveWish& wish) {
  box.setOption(QFileDialog::DontUseNativeDialog);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setOption(QFileDialog::ReadOnly);  // it renames and deletes nothing
  box.setAcceptMode(QFileDialog::AcceptSave);
  box.setFileMode(QFileDialog::AnyFile);
  box.setViewMode(QFileDialog::List);
  box.setNameFilter(wish.kind + " (*." + wish.suffix + ")");
  box.setLabelText(QFileDialog::LookIn, kLookInWords.In(skin));
  box.setLabelText(QFileDialog::FileName, kFileNameWords.In(skin));
  box.setLabelText(QFileDialog::FileType, kFileTypeWords.In(skin));
  box.setLabelText(QFileDialog::Accept, kSaveWords.In(skin));
  box.setLabelText(QFileDialog::Reject, kCancelWords.In(skin));
  const QString folder = QFileInfo(wish.path).absolutePath();
  box.setSidebarUrls({QUrl::fromLocalFile(folder), QUrl::fromLocalFile(QDir::homePath())});
  box.selectFile(QFileInfo(wish.path).fileName());
  // The box's own buttons have words that no skin tells.
  for (QToolButton* const button : box.findChildren<QToolButton*>()) button->setToolTip(QString());
  for (const char* const name : {"newFolderButton", "detailModeButton", "listModeButton"}) {
    if (auto* const button = box.findChild<QToolButton*>(name)) button->hide();
  }
  box.setFont(GameFont(kLetters));
  if (auto* const parts = box.findChild<QSplitter*>("splitter")) {
    parts->setSizes({kSideWidth, kSideWidth * 3});
  }
}

// A name may have dots of its own.
QString WithSuffix(const QString& path, const QString& suffix) {
  const QString ending = '.' + suffix;
  return path.endsWith(ending, Qt::CaseInsensitive) ? path : path + ending;
}

}  // namespace

QString AskForNewFile(Skin& skin, QWidget* parent, const SaveWish& wish) {
  QFileDialog box(parent, wish.title, QFileInfo(wish.path).absolutePath());
  Prepare(box, skin, wish);
  while (box.exec() == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
    const QString path = WithSuffix(box.selectedFiles().constFirst(), wish.suffix);
    if (!QFileInfo::exists(path)) return path;
    const QString question = QFileInfo(path).fileName() + '\n' + kReplaceWords.In(skin);
    if (Ask(skin, parent, wish.title, question)) return path;
  }
  return QString();
}

}  // namespace zorik
