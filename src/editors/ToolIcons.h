#pragma once

#include <QColor>
#include <QIcon>

#include "editors/DrawTool.h"

namespace zorik {

// The pictures of the tools, in lines of a colour; the second colour fills.
QIcon IconOf(DrawTool tool, const QColor& line, const QColor& fill);
QIcon GridIcon(const QColor& line);
QIcon WholeIcon(const QColor& line);

}  // namespace zorik
