#pragma once

#include <QAbstractButton>
#include <QImage>
#include <vector>

namespace zorik {

// A button of the skin. It has a look when it is left alone, one under the pointer and one when it is
// pressed, and acts when it is let go with the pointer inside.
class LooksButton : public QAbstractButton {
  Q_OBJECT

 protected:
  explicit LooksButton(QWidget* parent);

  // Cuts a picture into so many looks, side by side. One too narrow for that gives none.
  void Cut(const QImage& picture, int count);

  bool HasLooks() const { return !looks_.empty(); }
  QSize FrameSize() const;
  void DrawLook(QPainter& painter, QPoint place, int look) const;

  // The same, stretched between its ends.
  void StretchLook(QPainter& painter, const QRect& place, int look) const;

  // 0 left alone, 1 under the pointer, 2 pressed.
  int State() const;

  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  std::vector<QImage> looks_;
};

// A button that is a picture of three looks. Without one it is a plain button with its text. It never takes
// the focus: windows have keys for what their buttons do.
class SkinButton : public LooksButton {
  Q_OBJECT

 public:
  explicit SkinButton(QWidget* parent);

  void SetPicture(const QImage& picture);

  // Gives it a plate to write its text on; the middle of the picture's looks is stretched to the text's
  // width.
  void SetPlate(const QImage& picture);

  // What it does, in words: shown while the pointer rests on it, read aloud, and its text without a picture.
  void SetWords(const QString& words);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool ShowsText() const { return plate_ || !HasLooks(); }

  bool plate_ = false;
};

// A check box with a caption beside it. Its picture has six looks: off, off under the pointer, off pressed,
// and the same three for on. Space turns it while it has the focus.
class SkinCheck : public LooksButton {
  Q_OBJECT

 public:
  explicit SkinCheck(QWidget* parent);

  void SetPicture(const QImage& picture);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize BoxSize() const;
};

}  // namespace zorik
