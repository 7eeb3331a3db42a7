#pragma once

#include <QImage>
#include <QWidget>

namespace zorik {

// Paints a picture all over a widget, on the colour of what lies around the play picture.
void PaintStretched(QWidget& widget, const QImage& picture);

// A bar that is nothing but a picture, stretched over it.
class PictureBar : public QWidget {
  Q_OBJECT

 public:
  explicit PictureBar(QWidget* parent);

  void SetPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};

}  // namespace zorik
