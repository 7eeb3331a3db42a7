#include "screens/Background.h"

#include <utility>

namespace zorik {

Background::Background() {
  pool_.setMaxThreadCount(1);
}

Background::~Background() {
  Drop();
  pool_.waitForDone();
}

void Background::Drop() {
  if (dropped_) *dropped_ = true;
  dropped_.reset();
}

void Background::Start(Work work, std::function<void()> done) {
  Drop();
  dropped_ = std::make_shared<std::atomic<bool>>(false);
  pool_.start([this, flag = dropped_, work = std::move(work), done = std::move(done)] {
    if (!*flag) work(*flag);
    if (*flag) return;
    QMetaObject::invokeMethod(
        this, [this, flag, done] { Finish(flag, done); }, Qt::QueuedConnection);
  });
}

void Background::Finish(const Flag& flag, const std::function<void()>& done) {
  if (flag != dropped_) return;
  dropped_.reset();
  done();
}

}  // namespace zorik
