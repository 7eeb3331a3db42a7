#include "editors/CatEditing.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zorik {
namespace {

std::ptrdiff_t Offset(std::size_t place) {
  return static_cast<std::ptrdiff_t>(place);
}

}  // namespace

template <class Sequence>
CatEditing::Difference<Sequence> CatEditing::DifferenceOf(const Sequence& before, const Sequence& after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  const auto start = std::mismatch(before.begin(), before.begin() + Offset(shorter), after.begin()).first;
  const auto place = static_cast<std::size_t>(start - before.begin());
  const auto end =
      std::mismatch(before.rbegin(), before.rbegin() + Offset(shorter - place), after.rbegin()).first;
  const auto alike = static_cast<std::size_t>(end - before.rbegin());
  const auto part = [&](const Sequence& all) {
    return Sequence(all.begin() + Offset(place), all.end() - Offset(alike));
  };
  return {place, part(before), part(after)};
}

template <class Sequence>
void CatEditing::Put(Sequence& all, const Difference<Sequence>& difference, bool back) {
  const Sequence& old = back ? difference.after : difference.before;
  const Sequence& now = back ? difference.before : difference.after;
  const auto start = all.begin() + Offset(difference.place);
  const auto place = all.erase(start, start + Offset(old.size()));
  all.insert(place, now.begin(), now.end());
}

template <class Act>
void CatEditing::Do(CatAct name, std::string caption, Act act) {
  const std::string program = script_.Program();
  const std::vector<std::string> lines = script_.Lines();
  const int selected = script_.Selected();
  act(script_);
  if (program == script_.Program() && lines == script_.Lines()) return;
  steps_.erase(steps_.begin() + Offset(done_), steps_.end());
  steps_.push_back({{name, std::move(caption)},
                    DifferenceOf(program, script_.Program()),
                    DifferenceOf(lines, script_.Lines()),
                    selected,
                    script_.Selected()});
  if (steps_.size() > kMostSteps) steps_.pop_front();
  done_ = steps_.size();
}

std::string CatEditing::SelectedCaption() const {
  const auto line = static_cast<std::size_t>(script_.Selected());
  return line < script_.Lines().size() ? script_.Lines()[line] : std::string();
}

void CatEditing::Load(std::string program) {
  script_.Load(std::move(program));
  steps_.clear();
  done_ = 0;
}

void CatEditing::Insert(std::size_t command) {
  if (command >= script_.Commands().size()) return;
  Do(CatAct::Insert, script_.Commands()[command].Caption,
     [command](CatScript& script) { script.Insert(command); });
}

void CatEditing::Delete() {
  Do(CatAct::Delete, SelectedCaption(), [](CatScript& script) { script.Delete(); });
}

// An exchange of two lines alike changes nothing that could be taken back, but selects another line.
void CatEditing::Swap() {
  Do(CatAct::Swap, SelectedCaption(), [](CatScript& script) { script.Swap(); });
}

void CatEditing::MoveUp() {
  Do(CatAct::MoveUp, SelectedCaption(), [](CatScript& script) { script.MoveUp(); });
}

void CatEditing::MoveDown() {
  Do(CatAct::MoveDown, SelectedCaption(), [](CatScript& script) { script.MoveDown(); });
}

void CatEditing::GoTo(std::size_t done) {
  done = std::min(done, steps_.size());
  while (done_ > done) Take(steps_[--done_], true);
  while (done_ < done) Take(steps_[done_++], false);
}

void CatEditing::Take(const Change& change, bool back) {
  std::string program = script_.Program();
  std::vector<std::string> lines = script_.Lines();
  Put(program, change.program, back);
  Put(lines, change.lines, back);
  script_.Restore(std::move(program), std::move(lines), back ? change.selectedBefore : change.selectedAfter);
}

}  // namespace zorik
