#pragma once

#include <QImage>
#include <QString>
#include <QTimer>
#include <QWidget>

class QPainter;

namespace zorik {

// A button of the game window's top bar: a picture, or a plate with a letter. It is brighter under the
// pointer and sinks when it is pressed. It never takes the focus, which belongs to the dog, and acts when it
// is let go with the pointer inside.
class BarButton : public QWidget {
  Q_OBJECT

 public:
  explicit BarButton(QWidget* parent);

  void SetPicture(const QImage& picture);
  // Shown while there is no picture.
  void SetCaption(const QString& caption);
  const QString& Caption() const { return caption_; }
  // A smaller line below the caption: the key that does the same.
  void SetKey(const QString& key);
  const QString& Key() const { return key_; }
  // How wide they are on a button of this height.
  int CaptionWidth(int height) const;

  // It glows and fades in turn, to be found; with a caption its rim does.
  void SetPulse(bool pulses);
  bool Pulses() const { return pulse_.isActive(); }

 signals:
  void Clicked();
  // For what is done as long as the button is held.
  void Pressed();
  void LetGo();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  double Glow() const;
  QImage Face() const;
  void DrawCaption(QPainter& painter) const;
  void End();

  QImage picture_;
  QString caption_;
  QString key_;
  bool held_ = false;
  bool pressed_ = false;  // with the pointer inside
  QTimer pulse_;
  int pulseStep_ = 0;
};

}  // namespace zorik
