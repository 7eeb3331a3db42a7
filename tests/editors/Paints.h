#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace zorik::test {

// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }

  int count = 0;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

}  // namespace zorik::test
