#pragma once

#include "data/RecordSlot.h"

class QString;
class QWidget;

namespace zorik {

class Flow;
class Skin;

// What the player is asked on the way of a won run's record to the disk. One that cannot be stored is kept in
// memory, and he may try again, save it elsewhere or leave it for later. The windows are those that the boxes
// stand over.
class RecordKeeper {
 public:
  RecordKeeper(Skin& skin, Flow& flow) : skin_(skin), flow_(flow) {}

  // Whether a win may take the place of what is known of its cave, and of what its file holds; the player is
  // asked where either is better left alone.
  bool MayReplace(const WonRun& run, QWidget* parent);

  // Stores a win, and with it what could not be stored before.
  void Store(const WonRun& run, QWidget* parent);

  // The same question again for a win of this cave that is still kept.
  void OfferAgain(const RecordSlot& slot, QWidget* parent);

  // Whether the program may end: nothing is kept that would be lost, or the player leaves it.
  bool MayEnd(QWidget* parent);

 private:
  bool MayReplaceOthers(const WonRun& run, QWidget* parent);
  void Offer(const WonRun& run, QWidget* parent);
  void Try(const WonRun& run, QWidget* parent);
  bool SaveElsewhere(const WonRun& run, QWidget* parent);
  QString ProposedPath(const WonRun& run) const;

  Skin& skin_;
  Flow& flow_;
};

}  // namespace zorik
