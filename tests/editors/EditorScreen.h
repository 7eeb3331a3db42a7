#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>

#include "editors/EditKom.h"
#include "editors/FrmMain.h"
#include "editors/Letters.h"
#include "editors/Palette.h"
#include "screens/SkinButton.h"
#include "skin/Skin.h"

namespace zorik::test {

// Answers message boxes with their first button and keeps what they said, as one line each.
class Boxes : public QObject {
 public:
  Boxes() { startTimer(2); }

  QStringList said;
  QStringList titles;

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || !box->isVisible()) return;
    const auto* const text = box->findChild<QLabel*>("lblText");
    if (text == nullptr) return;
    said << text->text().simplified();
    titles << box->windowTitle();
    box->findChildren<SkinButton*>().front()->click();
  }
};

// Does something with the dialog of that name as soon as it is open, and closes it if it is still open then.
class InDialogNamed : public QObject {
 public:
  InDialogNamed(QString name, std::function<void(QWidget& dialog)> act)
      : name_(std::move(name)), act_(std::move(act)) {
    startTimer(2);
  }

  bool opened = false;
  bool stayed = false;

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (opened || dialog == nullptr || !dialog->isVisible() || dialog->objectName() != name_) return;
    opened = true;
    act_(*dialog);
    stayed = dialog->isVisible();
    if (stayed) dialog->close();
  }

 private:
  QString name_;
  std::function<void(QWidget&)> act_;
};

// The cave editor in the default skin.
class EditorScreen {
 public:
  EditorScreen() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    Wear("Default");
    MakeWindow();
  }

  void Wear(const std::string& name) { ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, name})); }

  void MakeWindow() {
    const auto cat = [this](const std::string& program) {
      scripts.push_back(program);
      return newScript;
    };
    window = std::make_unique<FrmMain>(skin, cat, 1);
    QObject::connect(window.get(), &FrmMain::Done, window.get(),
                     [this](const std::string& text) { done.push_back(text); });
    QObject::connect(window.get(), &FrmMain::Closed, window.get(), [this] { ++closed; });
    QObject::connect(window.get(), &FrmMain::TestRun, window.get(), [this](const std::string& text) {
      tested.push_back(text);
      shownInTest = window->isVisible();
    });
  }

  void Open(const Picture& picture, const Numbers& numbers = {}) { OpenText(CaveTextOf(picture, numbers)); }

  void OpenText(const std::string& text) {
    ASSERT_EQ(window->Edit(text), FrmMain::Start::Editing);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  template <class Widget>
  Widget& Child(const char* name) const {
    return *window->findChild<Widget*>(name);
  }
  QAction& Action(const char* name) const {
    QAction* const action = window->findChild<QAction*>(name);
    EXPECT_NE(action, nullptr) << name;
    return *action;
  }
  EditKom& Area() const { return Child<EditKom>("EditKom"); }
  zorik::Palette& Tiles() const { return Child<zorik::Palette>("imgS"); }
  int Tool(ToolButton button) const { return Tiles().Tool(button); }
  Picture Letters() const { return LettersOf(window->Model()); }
  QString Amoebas() const { return Child<QLabel>("Label1").text(); }
  QString Status() const { return Child<QLabel>("lblCell").text(); }

  // The mouse on the palette.
  void Pick(int palette, Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mouseClick(&Tiles(), button, {}, Tiles().TileRect(palette).center());
  }

  // The mouse on cells of the cave.
  QPoint Place(int x, int y) const { return QPoint(x, y) * Area().CellSize() + QPoint(5, 7); }
  void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mousePress(&Area(), button, {}, Place(x, y));
  }
  void Release(int x, int y, Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mouseRelease(&Area(), button, {}, Place(x, y));
  }
  void Move(int x, int y, Qt::MouseButtons buttons) const {
    const QPointF place = Place(x, y);
    QMouseEvent event(QEvent::MouseMove, place, Area().mapToGlobal(place), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&Area(), &event);
  }
  void Click(int x, int y, Qt::MouseButton button = Qt::LeftButton) const {
    Press(x, y, button);
    Release(x, y, button);
  }

  Skin skin;
  std::optional<std::string> newScript;  // what the editor of programs answers
  std::vector<std::string> scripts;      // what it was asked with
  std::vector<std::string> done;
  std::vector<std::string> tested;
  int closed = 0;
  bool shownInTest = true;
  std::unique_ptr<FrmMain> window;
};

}  // namespace zorik::test
