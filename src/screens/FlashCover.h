#pragma once

#include <QWidget>

namespace zorik {

// The flash with which the finish opens: it covers its window for one picture of the screen.
class FlashCover : public QWidget {
  Q_OBJECT

 public:
  explicit FlashCover(QWidget* window);

  void ShowOnce();

  // The window has another size.
  void Fit();
};

}  // namespace zorik
