#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QSet>
#include <QTest>
#include <functional>
#include <memory>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "screens/Folder.h"
#include "screens/HraWindow.h"
#include "screens/SkinButton.h"
#include "support/Patience.h"

namespace zorik::test {

inline constexpr int kPatience = 20000;  // milliseconds

template <class Condition>
bool Wait(Condition condition) {
  return WaitFor(condition, kPatience);
}

// Answers every message box with the button of that place, or its last one, and keeps what it said.
class Answers : public QObject {
 public:
  explicit Answers(std::size_t button) : button_(button) { startTimer(5); }

  // Looks so often at a value before it answers.
  void Linger(int looks, std::function<int()> value) {
    looks_ = looks;
    value_ = std::move(value);
  }

  QStringList said;
  QStringList titles;
  QSet<int> seen;  // the values while it lingered

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || !box->isVisible()) return;
    const auto* const text = box->findChild<QLabel*>("lblText");
    if (text == nullptr) return;
    if (looks_-- > 0) {
      seen.insert(value_());
      return;
    }
    said.push_back(text->text());
    titles.push_back(box->windowTitle());
    const auto buttons = box->findChildren<SkinButton*>();
    buttons.at(std::min<qsizetype>(static_cast<qsizetype>(button_), buttons.size() - 1))->click();
  }

 private:
  std::size_t button_;
  int looks_ = 0;
  std::function<int()> value_;
};

// A message as one line: its box wraps it where it likes.
inline QString OneLine(QString text) {
  return text.simplified();
}

// A game window that starts whatever a test likes.
class AnyRun : public HraWindow {
 public:
  using HraWindow::HraWindow;

  void SetPlayer(const std::string& player) { Machine().PlayerName = player; }
  void SetCollection(const std::string& collection) { Machine().CollectionName = collection; }

  Result<Done> Start(const std::string& caveText, RunKind kind) {
    return Begun(PaintCave(Machine(), caveText, kind));
  }
  Result<Done> StartRecord(const std::string& bytes) { return Begun(Replay(Machine(), bytes)); }

 private:
  Result<Done> Begun(Result<Done> started) {
    if (started) StartTicking();
    return started;
  }
};

// The game window on the skin's Czech texts, without pictures and without sound.
class GameScreen {
 public:
  GameScreen() {
    const auto language = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/cestina.txt");
    folder.File("Skins/Default/Menu/cestina.txt", *FromUtf8(*language));
    EXPECT_TRUE(skin.Apply(SkinPlaces{folder.Root() + "/Skins"}));
    settings.Speed = 2;
    settings.Sound = false;
    window = std::make_unique<AnyRun>(skin, sound, settings);
    window->SetPlayer("Ada");
    window->SetCollection("Alfa");
  }

  void Show() {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    window->setFocus();
  }

  // Where the steered dog is.
  Cell Dog() const {
    const Unit& dog = window->Machine().Dog[static_cast<std::size_t>(window->Machine().ActiveDog)];
    return Cell(dog.x, dog.y);
  }

  bool TicksPass(int ticks) const {
    const int start = window->Machine().Ticks;
    return Wait([&] { return window->Machine().Ticks >= start + ticks; });
  }

  Folder folder;
  Skin skin;
  DSound sound{std::vector<std::string>{"dummy"}};
  Settings settings;
  std::unique_ptr<AnyRun> window;
};

}  // namespace zorik::test
