#pragma once

#include <array>

#include "screens/FloatingBar.h"
#include "screens/PracticeKeys.h"

namespace zorik {

// The buttons of a run in practice, each with the key that does the same.
class PracticeBar : public FloatingBar {
  Q_OBJECT

 public:
  explicit PracticeBar(QWidget* parent);

  void SetWords(const Skin& skin, const KeyMap& keys);

  // What can be done now: a run that is won offers nothing of what helps in play.
  void Offer(bool won, bool earnest);

 signals:
  // By a click; what lasts as long as its button is held begins by the press.
  void Wanted(PracticeAct act);
  void LetGo(PracticeAct act);

 protected:
  int NeededWidth() const override;
  void Arrange() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  BarButton& ButtonOf(PracticeAct act) const { return *buttons_[static_cast<std::size_t>(act)]; }

  std::array<BarButton*, kPracticeActs> buttons_;
  bool won_ = false;
  bool earnest_ = false;
};

}  // namespace zorik
