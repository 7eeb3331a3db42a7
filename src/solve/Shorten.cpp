#include "solve/Shorten.h"

#include <algorithm>

#include "solve/Snapshot.h"

namespace zorik {
namespace {

constexpr std::size_t kApart = 16;  // ticks between two moments that are kept
constexpr std::size_t kLongestPiece = 128;

bool AnyDogLives(const RunState& run) {
  return std::any_of(run.Dog.begin() + 1, run.Dog.end(), [](const Unit& unit) { return unit.Alive; });
}

// A plan that wins, and moments on its way from which variants are tried.
class Shortener {
 public:
  Shortener(const Hra& begin, Plan plan, const std::function<bool()>& enough, const Avoided& avoided)
      : run_(begin), snapshots_(begin), plan_(std::move(plan)), enough_(enough), avoided_(avoided) {
    moments_.push_back(snapshots_.Keep(run_));
    KeepFrom(0);
  }

  Plan Run() {
    bool better = true;
    while (better && !enough_()) {
      better = false;
      for (std::size_t length = kLongestPiece; length > 0 && !enough_(); length /= 2) better |= Drop(length);
    }
    return plan_;
  }

 private:
  // Tries to do without each piece of this length; true when one was not needed.
  bool Drop(std::size_t length) {
    bool better = false;
    for (std::size_t at = 0; at + length <= plan_.size() && !enough_();) {
      Plan tried(plan_.begin(), plan_.begin() + static_cast<std::ptrdiff_t>(at));
      tried.insert(tried.end(), plan_.begin() + static_cast<std::ptrdiff_t>(at + length), plan_.end());
      if (WinsFrom(at, tried)) {
        plan_ = std::move(tried);
        KeepFrom(at / kApart);
        better = true;
      } else {
        at += std::max<std::size_t>(1, length / 2);
      }
    }
    return better;
  }

  // The plan differs from the kept one from this tick on.
  bool WinsFrom(std::size_t at, Plan& plan) {
    const std::size_t moment = std::min(at / kApart, moments_.size() - 1);
    snapshots_.Restore(run_, moments_[moment]);
    for (std::size_t i = moment * kApart; i < plan.size(); ++i) {
      run_.RecordText.clear();
      if (Trespasses(run_, plan[i], avoided_)) return false;
      if (Tick(run_, KeysOf(plan[i])) == TickEnd::Won) {
        plan.resize(i + 1);
        return true;
      }
      if (i % kApart == 0 && (!AnyDogLives(run_) || enough_())) return false;
    }
    return false;
  }

  void KeepFrom(std::size_t moment) {
    moments_.resize(std::min(moments_.size(), moment + 1));
    snapshots_.Restore(run_, moments_.back());
    for (std::size_t i = (moments_.size() - 1) * kApart; i < plan_.size(); ++i) {
      run_.RecordText.clear();
      Tick(run_, KeysOf(plan_[i]));
      if ((i + 1) % kApart == 0) moments_.push_back(snapshots_.Keep(run_));
    }
  }

  Hra run_;
  Snapshots snapshots_;
  Plan plan_;
  const std::function<bool()>& enough_;
  const Avoided& avoided_;
  std::vector<Snapshots::Snapshot> moments_;  // moment i is behind i * kApart ticks
};

}  // namespace

Plan Shorten(const Hra& begin, Plan plan, const std::function<bool()>& enough, const Avoided& avoided) {
  return Shortener(begin, std::move(plan), enough, avoided).Run();
}

}  // namespace zorik
