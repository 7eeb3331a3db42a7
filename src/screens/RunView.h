#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "run/Timeline.h"
#include "skin/CavePainter.h"

namespace zorik {

class Ram;

// The whole cave of a run at any moment of its timeline.
class RunView : public QWidget {
  Q_OBJECT

 public:
  RunView(SkinPlaces places, QWidget* parent);

  // Shows the run from its start on.
  void SetRun(Timeline timeline);

  // Shows it after so many ticks; behind its end it stays as it ended.
  void ShowTick(int tick);

  int Tick() const { return tick_; }
  const Hra& Run() const { return *run_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();
  void Compose();

  std::optional<Timeline> timeline_;
  std::unique_ptr<Hra> run_;
  CavePainter painter_;
  Ram* ram_;
  int tick_ = 0;
};

}  // namespace zorik
