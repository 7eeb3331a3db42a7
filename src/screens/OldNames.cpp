#include "screens/OldNames.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <string>
#include <vector>

#include "data/Cp1250.h"
#include "data/Folders.h"
#include "platform/PathText.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

constexpr StartWords kOldNamesWords{"caption.file.old"};
constexpr int kRowsShown = 4;

// ".zk" of "Collections (*.zk)".
std::string ExtensionOf(const QString& filter) {
  const qsizetype star = filter.lastIndexOf("(*.");
  return filter.mid(star + 2, filter.lastIndexOf(')') - star - 2).toStdString();
}

// Paths below the folder.
std::vector<std::string> OldNamesIn(const std::string& folder, const std::string& extension) {
  std::vector<std::string> paths;
  for (const std::string& file : FilesIn(folder, extension)) {
    if (!IsUtf8(file)) paths.push_back(file);
  }
  for (const std::string& inner : FoldersIn(folder)) {
    if (IsUtf8(inner)) continue;
    for (const std::string& file : FilesIn(folder + "/" + inner, extension))
      paths.push_back(inner + "/" + file);
  }
  return paths;
}

}  // namespace

OldNames::OldNames(QFileDialog& box, const Skin& skin) {
  auto* const rows = qobject_cast<QGridLayout*>(box.layout());
  if (rows == nullptr) return;
  auto* const words = NewLabel(&box);
  words->setText(InMenu(kOldNamesWords.Before(skin)));
  auto* const list = new QListWidget(&box);
  list->setObjectName("oldNames");
  list->setMaximumHeight(kRowsShown * list->fontMetrics().height() + 2 * list->frameWidth());
  words->setBuddy(list);
  rows->addWidget(words, rows->rowCount(), 0, 1, -1);
  rows->addWidget(list, rows->rowCount(), 0, 1, -1);
  const auto show = [&box, words, list] {
    const std::string folder = box.directory().absolutePath().toStdString();
    list->clear();
    for (const std::string& path : OldNamesIn(folder, ExtensionOf(box.selectedNameFilter()))) {
      auto* const row = new QListWidgetItem(ShownPath(path), list);
      row->setData(Qt::UserRole, PathText(folder + "/" + path));
    }
    words->setVisible(list->count() > 0);
    list->setVisible(list->count() > 0);
  };
  QObject::connect(&box, &QFileDialog::directoryEntered, list, show);
  QObject::connect(&box, &QFileDialog::filterSelected, list, show);
  QObject::connect(list, &QListWidget::itemActivated, &box, [this, &box](const QListWidgetItem* row) {
    chosen_ = row->data(Qt::UserRole).toString();
    static_cast<QDialog&>(box).done(QDialog::Accepted);
  });
  show();
}

QString FolderForBox(const QString& folder) {
  const std::string path = PathBytes(folder);
  std::size_t end = 0;
  while (end < path.size()) {
    const std::size_t next = path.find('/', end + 1);
    if (!IsUtf8(path.substr(0, next))) return QString::fromStdString(path.substr(0, end));
    end = next == std::string::npos ? path.size() : next;
  }
  return folder;
}

}  // namespace zorik
