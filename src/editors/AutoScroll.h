#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

class QScrollBar;

namespace zorik {

class EditKom;

// Scrolls the picture of the cave while a stroke of the mouse is held beyond the edge of its view, the faster
// the farther away. The stroke goes on over what comes into view.
class AutoScroll : public QObject {
 public:
  AutoScroll(EditKom& picture, QScrollBar& across, QScrollBar& down, QObject* parent);

  // The pointer has come to a place of the picture.
  void Follow(QPoint position);
  void Stop() { timer_.stop(); }

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  // How far the pointer is beyond the view.
  QPoint Beyond() const;

  EditKom& picture_;
  QScrollBar& across_;
  QScrollBar& down_;
  QPoint pointer_;  // in the view
  QBasicTimer timer_;
};

}  // namespace zorik
