#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

namespace zorik::test {

// Does one thing to each dialog that opens, in their order; each is to close its dialog. Dialogs that nothing
// is said about are closed, and are an error, as are things left over at the end.
class DialogScript {
 public:
  using Act = std::function<void(QWidget& dialog)>;

  DialogScript(std::initializer_list<Act> acts) : acts_(acts) {
    timer_.callOnTimeout([this] { Look(); });
    timer_.start(2);
  }
  ~DialogScript() { EXPECT_TRUE(acts_.empty()) << acts_.size() << " dialogs did not open"; }
  DialogScript(const DialogScript&) = delete;
  DialogScript& operator=(const DialogScript&) = delete;

 private:
  void Look() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) return;
    // One that is on its way out needs a moment on a busy machine.
    if (acts_.empty() && dialog == done_ && since_.elapsed() < kWayOut) return;
    if (acts_.empty()) {
      const auto* const text = dialog->findChild<QLabel*>("lblText");
      ADD_FAILURE() << "a dialog too many: " << dialog->windowTitle().toStdString() << ": "
                    << (text != nullptr ? text->text().toStdString() : std::string());
      dialog->close();
      return;
    }
    const Act act = std::move(acts_.front());
    acts_.pop_front();
    done_ = dialog;
    since_.start();
    act(*dialog);
  }

  static constexpr int kWayOut = 2000;  // milliseconds

  std::deque<Act> acts_;
  QPointer<QWidget> done_;  // the dialog that the last act was done to
  QElapsedTimer since_;
  QTimer timer_;
};

inline DialogScript::Act Press(Qt::Key key) {
  return [key](QWidget& dialog) { QTest::keyClick(&dialog, key); };
}

// Types a name and confirms it.
inline DialogScript::Act Type(const QString& name) {
  return [name](QWidget& dialog) {
    auto* const field = dialog.findChild<QLineEdit*>("Text1");
    ASSERT_NE(field, nullptr) << dialog.windowTitle().toStdString();
    field->setText(name);
    QTest::keyClick(field, Qt::Key_Return);
  };
}

// A message box with this title and text, which is answered by a key.
inline DialogScript::Act Box(const QString& title, const QString& text, Qt::Key answer = Qt::Key_Return) {
  return [=](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), title);
    auto* const label = dialog.findChild<QLabel*>("lblText");
    ASSERT_NE(label, nullptr) << dialog.windowTitle().toStdString();
    EXPECT_EQ(label->text(), text);
    QTest::keyClick(&dialog, answer);
  };
}

}  // namespace zorik::test
