#pragma once

#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <functional>
#include <memory>

namespace zorik {

// Work in a thread of its own, while the windows go on: one piece at a time, the last that was asked for.
class Background : public QObject {
  Q_OBJECT

 public:
  // Looks whether it is wanted no more as often as it can.
  using Work = std::function<void(const std::atomic<bool>& dropped)>;

  Background();

  // Waits for what is under way to see that it is wanted no more.
  ~Background() override;

  // Drops what is under way, and works; done follows here, unless this has been dropped by then.
  void Start(Work work, std::function<void()> done);
  void Drop();
  bool Busy() const { return dropped_ != nullptr; }

 private:
  using Flag = std::shared_ptr<std::atomic<bool>>;

  void Finish(const Flag& flag, const std::function<void()>& done);

  QThreadPool pool_;
  Flag dropped_;  // of the piece under way
};

}  // namespace zorik
