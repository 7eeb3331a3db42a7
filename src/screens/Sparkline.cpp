#include "screens/Sparkline.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace zorik {
namespace {

constexpr int kWidest = 8;  // of a bar and the gap behind it

}  // namespace

QImage Sparkline(std::span<const int> numbers, QSize size, QColor colour, QColor quiet, qreal ratio) {
  const int count = std::max(1, static_cast<int>(numbers.size()));
  const int step = std::clamp(size.width() / count, 1, kWidest);
  const QSize room(std::max(size.width(), count), size.height());
  QImage picture(room * ratio, QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  const int most = numbers.empty() ? 0 : *std::max_element(numbers.begin(), numbers.end());
  QPainter painter(&picture);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool bar = numbers[i] > 0;
    const int height =
        bar ? std::max(2, static_cast<int>(std::lround(1.0 * numbers[i] / most * room.height()))) : 1;
    painter.fillRect(static_cast<int>(i) * step, room.height() - height, step > 2 ? step - 1 : step, height,
                     bar ? colour : quiet);
  }
  return picture;
}

}  // namespace zorik
