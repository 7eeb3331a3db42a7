#pragma once

#include "core/Machine.h"
#include "data/Result.h"
#include "screens/BarButton.h"
#include "screens/GameScreen.h"
#include "support/Scene.h"

namespace zorik::test {

// A game window on a cave.
class HraScreen : public testing::Test, public GameScreen {
 protected:
  void Open(const Picture& picture, Numbers numbers = {}, RunKind kind = RunKind::Play) {
    Show();
    ASSERT_TRUE(window->Start(CaveTextOf(picture, numbers), kind));
  }

  void Click(const char* button) { QTest::mouseClick(window->findChild<BarButton*>(button), Qt::LeftButton); }

  // Opens the settings by their button or their key, and does something in their window.
  void EditSettings(const std::function<void(QWidget& dialog)>& act, bool byKey = false) {
    QTimer once;
    once.callOnTimeout([&] {
      QWidget* const dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) return;
      once.stop();
      act(*dialog);
    });
    once.start(2);
    if (byKey) {
      QTest::keyClick(window.get(), Qt::Key_F2);
    } else {
      Click("Command4");
    }
  }

  bool Shows(const char* button) const { return window->findChild<BarButton*>(button)->isVisible(); }
};

inline Picture Corridor() {
  return {"WWWWWWWWWWWW", "W1.........W", "WWWWWWWWWWWW"};
}

}  // namespace zorik::test
