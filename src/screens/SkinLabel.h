#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <QWidget>

namespace zorik {

// A text of the skin in a box of fixed size. It wraps, and where it finds no room it ends in dots and shows
// all of itself while the pointer rests on it. It can be a link.
class SkinLabel : public QWidget {
  Q_OBJECT

 public:
  explicit SkinLabel(QWidget* parent);

  void SetText(const QString& text);
  const QString& Text() const { return text_; }

  // Letters of this height in logical pixels.
  void SetLook(QColor colour, Qt::Alignment alignment, int letters);
  QColor Colour() const { return hovered_ ? hover_ : colour_; }

  // Makes a link of it, with its colour under the pointer and what is said of it; an invalid colour makes it
  // a plain text again.
  void SetLink(QColor hover, const QString& hint);

  // Said while the pointer rests on it, in place of the text that found no room.
  void SetHint(const QString& hint);

  bool IsLink() const { return hover_.isValid(); }

 signals:
  void LinkClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void LayOut();

  QString text_;
  QString shown_;  // in lines, as much as finds room
  QString hint_;
  QColor colour_;
  QColor hover_;  // valid for a link
  Qt::Alignment alignment_;
  bool hovered_ = false;
};

// A picture of the skin, in its own size and smooth where the desktop magnifies.
class SkinPicture : public QWidget {
 public:
  explicit SkinPicture(QWidget* parent);

  void SetPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};

}  // namespace zorik
