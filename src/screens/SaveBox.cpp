#include "screens/SaveBox.h"

#include <QFileDialog>
#include <QFileInfo>

#include "screens/MsgBox.h"
#include "screens/Outside.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kSaveWords{"caption.sada.save", "Uložit"};
constexpr StartWords kReplaceWords{"caption.sada.replace", "Tento soubor už existuje. Přepsat ho?"};

// It looks like the box that asks for a file to open.
void Prepare(QFileDialog& box, const Skin& skin, const SaveWish& wish) {
  PrepareFileBox(box, skin, kSaveWords.In(skin));
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setAcceptMode(QFileDialog::AcceptSave);
  box.setFileMode(QFileDialog::AnyFile);
  box.setNameFilter(wish.kind + " (*." + wish.suffix + ")");
  box.selectFile(QFileInfo(wish.path).fileName());
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
