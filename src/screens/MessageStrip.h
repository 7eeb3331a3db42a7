#pragma once

#include <QColor>
#include <QString>
#include <QTimer>
#include <QWidget>

#include "screens/ShowText.h"

namespace zorik {

// The strip of text over the play picture. It hides three seconds after it came; a message that replaces
// another does not start these anew. A text that is too long for one line has several.
class MessageStrip : public QWidget {
  Q_OBJECT

 public:
  explicit MessageStrip(QWidget* parent);

  void ShowMessage(const QString& text, QColor colour);
  // Nothing is shown any more, and the next message has its three seconds.
  void Clear();
  // A message that stays until it is cleared or replaced; an empty one clears what is there.
  void ShowNotice(const QString& text, QColor colour);
  // How far below its parent's top the strip lies.
  void SetTop(int top);
  // Puts the strip in the middle of its parent's width, in which it finds room.
  void Centre();

  const QString& Text() const { return text_; }
  const WrappedText& Lines() const { return lines_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  WrappedText lines_;
  int top_ = 0;
  QColor colour_;
  QTimer tmrMsg_;
};

}  // namespace zorik
