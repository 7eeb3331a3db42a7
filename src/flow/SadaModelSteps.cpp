// What is done to a collection can be taken back and done again.
#include <utility>

#include "data/Files.h"
#include "data/Result.h"
#include "flow/SadaModel.h"

namespace zorik {

namespace {

// These leave one collection for another.
bool LeavesFile(SadaAct act) {
  return act == SadaAct::New || act == SadaAct::Open || act == SadaAct::Import;
}

}  // namespace

SadaState SadaModel::State() {
  return {history_.At(sada_), selected_, file_};
}

std::shared_ptr<const SadaMoment> SadaModel::Shared() {
  return std::make_shared<const SadaMoment>(history_.At(sada_));
}

void SadaModel::Remember(SadaAct act, std::string cave) {
  EndTyping();
  history_.Do({act, std::move(cave)}, State());
}

// A new collection that nobody touched is nothing to come back to; the step that led to it leads on.
void SadaModel::RememberLeaving(SadaAct act) {
  const SadaStep* const last = history_.Last();
  const bool untouched = file_.Path.empty() && !chg_ && (last == nullptr || LeavesFile(last->Act));
  if (!untouched) return Remember(act);
  EndTyping();
  history_.CallLast(act);
}

// Who has opened what he left, as he left it, has done nothing that could be taken back.
void SadaModel::ForgetComingBack() {
  const SadaState* const before = history_.BeforeLast();
  if (before == nullptr || before->File.Path != file_.Path) return;
  const bool faulty = before->File.Faulty || file_.Faulty;
  if (!faulty && before->Moment.Holds(sada_)) history_.DropLast();
}

void SadaModel::Undo(int steps) {
  for (; steps > 0; --steps) {
    std::optional<SadaHistory::Way> way = history_.Undo(State());
    if (!way) return;
    Enter(*std::move(way));
  }
}

void SadaModel::Redo(int steps) {
  for (; steps > 0; --steps) {
    std::optional<SadaHistory::Way> way = history_.Redo(State());
    if (!way) return;
    Enter(*std::move(way));
  }
}

// The file is that of the collection as a whole: steps within one collection leave it alone.
void SadaModel::Enter(SadaHistory::Way way) {
  EndTyping();
  sada_ = way.State.Moment.Collection();
  GetNames(way.State.Selected - 1);
  if (LeavesFile(way.Step.Act)) {
    file_ = std::move(way.State.File);
    LookAtFile();
  }
  chg_ = file_.Faulty || !file_.Saved || !file_.Saved->Holds(sada_);
}

// Meanwhile something else may have been saved there.
void SadaModel::LookAtFile() {
  if (file_.Path.empty()) return;
  file_.Saved = nullptr;
  const Result<std::string> bytes = ReadWhole(file_.Path);
  if (!bytes) return;
  Result<EditedCollection> read = ReadForEditor(*bytes);
  if (!read || read->Closed) return;
  if (!FaultsOfCollection(*bytes).empty()) file_.Faulty = true;
  read->OpenFlags.set(1);
  file_.Saved = std::make_shared<const SadaMoment>(history_.At(*read));
}

}  // namespace zorik
