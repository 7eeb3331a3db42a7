#pragma once

#include <QObject>
#include <functional>
#include <vector>

#include "editors/MenuBuilder.h"

class QAction;
class QActionGroup;
class QWidget;

namespace zorik {

class CaveView;
class DrawHand;
class ToolStrip;

// The menus of the tools and of what is done to a part of the cave, and the same tools on the strip.
class DrawMenus : public QObject {
  Q_OBJECT

 public:
  DrawMenus(MenuBuilder& menus, DrawHand& hand, CaveView& view, ToolStrip& strip, QObject* parent);

  // What is part of other menus.
  void AddToCave(QMenu& menu, std::function<void()> resize);
  void AddToView(QMenu& menu);

  // Draws the icons in the colours of a widget.
  void DrawIcons(const QWidget& colours);

 private:
  void MakeTools();
  void MakeSelection();
  void ShowTool();
  void Enable();

  MenuBuilder& menus_;
  DrawHand& hand_;
  CaveView& view_;
  ToolStrip& strip_;
  QActionGroup* tools_ = nullptr;
  QAction* grid_ = nullptr;
  QAction* whole_ = nullptr;
  std::vector<QAction*> withPart_;  // that need something marked or held
  std::vector<QAction*> withSelection_;
};

}  // namespace zorik
