#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QTest>
#include <QWidget>
#include <utility>

namespace zorik::test {

// The parts of widgets that are painted from now on.
class PaintedParts : public QObject {
 public:
  void Watch(QWidget& widget) { widget.installEventFilter(this); }
  QRegion Take() { return std::exchange(parts_, QRegion()); }
  // Lets what is still due be painted.
  void Settle() {
    QCoreApplication::processEvents();
    Take();
  }
  // Whether any part is painted, by itself, before long.
  bool Come() {
    return QTest::qWaitFor([this] { return !Take().isEmpty(); });
  }

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) parts_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QRegion parts_;
};

}  // namespace zorik::test
