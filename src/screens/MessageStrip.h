#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace zorik {

// The first font of the game's list that this desktop has.
QFont GameFont(int pixelSize);

// The strip of text over the play picture. It hides three seconds after it came; a message that replaces
// another does not start these anew.
class MessageStrip : public QWidget {
  Q_OBJECT

 public:
  explicit MessageStrip(QWidget* parent);

  void ShowMessage(const QString& text, QColor colour);
  // Puts the strip in the middle of its parent's width.
  void Centre();

  const QString& Text() const { return text_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  QColor colour_;
  QTimer tmrMsg_;
};

}  // namespace zorik
