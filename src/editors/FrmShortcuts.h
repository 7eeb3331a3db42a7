#pragma once

#include <QDialog>
#include <initializer_list>
#include <span>

class QMenuBar;
class QTreeWidget;

namespace zorik {

class Skin;

// What can be done with keys or the mouse without being an item of a menu: a caption of the skin that has the
// keys, a stroke "|", and what they do.
struct KeysRow {
  const char* key;
};

// A part of the sheet that stands in no menu: its head and its rows.
struct KeysPart {
  const char* head;
  std::span<const KeysRow> rows;
};

// All keys of an editor on one sheet: those of the items of its menus, as these are at the moment, menu by
// menu, and those besides.
class FrmShortcuts : public QDialog {
 public:
  FrmShortcuts(const Skin& skin, const QMenuBar& menus, std::initializer_list<KeysPart> besides,
               QWidget* parent);

  void done(int result) override;

 private:
  QTreeWidget* list_;
};

}  // namespace zorik
