#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "data/ResultFwd.h"
#include "flow/RecoveryStore.h"
#include "screens/Toast.h"

namespace zorik {

class SadaModel;
class Skin;
struct Paths;

// The folder in which all of that is kept.
std::string RecoveryFolder(const Paths& paths);

// Keeps the collection that is being edited, together with the cave that is with the cave editor, so that a
// program that is killed loses no more than the last half minute.
class RecoveryKeeper : public QObject {
 public:
  // Half a minute, and time for writing.
  static constexpr std::chrono::milliseconds kEvery{29500};

  RecoveryKeeper(const Skin& skin, const SadaModel& sada, const Paths& paths);

  std::chrono::milliseconds Interval() const { return timer_.intervalAsDuration(); }
  // Another pace than half a minute.
  void SetInterval(std::chrono::milliseconds every) { timer_.setInterval(every); }

  // Who knows the cave that is with the cave editor; nothing when there is none.
  void SetCave(std::function<std::optional<std::string>()> cave) { cave_ = std::move(cave); }

  // The editing of collections begins and is over. What was to be discarded then has been.
  void Begin();
  void End();

  // Writes what is to be lost, if there is anything.
  void Keep();

  // What was kept is taken away when nothing is to be lost any more.
  void Settle();

  // The author is about to lose his changes, and wants to.
  void Discard();

  // The desktop ends the program: the last writing, from which on all stays as it is.
  void KeepForEnd();

  // Goes on with one that was kept, whose content the editor has by now. It stays where it is when that
  // cannot be written.
  void TookUp(const KeptEntry& left);

  RecoveryStore& Store() { return store_; }

 private:
  bool ToBeLost(const std::optional<std::string>& cave) const;
  void Written(const Result<Done>& written);

  const Skin& skin_;
  const SadaModel& sada_;
  RecoveryStore store_;
  std::function<std::optional<std::string>()> cave_;
  QTimer timer_;
  Toast sign_;
  bool editing_ = false;
  bool ending_ = false;
  bool failed_ = false;  // the last time
};

}  // namespace zorik
