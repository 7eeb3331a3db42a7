#pragma once

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimerEvent>
#include <deque>
#include <functional>

#include "screens/SkinButton.h"

namespace zorik::test {

// Answers the dialogs that open, one after another, each by what was foreseen for it. One that nobody foresaw
// is closed and counted. What message boxes say is kept, a line each.
class Dialogs : public QObject {
 public:
  using Act = std::function<void(QWidget& dialog)>;

  Dialogs() { startTimer(2); }

  QStringList said;
  QStringList titles;
  int unforeseen = 0;

  Dialogs& Then(Act act) {
    acts_.push_back(std::move(act));
    return *this;
  }

  // Presses a button of a message box: "yes", "no", "ok", "retry" or "close".
  Dialogs& Press(const QString& button) {
    return Then([button](QWidget& dialog) {
      auto* const found = dialog.findChild<SkinButton*>(button);
      ASSERT_NE(found, nullptr) << button.toStdString() << " in " << dialog.windowTitle().toStdString();
      QTest::mouseClick(found, Qt::LeftButton);
    });
  }

  // Types a path into a box for files and presses Enter.
  Dialogs& Type(const std::string& path) {
    return Then([path](QWidget& dialog) {
      auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
      ASSERT_NE(name, nullptr) << dialog.windowTitle().toStdString();
      QTest::qWait(kFolderRead);
      name->setText(QString::fromStdString(path));
      QTest::keyClick(name, Qt::Key_Return);
    });
  }

  // Esc.
  Dialogs& Cancel() {
    return Then([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  }

  // What was said last; nothing if no box came.
  QString Last() const { return said.isEmpty() ? QString() : said.last(); }

  // Whether all that was foreseen has happened, and nothing else.
  bool Done() const { return acts_.empty() && unforeseen == 0; }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (inside_ || dialog == nullptr || !dialog->isVisible()) return;
    if (const auto* const text = dialog->findChild<QLabel*>("lblText")) {
      said << text->text().simplified();
      titles << dialog->windowTitle();
    }
    if (acts_.empty()) {
      ++unforeseen;
      dialog->close();
      return;
    }
    const Act act = std::move(acts_.front());
    acts_.pop_front();
    inside_ = true;
    act(*dialog);
    inside_ = false;
  }

 private:
  // Milliseconds in which a box for files reads its folder; until then it may change the name by itself.
  static constexpr int kFolderRead = 100;

  std::deque<Act> acts_;
  bool inside_ = false;
};

}  // namespace zorik::test
