#pragma once

#include <QWidget>

class QLabel;

namespace zorik {

class DrawHand;
class Skin;

// What the status bar says of the tool that is taken: how it is used, and how large a shape, a selection or a
// part in the hand is. What has no room is cut off.
class ToolWords : public QWidget {
 public:
  ToolWords(Skin& skin, DrawHand& hand, QWidget* parent);

  void Update();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  Skin& skin_;
  DrawHand& hand_;
  QLabel* label_;
};

}  // namespace zorik
