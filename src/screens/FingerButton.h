#pragma once

#include <QAbstractButton>
#include <QImage>

namespace zorik {

// One of the choices of the start screen: a lit finger that is laid over the window's picture. It reaches as
// far as it is drawn. Of those with one parent, one is chosen.
class FingerButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit FingerButton(QWidget* parent);

  // The picture is as large as the window; nothing but the finger is drawn on it.
  void SetOverlay(const QImage& overlay);

  void SetWords(const QString& words);

  // Whether the window's own picture shows the finger lit while it is chosen.
  void SetLitBelow(bool lit);

 signals:
  void Opened();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QImage finger_;
  bool litBelow_ = false;
};

}  // namespace zorik
