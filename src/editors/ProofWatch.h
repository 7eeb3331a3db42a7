#pragma once

#include <QObject>
#include <memory>
#include <optional>
#include <string>

#include "run/ProofRun.h"
#include "screens/Background.h"

namespace zorik {

// Does the author's proof still win? Asks anew whenever the cave has become another one, in the background;
// a question that is not answered by then is dropped.
class ProofWatch : public QObject {
  Q_OBJECT

 public:
  // The bytes of the proof's record, empty for none.
  void SetRecord(std::string record);
  const std::string& Record() const { return record_; }

  // The cave as it is by now.
  void SetCave(const std::string& caveText);
  const std::string& Cave() const { return caveText_; }

  bool Asking() const { return background_.Busy(); }

  // The answer to the last question that has one; null where nothing is known, or the record is no proof.
  const ProofVerdict* Verdict() const { return verdict_ ? &*verdict_ : nullptr; }

  // Once it was read: the record wins no cave at all.
  bool IsBad() const { return bad_; }

 signals:
  // The verdict is another one.
  void Judged();

 private:
  struct Question {
    std::string record, caveText;
    std::shared_ptr<const Proof> proof;  // once it was read
    std::optional<ProofVerdict> verdict;
  };

  static void Look(Question& question, const std::atomic<bool>& dropped);
  void Ask();

  std::string record_, caveText_;
  std::shared_ptr<const Proof> proof_;
  std::optional<ProofVerdict> verdict_;
  bool bad_ = false;
  Background background_;
};

}  // namespace zorik
