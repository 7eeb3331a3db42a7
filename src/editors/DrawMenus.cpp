#include "editors/DrawMenus.h"

#include <QActionGroup>
#include <QMenu>
#include <QWidget>
#include <array>

#include "editors/CaveView.h"
#include "editors/DrawHand.h"
#include "editors/ToolIcons.h"
#include "editors/ToolStrip.h"

namespace zorik {
namespace {

struct TurnRow {
  CaveTurn turn;
  const char* name;
  const char* caption;
  const char* key;
};
constexpr std::array<TurnRow, 4> kTurns{{
    {CaveTurn::MirrorAside, "mnuMirrorAside", "caption.main.mirror.aside", "M"},
    {CaveTurn::MirrorUpright, "mnuMirrorUpright", "caption.main.mirror.upright", "Shift+M"},
    {CaveTurn::Right, "mnuTurnRight", "caption.main.turn.right", "T"},
    {CaveTurn::Left, "mnuTurnLeft", "caption.main.turn.left", "Shift+T"},
}};

// The arrow shows where the rest of the cave goes.
struct LineRow {
  DrawHand::Line line;
  const char* name;
  const char* caption;
  const char* key;
};
constexpr std::array<LineRow, 4> kLines{{
    {DrawHand::Line::InsertRow, "mnuInsertRow", "caption.main.row.insert", "Ctrl+Shift+Down"},
    {DrawHand::Line::DeleteRow, "mnuDeleteRow", "caption.main.row.delete", "Ctrl+Shift+Up"},
    {DrawHand::Line::InsertColumn, "mnuInsertColumn", "caption.main.column.insert", "Ctrl+Shift+Right"},
    {DrawHand::Line::DeleteColumn, "mnuDeleteColumn", "caption.main.column.delete", "Ctrl+Shift+Left"},
}};

}  // namespace

DrawMenus::DrawMenus(MenuBuilder& menus, DrawHand& hand, CaveView& view, ToolStrip& strip, QObject* parent)
    : QObject(parent), menus_(menus), hand_(hand), view_(view), strip_(strip) {
  MakeTools();
  MakeSelection();
  connect(&hand, &DrawHand::ToolChanged, this, &DrawMenus::ShowTool);
  connect(&hand, &DrawHand::ShapeChanged, this, &DrawMenus::Enable);
  ShowTool();
  Enable();
}

void DrawMenus::MakeTools() {
  QMenu& menu = *menus_.AddMenu("mnuDraw", "caption.main.menu.draw");
  tools_ = new QActionGroup(this);
  for (const DrawToolRow& row : kDrawToolRows) {
    QAction* const action =
        menus_.Add(menu, row.name, row.caption, row.key, [this, &row] { hand_.SetTool(row.tool); });
    action->setCheckable(true);
    tools_->addAction(action);
    strip_.Add(*action);
  }
}

void DrawMenus::MakeSelection() {
  SelectHand& part = hand_.Selection();
  QMenu& menu = *menus_.AddMenu("mnuSelection", "caption.main.select");
  menus_.Add(menu, "mnuSelectAll", "caption.main.selectall", "Ctrl+A", [&part] { part.SelectAll(); });
  menu.addSeparator();
  withSelection_.push_back(menus_.Add(menu, "mnuCut", "caption.main.cut", "Ctrl+X", [&part] { part.Cut(); }));
  withSelection_.push_back(
      menus_.Add(menu, "mnuCopy", "caption.main.copy", "Ctrl+C", [&part] { part.Copy(); }));
  menus_.Add(menu, "mnuPaste", "caption.main.paste", "Ctrl+V", [&part] { part.Paste(); });
  withPart_.push_back(menus_.Add(menu, "mnuClear", "caption.main.clear", "Del", [&part] { part.Clear(); }));
  menu.addSeparator();
  for (const TurnRow& row : kTurns) {
    withPart_.push_back(
        menus_.Add(menu, row.name, row.caption, row.key, [&part, &row] { part.Turn(row.turn); }));
  }
}

void DrawMenus::AddToCave(QMenu& menu, std::function<void()> resize) {
  menu.addSeparator();
  for (const LineRow& row : kLines) {
    menus_.Add(menu, row.name, row.caption, row.key, [this, &row] { hand_.ChangeLine(row.line); });
  }
  menus_.Add(menu, "mnuResize", "caption.main.resize", "Ctrl+R", std::move(resize));
}

void DrawMenus::AddToView(QMenu& menu) {
  whole_ = menus_.Add(menu, "mnuWhole", "caption.main.whole", "W", [this] { view_.ZoomToWhole(); });
  menu.addSeparator();
  grid_ =
      menus_.Add(menu, "mnuGrid", "caption.main.grid", "G", [this] { view_.SetGrid(grid_->isChecked()); });
  grid_->setCheckable(true);
  grid_->setChecked(view_.HasGrid());
  strip_.AddGap();
  strip_.Add(*grid_);
  strip_.Add(*whole_);
}

void DrawMenus::ShowTool() {
  tools_->actions()[static_cast<int>(hand_.Tool())]->setChecked(true);
}

void DrawMenus::DrawIcons(const QWidget& colours) {
  const QColor line = colours.palette().color(QPalette::ButtonText);
  const QColor fill = colours.palette().color(QPalette::Highlight);
  for (const DrawToolRow& row : kDrawToolRows) {
    tools_->actions()[static_cast<int>(row.tool)]->setIcon(IconOf(row.tool, line, fill));
  }
  grid_->setIcon(GridIcon(line));
  whole_->setIcon(WholeIcon(line));
}

void DrawMenus::Enable() {
  const SelectHand& part = hand_.Selection();
  for (QAction* const action : withPart_) action->setEnabled(part.HasSelection() || part.Holds());
  for (QAction* const action : withSelection_) action->setEnabled(part.HasSelection() && !part.Holds());
}

}  // namespace zorik
