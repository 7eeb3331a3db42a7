#pragma once

#include <QImage>
#include <QSize>
#include <QWidget>

namespace zorik {

// The frame in which the cave is seen. It shows a finished picture in one piece.
class Ram : public QWidget {
  Q_OBJECT

 public:
  explicit Ram(QWidget* parent);

  // Its size in pixels of the screen, which on a dense screen are more than the desktop counts.
  QSize PixelSize() const;

  // Puts the picture on the screen at once, a pixel of it on a pixel of the screen. It is not copied: it has
  // to stay where it is, and is shown again as it is then whenever the desktop asks for it.
  void Show(const QImage& picture);

  // The same for a picture that shows already, of which this part, in its pixels, has changed.
  void ShowChanges(const QImage& picture, const QRegion& changed);

  const QImage& Picture() const { return *picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Where the picture stands, in pixels of the screen.
  QRect Place() const;
  QRegion OnWidget(const QRegion& pixels) const;

  const QImage none_;
  const QImage* picture_ = &none_;
  QSize shown_;  // of the picture when it was shown last
};

}  // namespace zorik
