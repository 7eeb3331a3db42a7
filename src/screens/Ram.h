#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>
#include <QWidget>

#include "skin/Overlay.h"
#include "skin/PartPainter.h"

namespace zorik {

// The frame in which the cave is seen.
class Ram : public QWidget {
  Q_OBJECT

 public:
  explicit Ram(QWidget* parent);

  // Its size in pixels of the screen, which on a dense screen are more than the desktop counts.
  QSize PixelSize() const;

  // Puts the picture on the screen at once, a pixel of it on a pixel of the screen. It has to stay where it
  // is, and is painted again as it is then whenever the desktop asks for it.
  void Show(PartPainter& picture);

  // The same for a picture that shows already, of which this part, in its pixels, has changed.
  void ShowChanges(PartPainter& picture, const QRegion& changed);

  // Lays something over the pictures that are shown from now on, in place of what lay there.
  void SetOverlay(LaidOverlay overlay);

  // A copy of the picture that it shows.
  QImage Picture() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Where the picture stands, in pixels of the screen.
  QRect Place() const;
  QRegion OnWidget(const QRegion& pixels) const;
  const QImage& Copy();

  PartPainter* picture_ = nullptr;
  QSize shown_;  // of the picture when it was shown last
  QImage copy_;  // of the picture, for want of the pixels of the screen; empty unless it was wanted
  QRegion due_;  // what has changed since it was made
  LaidOverlay overlay_;
  QRegion overlaid_;  // changes with the next picture, since something was laid over it or taken away
};

}  // namespace zorik
