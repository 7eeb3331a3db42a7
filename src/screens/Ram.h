#pragma once

#include <QImage>
#include <QRect>
#include <QSize>
#include <QWidget>

namespace zorik {

// Where the play picture lies in the game window.
struct PlayLayout {
  int cellSize = 0;  // pixels of the screen for a cell
  QRect ram;
};

// The largest cells of whole pixels with which 19.5 x 11.5 of them fit; the picture is centred.
PlayLayout LayOut(QSize window);

// The frame in which the cave is seen. It shows a finished picture in one piece.
class Ram : public QWidget {
  Q_OBJECT

 public:
  explicit Ram(QWidget* parent);

  // Its size in pixels of the screen, which on a dense screen are more than the desktop counts.
  QSize PixelSize() const;

  // Puts the picture on the screen at once.
  void Show(QImage picture);

  const QImage& Picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};

}  // namespace zorik
