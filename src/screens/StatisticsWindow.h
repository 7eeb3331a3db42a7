#pragma once

#include <QTimer>
#include <string>

#include "run/PlayerStatistics.h"
#include "screens/SkinWindow.h"

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace zorik {

class Skin;
class SkinButton;

// What the records of a player tell of him: sums, and for each collection a sparkline of the points by cave
// and the quickest win of each cave. The records are read while the window shows, so it never stands still.
class StatisticsWindow : public SkinDialog {
  Q_OBJECT

 public:
  // Of the player, a name in Windows-1250, with this folder, a UTF-8 path.
  StatisticsWindow(Skin& skin, const std::string& folder, const std::string& player, QWidget* parent);

  // Whether all records have been read.
  bool AllRead() const { return statistics_.AtEnd(); }

 protected:
  void OnEnter() override { accept(); }
  void OnEsc() override { done(Rejected); }

 private:
  void LayOut();
  void FitList();
  void SkinIt(const std::string& player);
  void ReadOn();
  void ShowSums();
  void ShowCollections();
  void Add(const CollectionStatistics& collection);
  QString Remarks() const;

  Skin& skin_;
  PlayerStatistics statistics_;
  QTimer reading_;
  QColor bars_, dots_;

  QLabel* lblCaption_;
  QLabel* lblSums_;
  QTreeWidget* caves_;
  QLabel* lblRemarks_;
  SkinButton* ok_;
};

}  // namespace zorik
