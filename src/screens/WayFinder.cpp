#include "screens/WayFinder.h"

#include <QElapsedTimer>
#include <algorithm>
#include <utility>

#include "run/PlayOut.h"

namespace zorik {
namespace {

constexpr std::uint64_t kSlice = 5'000;  // ticks between two looks at the clock

}  // namespace

void WayFinder::Forget() {
  Drop();
  answer_ = Prospect::NoneYet;
  way_.clear();
}

// The way that was known may still lead there: what has been done of it is left out.
void WayFinder::Ask(const Hra& run, Plan tryFirst) {
  const auto question = std::make_shared<Question>();
  question->run = Unwatched(run);
  const int done = std::clamp(run.Ticks - from_, 0, static_cast<int>(way_.size()));
  question->tryFirst = tryFirst.empty() ? Plan(way_.begin() + done, way_.end()) : std::move(tryFirst);
  background_.Start(
      [question, longest = longest_](const std::atomic<bool>& dropped) { Look(*question, longest, dropped); },
      [this, question] { Take(*question); });
}

void WayFinder::Look(Question& question, int longest, const std::atomic<bool>& dropped) {
  QElapsedTimer clock;
  clock.start();
  Outlook outlook(*question.run, std::move(question.tryFirst));
  const auto enough = [&] { return dropped || clock.elapsed() >= longest; };
  outlook.Heed(enough);
  while (!enough() && outlook.Answer() == Prospect::NoneYet) outlook.Go(kSlice);
  question.answer = outlook.Answer();
  question.way = outlook.Way();
}

void WayFinder::Take(Question& question) {
  answer_ = question.answer;
  way_ = std::move(question.way);
  from_ = question.run->Ticks;
  emit Answered();
}

}  // namespace zorik
