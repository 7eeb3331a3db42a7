#pragma once

#include "data/Result.h"
#include "screens/HraScreen.h"
#include "screens/RunControls.h"
#include "screens/SeekLine.h"
#include "screens/TheatreBar.h"

namespace zorik::test {

// The bytes of the record of a run with these keys, one letter a tick, '.' for none.
inline std::string RecordOfKeys(const Picture& picture, const std::string& keys,
                                const Numbers& numbers = {}) {
  Hra run(7);
  EXPECT_TRUE(PaintCave(run, CaveTextOf(picture, numbers), RunKind::Play));
  for (const char key : keys) Pass(run, 1, key == '.' ? std::string() : std::string(1, key));
  return SaveRecord(run, run.Win ? run.Win->Score : 0);
}

// A game window in which a record plays.
class TheatreScreen : public HraScreen {
 protected:
  void PlayRecord(const std::string& record) {
    Show();
    ASSERT_TRUE(window->StartRecord(record));
  }

  // A record that has begun and stands still at a tick.
  void StandAt(const std::string& record, int tick) {
    PlayRecord(record);
    Press(Qt::Key_Home);
    Press(Qt::Key_Space);
    for (int step = 0; step < tick; ++step) Press(Qt::Key_Period);
    ASSERT_EQ(Tick(), tick);
    ASSERT_TRUE(Theatre().Stands());
  }

  void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window.get(), static_cast<Qt::Key>(key), modifiers);
  }

  zorik::Theatre& Theatre() const { return window->Controls().Record(); }
  const TheatreBar& Bar() const { return Theatre().Bar(); }
  int Tick() const { return window->Machine().Ticks; }
  BarButton* Button(const char* name) const { return Bar().findChild<BarButton*>(name); }
};

}  // namespace zorik::test
