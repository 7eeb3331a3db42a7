#pragma once

#include <QEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>
#include <utility>

namespace zorik::test {

// The parts of widgets that are painted from now on.
class PaintedParts : public QObject {
 public:
  void Watch(QWidget& widget) { widget.installEventFilter(this); }
  QRegion Take() { return std::exchange(parts_, QRegion()); }

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) parts_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QRegion parts_;
};

}  // namespace zorik::test
