#pragma once

#include <QObject>
#include <string>

#include "editors/CaveOrigin.h"
#include "editors/ProofOverlay.h"
#include "editors/ProofShelf.h"
#include "editors/ProofStanding.h"
#include "editors/ProofWatch.h"
#include "editors/ProofWork.h"

namespace zorik {

class ProofOffer;
class ProofPage;
class SadaModel;
class SidePanel;
class Skin;

// The author's proof of the cave that is being edited: judged anew after every change, shown beside the cave
// and on its picture, replaced by a better one when the author wants it, tried from any of its ticks.
class ProofDesk : public QObject {
  Q_OBJECT

 public:
  // All live longer.
  ProofDesk(Skin& skin, const CaveModel& cave, EditKom& picture, SidePanel& panel);
  ~ProofDesk() override;

  ProofPage& Page() { return *page_; }
  ProofOffer& Offer() { return *offer_; }
  const ProofWatch& Watch() const { return watch_; }
  const ProofWork& Work() const { return work_; }

  void SetLW();

  // A cave has been opened.
  void Opened(const CaveOrigin& origin);
  // It may have become another one.
  void CaveChanged();
  // The author leaves the cave: nothing is worked at any more.
  void Leave();

  // A test run was won: its record, which may become the proof.
  void Won(const std::string& record);
  // The collection has been written to its file.
  void CollectionSaved(const SadaModel& sada);

  // Tries the cave with the first dog in the cell that was marked last.
  void TryWithDog();
  // Tries the proof's run from the chosen tick.
  void Try();

 signals:
  // What is known of the proof has changed.
  void Stands(const zorik::ProofStanding& proof);
  // A try of a run, given by a record of it, from one of its ticks.
  void TryRun(const std::string& record, int tick);
  // A try of another cave.
  void TryCave(const std::string& caveText);

 private:
  std::string CaveText() const;
  void Judged();
  void ShowOverlay();
  void TellStanding();
  void ShowWork();
  void Go();
  void ChooseTick(QPoint cell);
  void Solve();
  void Rate();
  void Take();
  // What has come of long work that found nothing.
  void TellEnd(const char* key);
  void TellRating(const Rating& rating);
  void OfferRecord(const std::string& record, const char* key);
  void TellNotStored(const ProofShelf::NotStored& why);
  QString VerdictText() const;
  QString FlawText(const ProofFlaw& flaw) const;
  QString With(const char* key, const QString& a = {}, const QString& b = {}) const;

  Skin& skin_;
  const CaveModel& cave_;
  EditKom& picture_;
  SidePanel& panel_;
  ProofPage* page_;
  ProofOffer* offer_;
  CaveOrigin origin_;
  std::string name_;  // of the cave when it was opened
  ProofShelf shelf_;
  ProofOverlay overlay_;
  ProofWatch watch_;
  ProofWork work_;
  ProofStanding standing_;
  std::string offered_;            // a record that may become the proof
  QString told_;                   // what came of the last work
  std::optional<QPoint> pointed_;  // the cell that was marked last
};

}  // namespace zorik
