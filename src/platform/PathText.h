#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace zorik {

// Names on the disk are bytes. Most are UTF-8, but old archives leave some that are not, and the toolkit's
// strings cannot hold these: it would drop them from a list, or open another file. So wherever a path goes
// through such a string it goes through these two, and never to the toolkit's own file calls.

// A path as a string that leads back to the same bytes: what is no UTF-8 becomes a character of its own, of
// those that mean nothing alone, for each byte.
QString PathText(std::string_view path);
std::string PathBytes(const QString& text);

// A path for people's eyes: a name that is no UTF-8 is read as Windows-1250, and control characters are left
// out.
QString ShownPath(const QString& text);
QString ShownPath(std::string_view path);

}  // namespace zorik
