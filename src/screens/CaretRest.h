#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>

namespace zorik {

// The caret of a text box blinks while somebody writes. Once nobody has for a while it stands still, and
// shows: a program that is left alone wakes for nothing. Works on all text boxes for as long as it lives.
class CaretRest : public QObject {
  Q_OBJECT

 public:
  explicit CaretRest(std::chrono::milliseconds patience = std::chrono::seconds(4));
  ~CaretRest() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Wake();

  const int usual_;  // milliseconds of one blink, as the desktop has it
  QTimer patience_;
};

}  // namespace zorik
