#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace zorik::test {

// Does one thing to each dialog that opens, in their order; each is to close its dialog. Dialogs that nothing
// is said about are closed, and are an error, as are things left over at the end. One that is open before, as
// the score from which a box comes, is none of its business, however long it takes until the next one opens.
class DialogScript {
 public:
  using Act = std::function<void(QWidget& dialog)>;

  DialogScript(std::initializer_list<Act> acts) : acts_(acts) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->isModal() && window->isVisible()) before_.emplace_back(window);
    }
    timer_.callOnTimeout([this] { Look(); });
    timer_.start(2);
  }
  ~DialogScript() { EXPECT_TRUE(acts_.empty()) << acts_.size() << " dialogs did not open"; }
  DialogScript(const DialogScript&) = delete;
  DialogScript& operator=(const DialogScript&) = delete;

  // Whether all that was foreseen has happened.
  bool Done() const { return acts_.empty() && acting_ == nullptr; }

 private:
  void Look() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || WasOpen(dialog)) return;
    if (acts_.empty() && dialog == acting_) return;
    if (acts_.empty()) {
      const auto* const text = dialog->findChild<QLabel*>("lblText");
      ADD_FAILURE() << "a dialog too many: " << dialog->windowTitle().toStdString() << ": "
                    << (text != nullptr ? text->text().toStdString() : std::string());
      dialog->close();
      return;
    }
    const Act act = std::move(acts_.front());
    acts_.pop_front();
    const QPointer<QWidget> outer = std::exchange(acting_, dialog);
    act(*dialog);
    acting_ = outer;
  }

  bool WasOpen(const QWidget* dialog) const {
    return std::find(before_.begin(), before_.end(), dialog) != before_.end();
  }

  std::deque<Act> acts_;
  std::vector<QPointer<QWidget>> before_;
  QPointer<QWidget> acting_;  // the dialog that something is just being done to
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

// What a message box shows of a text, in the lines of that text: it breaks a line that finds no room, as that
// of a long path does not.
inline QString Unbroken(const QString& shown, const QString& text) {
  QString whole;
  for (const QChar letter : shown) {
    const QChar next = whole.size() < text.size() ? text[whole.size()] : QChar();
    if (letter != '\n' || next == '\n') {
      whole += letter;
    } else if (next == ' ') {
      whole += next;
    }
  }
  return whole;
}

// A message box with this title and text, which is answered by a key.
inline DialogScript::Act Box(const QString& title, const QString& text, Qt::Key answer = Qt::Key_Return) {
  return [=](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), title);
    auto* const label = dialog.findChild<QLabel*>("lblText");
    ASSERT_NE(label, nullptr) << dialog.windowTitle().toStdString();
    EXPECT_EQ(Unbroken(label->text(), text), text);
    QTest::keyClick(&dialog, answer);
  };
}

}  // namespace zorik::test
