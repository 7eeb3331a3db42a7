#pragma once

#include <string>

#include "screens/PracticeBadge.h"
#include "screens/PracticeBar.h"
#include "screens/TheatreScreen.h"

namespace zorik::test {

// Sixty cells to go.
inline Picture LongWay() {
  return {std::string(64, 'W'), "W1" + std::string(61, '.') + "W", std::string(64, 'W')};
}

// A game window in which somebody practises.
class PracticeScreen : public TheatreScreen {
 protected:
  void Practise(const Picture& picture = LongWay(), const Numbers& numbers = {}) {
    Open(picture, numbers, RunKind::Practice);
    ASSERT_TRUE(window->Machine().Practising());
  }

  // Lets the dog go right until it is in this column.
  void GoTo(int x) {
    QTest::keyPress(window.get(), Qt::Key_Right);
    ASSERT_TRUE(Wait([&] { return Dog().x() >= x; }));
    QTest::keyRelease(window.get(), Qt::Key_Right);
  }

  zorik::Practice& Training() const { return window->Controls().Training(); }
  const PracticeBadge& Badge() const { return Training().Badge(); }
  QString Message() const { return window->Message().Text(); }
};

}  // namespace zorik::test
