#include "screens/Outside.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>

#include "platform/Paths.h"
#include "platform/Shell.h"
#include "screens/FrmLoading.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;
constexpr int kSideWidth = 150;  // of the places beside the files

constexpr int kPatience = 300;  // milliseconds between looks whether a window is in sight

bool IsInSight(const QWidget& window) {
  const QWidget* const box = QApplication::activeModalWidget();
  return window.isVisible() && (box == nullptr || box == window.window()) && !BusyNotice::Lives();
}

// The answer may come when the window that asked is gone.
OpenFailed Telling(Skin& skin, QWidget* parent, const QString& what) {
  return [&skin, what, window = QPointer<QWidget>(parent)] {
    if (!window) return;
    WhenInSight(window, [&skin, what, window] {
      Tell(skin, window, skin.Text(99), kNoProgramWords.In(skin) + '\n' + what);
    });
  };
}

// A box that stays open when the name that was typed is no file's, and says so.
class FileBox : public QFileDialog {
 public:
  FileBox(Skin& skin, QWidget* parent, const QString& title, const QString& folder)
      : QFileDialog(parent, title, folder), skin_(skin) {}

 protected:
  void accept() override {
    const QStringList files = selectedFiles();
    if (files.isEmpty() || QFileInfo::exists(files.constFirst())) return QFileDialog::accept();
    Tell(skin_, this, windowTitle(), kNotOpenedWords.In(skin_) + '\n' + files.constFirst());
  }

 private:
  Skin& skin_;
};

}  // namespace

void WhenInSight(QWidget* window, std::function<void()> say) {
  if (IsInSight(*window)) return say();
  QTimer::singleShot(kPatience, window, [window, say] { WhenInSight(window, say); });
}

void OpenFileOrTell(Skin& skin, QWidget* parent, const QString& path) {
  OpenFile(path, Telling(skin, parent, path));
}

void OpenLinkOrTell(Skin& skin, QWidget* parent, const QUrl& link) {
  OpenLink(link, Telling(skin, parent, link.toDisplayString()));
}

QString HelpPage(const Paths& paths, const Skin& skin, const QString& name) {
  const QString help = QString::fromStdString(paths.HelpPath);
  const QString translated = QDir::cleanPath(help + '/' + skin.Caption("help.folder") + '/' + name);
  return QFileInfo(translated).isFile() ? translated : help + '/' + name;
}

void PrepareFileBox(QFileDialog& box, const Skin& skin, const QString& words) {
  box.setOption(QFileDialog::DontUseNativeDialog);
  box.setOption(QFileDialog::ReadOnly);
  box.setViewMode(QFileDialog::List);
  box.setLabelText(QFileDialog::LookIn, kLookInWords.In(skin));
  box.setLabelText(QFileDialog::FileName, kFileNameWords.In(skin));
  box.setLabelText(QFileDialog::FileType, kFileTypeWords.In(skin));
  box.setLabelText(QFileDialog::Accept, words);
  box.setLabelText(QFileDialog::Reject, kCancelWords.In(skin));
  box.setSidebarUrls(
      {QUrl::fromLocalFile(box.directory().absolutePath()), QUrl::fromLocalFile(QDir::homePath())});
  // Its own buttons have words that no skin tells.
  for (QToolButton* const button : box.findChildren<QToolButton*>()) button->setToolTip(QString());
  for (const char* const name : {"newFolderButton", "detailModeButton", "listModeButton"}) {
    if (auto* const button = box.findChild<QToolButton*>(name)) button->hide();
  }
  box.setFont(GameFont(kLetters));
  if (auto* const parts = box.findChild<QSplitter*>("splitter")) {
    parts->setSizes({kSideWidth, kSideWidth * 3});
  }
}

QString AskForFile(Skin& skin, QWidget* parent, const QString& title, const QString& folder,
                   const QStringList& filters) {
  FileBox box(skin, parent, title, folder);
  PrepareFileBox(box, skin, kOpenWords.In(skin));
  box.setFileMode(QFileDialog::ExistingFile);
  box.setNameFilters(filters);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return QString();
  return box.selectedFiles().constFirst();
}

}  // namespace zorik
