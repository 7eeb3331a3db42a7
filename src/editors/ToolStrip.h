#pragma once

#include <QWidget>
#include <vector>

class QAction;

namespace zorik {

// A small bar beside the picture of the cave: a button for each action, from top to bottom. The one that is
// on has a frame in the colour of what is selected. In a low window they stand in two columns.
class ToolStrip : public QWidget {
 public:
  explicit ToolStrip(QWidget* parent);

  void Add(QAction& action);
  // What follows stands a little apart.
  void AddGap();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  // The buttons change their size with the style and its letters.
  void changeEvent(QEvent* event) override;

 private:
  // The size of all buttons in so many columns, which are given their places if they are to be moved.
  QSize Arrange(int columns, bool move) const;
  void Arrange();

  std::vector<std::vector<QWidget*>> groups_{1};  // with a gap between one and the next
};

}  // namespace zorik
