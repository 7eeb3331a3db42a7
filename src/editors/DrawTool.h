#pragma once

#include <array>
#include <cstddef>

namespace zorik {

// What the mouse or the keys do with an object in the picture of the cave.
enum class DrawTool { Pencil, Line, Frame, Box, Fill, Select };
inline constexpr std::size_t kDrawTools = 6;

// A tool: its item's name, its caption, what the status bar says of its use, and its key.
struct DrawToolRow {
  DrawTool tool;
  const char* name;
  const char* caption;
  const char* words;
  const char* key;
};
inline constexpr std::array<DrawToolRow, kDrawTools> kDrawToolRows{{
    {DrawTool::Pencil, "mnuPencil", "caption.main.pencil", "caption.main.pencil.use", "P"},
    {DrawTool::Line, "mnuLine", "caption.main.line", "caption.main.line.use", "L"},
    {DrawTool::Frame, "mnuRectangle", "caption.main.rectangle", "caption.main.rectangle.use", "R"},
    {DrawTool::Box, "mnuBox", "caption.main.box", "caption.main.box.use", "B"},
    {DrawTool::Fill, "mnuFill", "caption.main.fill", "caption.main.fill.use", "F"},
    {DrawTool::Select, "mnuSelect", "caption.main.select", "caption.main.select.use", "S"},
}};

inline const DrawToolRow& RowOf(DrawTool tool) {
  return kDrawToolRows[static_cast<std::size_t>(tool)];
}

}  // namespace zorik
