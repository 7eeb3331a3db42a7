#include "screens/Outside.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QToolButton>

#include "platform/Paths.h"
#include "platform/Shell.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

// The answer may come when the window that asked is gone.
OpenFailed Telling(Skin& skin, QWidget* parent, const QString& what) {
  return [&skin, what, window = QPointer<QWidget>(parent)] {
    Tell(skin, window, skin.Text(99), kNoProgramWords.In(skin) + '\n' + what);
  };
}

// The box's own buttons have words that no skin tells.
void Quieten(const QFileDialog& box) {
  for (QToolButton* const button : box.findChildren<QToolButton*>()) {
    button->setToolTip(QString());
    const QString name = button->objectName();
    if (name == "newFolderButton" || name == "detailModeButton" || name == "listModeButton") button->hide();
  }
}

}  // namespace

void OpenFileOrTell(Skin& skin, QWidget* parent, const QString& path) {
  OpenFile(path, Telling(skin, parent, path));
}

void OpenLinkOrTell(Skin& skin, QWidget* parent, const QUrl& link) {
  OpenLink(link, Telling(skin, parent, link.toDisplayString()));
}

QString HelpPage(const Paths& paths, const Skin& skin, const QString& name) {
  const QString own = QString::fromStdString(paths.AppPath) + "/Help";
  const QString shipped = QString::fromStdString(paths.SkinsPath) + "/../Help";
  const QString help = QDir::cleanPath(QFileInfo(own).isDir() ? own : shipped);
  const QString translated = help + '/' + skin.Caption("help.folder") + '/' + name;
  return QFileInfo(translated).isFile() ? translated : help + '/' + name;
}

QString AskForFile(const Skin& skin, QWidget* parent, const QString& title, const QString& folder,
                   const QStringList& filters) {
  QFileDialog box(parent, title, folder);
  box.setOption(QFileDialog::DontUseNativeDialog);
  box.setFileMode(QFileDialog::ExistingFile);
  box.setViewMode(QFileDialog::List);
  box.setNameFilters(filters);
  box.setLabelText(QFileDialog::LookIn, kLookInWords.In(skin));
  box.setLabelText(QFileDialog::FileName, kFileNameWords.In(skin));
  box.setLabelText(QFileDialog::FileType, kFileTypeWords.In(skin));
  box.setLabelText(QFileDialog::Accept, kOpenWords.In(skin));
  box.setLabelText(QFileDialog::Reject, kCancelWords.In(skin));
  box.setSidebarUrls({QUrl::fromLocalFile(folder), QUrl::fromLocalFile(QDir::homePath())});
  Quieten(box);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return QString();
  return box.selectedFiles().constFirst();
}

}  // namespace zorik
