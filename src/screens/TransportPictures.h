#pragma once

#include <QImage>

namespace zorik {

// What a button of the bar below a record, or below two, does.
enum class Transport { Play, Stop, Back, Forward, Slower, Faster, Start, End, Page };

// The picture of such a button, square and large enough to be made smaller on any screen.
QImage TransportPicture(Transport what);

}  // namespace zorik
