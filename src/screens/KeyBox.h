#pragma once

#include <QAbstractButton>
#include <optional>

#include "platform/KeyMap.h"

namespace zorik {

// A box that shows a key, or a button of a pad, and asks for another one when it is pressed. Until that has
// come it takes all keys, also those that otherwise mean something in a window; Esc and a click elsewhere
// leave it as it was.
class KeyBox : public QAbstractButton {
  Q_OBJECT

 public:
  // As wide as the words that it has to show at most.
  KeyBox(QWidget* parent, int width);

  // What it shows while it asks.
  void SetAsking(const QString& words) { asking_ = words; }

  bool Asks() const { return asks_; }
  void StopAsking();

  QSize sizeHint() const override;

 signals:
  // It has begun to ask.
  void Asked();
  // A key went down while it asked; Shift and Ctrl when they were let go without another key. It asks no
  // more.
  void Caught(const KeyChoice& key);

 protected:
  bool event(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Ask();
  void Press(const QKeyEvent& event);
  void Release(const QKeyEvent& event);
  void Catch(const KeyChoice& key);

  int width_;
  bool asks_ = false;
  int held_ = 0;  // Shift or Ctrl, which went down while it asked
  QString asking_;
};

}  // namespace zorik
