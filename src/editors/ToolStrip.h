#pragma once

#include <QWidget>

class QAction;

namespace zorik {

// A small bar beside the picture of the cave: a button for each action, from top to bottom. The one that is
// on has a frame in the colour of what is selected.
class ToolStrip : public QWidget {
 public:
  explicit ToolStrip(QWidget* parent);

  void Add(QAction& action);
  // What follows stands a little apart.
  void AddGap();
};

}  // namespace zorik
