#pragma once

#include <QStringList>
#include <cstddef>
#include <optional>

class QPoint;
class QWidget;

namespace zorik {

class Skin;

// Lets the player choose one of some lines from a menu, at this place of the screen; nothing when he does
// not. One of them may be marked as what holds by now.
std::optional<std::size_t> ChooseFromMenu(const Skin& skin, QWidget& window, const char* name,
                                          const QStringList& lines, std::optional<std::size_t> marked,
                                          const QPoint& at);

}  // namespace zorik
