#include "screens/WayFinder.h"

#include <QElapsedTimer>
#include <algorithm>
#include <utility>

namespace zorik {
namespace {

constexpr std::uint64_t kSlice = 5'000;  // ticks between two looks at the clock

}  // namespace

WayFinder::WayFinder(QObject* parent, int longest) : QObject(parent), longest_(longest) {
  pool_.setMaxThreadCount(1);
}

WayFinder::~WayFinder() {
  Drop();
  pool_.waitForDone();
}

void WayFinder::Drop() {
  if (question_) question_->dropped = true;
  question_.reset();
}

void WayFinder::Forget() {
  Drop();
  answer_ = Prospect::NoneYet;
  way_.clear();
}

// The way that was known may still lead there: what has been done of it is left out.
void WayFinder::Ask(const Hra& run) {
  Drop();
  const auto question = std::make_shared<Question>();
  question->run = std::make_unique<Hra>(run);
  question->run->LeaveStage();
  const int done = std::clamp(run.Ticks - from_, 0, static_cast<int>(way_.size()));
  question->tryFirst.assign(way_.begin() + done, way_.end());
  question_ = question;
  pool_.start([this, question] {
    Look(*question);
    if (question->dropped) return;
    QMetaObject::invokeMethod(
        this, [this, question] { Take(question); }, Qt::QueuedConnection);
  });
}

void WayFinder::Look(Question& question) const {
  QElapsedTimer clock;
  clock.start();
  Outlook outlook(*question.run, std::move(question.tryFirst));
  while (!question.dropped && outlook.Answer() == Prospect::NoneYet && clock.elapsed() < longest_)
    outlook.Go(kSlice);
  question.answer = outlook.Answer();
  question.way = outlook.Way();
}

void WayFinder::Take(const std::shared_ptr<Question>& question) {
  if (question != question_) return;
  question_.reset();
  answer_ = question->answer;
  way_ = std::move(question->way);
  from_ = question->run->Ticks;
  emit Answered();
}

}  // namespace zorik
