#pragma once

#include <QDialog>
#include <QTimer>
#include <array>
#include <optional>
#include <string>

#include "data/ResultFwd.h"
#include "run/Comparison.h"

class QLabel;
class QLayout;

namespace zorik {

class BarButton;
class RunView;
class SeekLine;
class Skin;
enum class Transport;
struct StartWords;

// Two records of one cave, side by side on one timeline: both caves at the same tick, the first tick in which
// the runs differ, and below what each has come to.
//
// Space: play, or stand still. Full stop and comma: a tick on or back; left and right: five seconds; Home,
// End. D: the first difference.
class PairWindow : public QDialog {
  Q_OBJECT

 public:
  // interval: milliseconds of a tick while both play.
  PairWindow(Skin& skin, int interval, QWidget* parent = nullptr);

  // The bytes of two records. A failure tells why they cannot be seen together, and nothing has changed.
  Result<Done> Open(const std::string& recordA, const std::string& recordB);

  void ShowTick(int tick);
  int Tick() const { return tick_; }
  bool Plays() const { return timer_.isActive(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  using Act = void (PairWindow::*)();
  static Act ActOf(int key);

  void LayOut();
  QLayout* NewViews();
  QLayout* NewButtons();
  BarButton* NewButton(const char* name, Act act);
  BarButton* NewButton(const char* name, Transport picture, const StartWords& hint, Act act);
  void SetTotals(std::size_t run, const RunTotals& totals);

  void TogglePlay();
  void StepOn() { Seek(tick_ + 1); }
  void StepBack() { Seek(tick_ - 1); }
  void SeekOn();
  void SeekBack();
  void ToStart() { Seek(0); }
  void ToEnd() { Seek(length_); }
  void ToDifference();
  void Seek(int tick);
  void Play(bool plays);
  void PlayOn();

  Skin& skin_;
  QTimer timer_;
  int length_ = 0;
  int tick_ = 0;
  std::optional<int> difference_;

  std::array<QLabel*, 2> names_{};
  std::array<RunView*, 2> views_{};
  std::array<QLabel*, 2> totals_{};
  SeekLine* line_;
  QLabel* moment_;
  QLabel* same_;
  BarButton* play_ = nullptr;
  BarButton* toDifference_ = nullptr;
};

}  // namespace zorik
