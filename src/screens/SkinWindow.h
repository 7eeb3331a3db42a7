#pragma once

#include <QColor>
#include <QDialog>
#include <QImage>
#include <QPoint>
#include <QWidget>

class QMouseEvent;
class QPainter;

namespace zorik {

// The colour of a window whose skin names none.
inline constexpr QColor kPlainGround(0x28, 0x30, 0x3C);

// What makes a window one of the skin's: it has no frame, looks and is shaped like a picture, and is dragged
// by what lies bare of it. Sizes are in logical pixels; a picture is drawn smoothly where the desktop
// magnifies.
class SkinSurface : public QObject {
  Q_OBJECT

 public:
  // Takes the frame off the window, which owns the surface then.
  explicit SkinSurface(QWidget* window);

  // Makes the window look like the picture and as large. What has the colour of its first pixel is outside.
  // Without a picture the window is painted in one colour.
  void SetPicture(const QImage& picture);

  // Lays another picture over the window's own; the window keeps its shape and size.
  void LayOver(const QImage& picture);

  // Paints the window in one colour, with a thin border and round corners, in the size that it has.
  void SetColour(QColor colour);

  // Gives the window its shape anew, when its buttons have been placed: one that a skin has placed outside of
  // the picture is seen all the same. A window that is not seen gets its shape when it is.
  void Shape();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Draw(QPainter& painter) const;
  void Drag(const QMouseEvent& event);

  QWidget* window_;
  QImage picture_;
  QColor colour_ = kPlainGround;
  QPoint grip_;  // where the pointer holds the window
  enum class Hold { None, Pressed, Dragged } hold_ = Hold::None;
};

// A skinned window.
class SkinWindow : public QWidget {
  Q_OBJECT

 public:
  explicit SkinWindow(QWidget* parent = nullptr);

 protected:
  SkinSurface& Surface() { return *surface_; }

 private:
  SkinSurface* surface_;
};

// A skinned dialog. It opens in the middle of its parent, within the screen, and stays there until it is
// dragged. Enter and Esc, and closing the window, which is Esc, are for the derived class to act on.
class SkinDialog : public QDialog {
  Q_OBJECT

 public:
  explicit SkinDialog(QWidget* parent);

  void setVisible(bool visible) override;
  void reject() override { OnEsc(); }

 protected:
  virtual void OnEnter() = 0;
  virtual void OnEsc() = 0;

  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  SkinSurface& Surface() { return *surface_; }

 private:
  void Centre();

  SkinSurface* surface_;
  QPoint centred_;
};

}  // namespace zorik
