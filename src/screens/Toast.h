#pragma once

#include <QLabel>
#include <QTimer>

namespace zorik {

// A remark that comes up above everything for a few seconds. It takes neither the focus nor the pointer, so
// that whatever goes on below it goes on.
class Toast : public QLabel {
 public:
  Toast();

  void Say(const QString& text);

 private:
  QTimer timer_;
};

}  // namespace zorik
