#include "screens/RunControls.h"

#include "screens/HraWindow.h"

namespace zorik {

RunControls::RunControls(HraWindow& window, Skin& skin, const Settings& settings)
    : window_(window),
      plain_(window, settings),
      theatre_(window, skin, settings),
      practice_(window, skin, settings) {
  QObject::connect(&theatre_, &Theatre::TakeOverWanted, &theatre_, [this] { TakeOver(); });
}

RunControl& RunControls::Now() {
  if (window_.Machine().ReplayPlaying()) return theatre_;
  if (window_.Machine().Practising()) return practice_;
  return plain_;
}

void RunControls::Starts(bool again) {
  theatre_.Stops();
  practice_.Stops();
  Now().Starts(again);
}

void RunControls::TryFrom(int tick) {
  if (window_.Machine().ReplayPlaying()) theatre_.TakeOverAt(tick);
  practice_.WaitForKey();
}

void RunControls::TakeOver() {
  Timeline past = theatre_.HandOver();
  zorik::TakeOver(window_.Machine());
  practice_.Continue(std::move(past));
  window_.KindChanged();
}

}  // namespace zorik
