#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>

class QWidget;

namespace zorik {

// When a bar over the cave is to come and to leave: it comes when the mouse moves over the window, or when it
// is called, and leaves some seconds later, unless it is in use.
class BarCall : public QObject {
  Q_OBJECT

 public:
  static constexpr int kStays = 3000;  // milliseconds

  // The window has all its parts by now. inUse: whether the bar has to stay.
  BarCall(QWidget& window, std::function<bool()> inUse);

  // The bar shows: it stays for so long at least.
  void Stay(int milliseconds = kStays);
  void Stop() { leave_.stop(); }

 signals:
  void MouseMoved();
  void Leaves();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  std::function<bool()> inUse_;
  QTimer leave_;
  QPoint pointer_;  // where it was last
};

}  // namespace zorik
