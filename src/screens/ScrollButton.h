#pragma once

#include "screens/SkinButton.h"

namespace zorik {

// A button of two halves that scrolls a list: its upper or left half back, the other one on. It goes on as
// long as it is held.
class ScrollButton : public SkinButton {
  Q_OBJECT

 public:
  ScrollButton(Qt::Orientation orientation, QWidget* parent);

 signals:
  // -1 back, 1 on.
  void Stepped(int direction);

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  Qt::Orientation orientation_;
  int direction_ = 1;
};

}  // namespace zorik
