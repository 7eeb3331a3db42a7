#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "data/CaveO.h"
#include "editors/ProofStanding.h"
#include "screens/Background.h"
#include "solve/Gems.h"
#include "solve/Lint.h"

class QLabel;
class QListWidget;
class QListWidgetItem;

namespace zorik {

class Skin;

// What an author should look at in the cave and its proof, faults before hints, and how its gems stand. It
// looks in the background, as soon as the author has paused for a moment, and only while it is seen.
class DoubtPage : public QWidget {
  Q_OBJECT

 public:
  DoubtPage(const Skin& skin, QWidget* parent);

  // The cave is like this by now.
  void Look(const CaveRecord& cave);
  // And its proof.
  void LookAtProof(const zorik::ProofStanding& proof);

  // The skin is another one.
  void SetLW();

  // Whether what it shows is of the last cave that it was given.
  bool IsUpToDate() const { return fresh_; }

 signals:
  void Chosen(QPoint cell);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  struct Found {
    std::vector<Doubt> doubts;
    GemCount gems;
  };

  void LookAgain();
  void Ask();
  void Show();
  void AddRow(const Doubt& doubt);
  void AddMore(DoubtKind kind, std::size_t more);
  void Choose(const QListWidgetItem& item);

  const Skin& skin_;
  QLabel* lblGems_;
  QLabel* lblFine_;
  QListWidget* list_;
  QTimer pause_;
  std::optional<CaveRecord> cave_;
  ProofStanding proof_;
  bool fresh_ = false;
  std::shared_ptr<Found> found_;  // what is shown
  Background work_;
};

}  // namespace zorik
