#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "flow/RecoveryStore.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace zorik {

class Skin;

// The collections that the author has discarded, the newest first: one of them can be opened, or deleted for
// good.
class FrmDiscarded : public QDialog {
 public:
  FrmDiscarded(Skin& skin, RecoveryStore& store, QWidget* parent);

  // The one that is to be opened; nothing when the window was just closed.
  std::optional<KeptEntry> Choose();

  void done(int result) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void LayOut();
  void Fill();
  void AddRow(const KeptEntry& entry);
  void UpdateButtons();
  void Delete();

  Skin& skin_;
  RecoveryStore& store_;
  std::vector<KeptEntry> entries_;
  QTableWidget* table_;
  QPushButton* open_;
  QPushButton* delete_;
  QPushButton* close_;
};

}  // namespace zorik
