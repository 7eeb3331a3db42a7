#include "screens/SaveBox.h"

#include <QFileDialog>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

#include "data/Cp1250.h"
#include "platform/PathText.h"
#include "screens/DesktopServices.h"
#include "screens/MsgBox.h"
#include "screens/OldNames.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kSaveWords{"caption.sada.save"};
constexpr StartWords kReplaceWords{"caption.sada.replace"};

// It looks like the box that asks for a file to open.
void Prepare(QFileDialog& box, const Skin& skin, const SaveWish& wish) {
  PrepareFileBox(box, skin, kSaveWords.In(skin));
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setAcceptMode(QFileDialog::AcceptSave);
  box.setFileMode(QFileDialog::AnyFile);
  box.setNameFilter(wish.kind + " (*." + wish.suffix + ")");
  box.selectFile(ShownPath(QFileInfo(wish.path).fileName()));
}

// A name may have dots of its own, but no control characters.
QString WithSuffix(const QString& chosen, const QString& suffix) {
  const QString ending = '.' + suffix;
  const qsizetype start = chosen.lastIndexOf('/') + 1;
  const std::string name = WithoutControls(chosen.mid(start).toStdString());
  const QString path = chosen.left(start) + QString::fromStdString(name);
  return path.endsWith(ending, Qt::CaseInsensitive) ? path : path + ending;
}

}  // namespace

QString AskForNewFile(Skin& skin, QWidget* parent, const SaveWish& wish) {
  QFileDialog box(parent, wish.title, FolderForBox(QFileInfo(wish.path).absolutePath()));
  Prepare(box, skin, wish);
  while (box.exec() == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
    const QString path = WithSuffix(box.selectedFiles().constFirst(), wish.suffix);
    std::error_code error;
    if (!std::filesystem::exists(PathBytes(path), error)) return path;
    const QString question = QFileInfo(path).fileName() + '\n' + kReplaceWords.In(skin);
    if (Ask(skin, parent, wish.title, question)) return path;
  }
  return QString();
}

}  // namespace zorik
