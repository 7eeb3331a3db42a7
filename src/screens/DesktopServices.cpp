#include "screens/DesktopServices.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>
#include <filesystem>
#include <system_error>

#include "data/Files.h"
#include "platform/PathText.h"
#include "platform/Paths.h"
#include "platform/Shell.h"
#include "platform/UserFolders.h"
#include "screens/FrmLoading.h"
#include "screens/Hint.h"
#include "screens/MsgBox.h"
#include "screens/OldNames.h"
#include "screens/PlainText.h"
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
      Tell(skin, window, skin.Text(TextId::Program), kNoProgramWords.Before(skin) + '\n' + what);
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
    std::error_code error;
    const bool given = !files.isEmpty();
    if (!given || std::filesystem::exists(PathBytes(files.constFirst()), error)) return QFileDialog::accept();
    Tell(skin_, this, windowTitle(), kNotOpenedWords.Before(skin_) + '\n' + ShownPath(files.constFirst()));
  }

 private:
  Skin& skin_;
};

// What a skin says of a folder may not lead out of it.
QString FolderWithin(const QString& folder) {
  const QString clean = QDir::cleanPath(folder);
  return clean == ".." || clean.startsWith("../") ? QString() : clean;
}

}  // namespace

void WhenInSight(QWidget* window, std::function<void()> say) {
  if (IsInSight(*window)) return say();
  QTimer::singleShot(kPatience, window, [window, say] { WhenInSight(window, say); });
}

void OpenFileOrTell(Skin& skin, QWidget* parent, const QString& path) {
  OpenFile(path, Telling(skin, parent, ShownPath(path)));
}

void OpenLinkOrTell(Skin& skin, QWidget* parent, const QUrl& link) {
  OpenLink(link, Telling(skin, parent, link.toDisplayString()));
}

QString HelpPage(const Paths& paths, const Skin& skin, const QString& name) {
  QStringList folders = {PathText(paths.HelpPath)};
  if (!paths.ShippedHelp.empty()) folders.push_back(PathText(paths.ShippedHelp));
  for (const QString& within : {FolderWithin(skin.Said("help.folder")) + '/' + name, name}) {
    for (const QString& folder : folders) {
      const QString page = QDir::cleanPath(folder + '/' + within);
      if (IsReadableFile(PathBytes(page))) return page;
    }
  }
  return folders.constLast() + '/' + name;
}

void PrepareFileBox(QFileDialog& box, const Skin& skin, const QString& words) {
  box.setOption(QFileDialog::DontUseNativeDialog);
  box.setOption(QFileDialog::ReadOnly);
  box.setViewMode(QFileDialog::List);
  SetTitle(box, box.windowTitle());
  KeepLabelsPlain(box);
  KeepHintsPlain();
  box.setLabelText(QFileDialog::LookIn, InMenu(kLookInWords.Before(skin)));
  box.setLabelText(QFileDialog::FileName, InMenu(kFileNameWords.Before(skin)));
  box.setLabelText(QFileDialog::FileType, InMenu(kFileTypeWords.Before(skin)));
  box.setLabelText(QFileDialog::Accept, InMenu(words));
  box.setLabelText(QFileDialog::Reject, InMenu(kCancelWords.In(skin)));
  box.setSidebarUrls(
      {QUrl::fromLocalFile(box.directory().absolutePath()), QUrl::fromLocalFile(FolderForBox(HomeText()))});
  // Its own buttons have words that no skin tells.
  for (QToolButton* const button : box.findChildren<QToolButton*>()) SetHint(*button, QString());
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
  FileBox box(skin, parent, title, FolderForBox(folder));
  PrepareFileBox(box, skin, kOpenWords.In(skin));
  box.setFileMode(QFileDialog::ExistingFile);
  box.setNameFilters(filters);
  const OldNames old(box, skin);
  if (box.exec() != QDialog::Accepted) return QString();
  if (!old.Chosen().isEmpty()) return old.Chosen();
  return box.selectedFiles().isEmpty() ? QString() : box.selectedFiles().constFirst();
}

QString RecordFilter(const Skin& skin) {
  return skin.Text(TextId::RecordKind) + " (*.zkr)";
}

}  // namespace zorik
