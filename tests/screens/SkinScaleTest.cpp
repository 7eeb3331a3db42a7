#include <gtest/gtest.h>

#include <algorithm>

#include "screens/SkinScale.h"

namespace zorik {
namespace {

// How many marks stand side by side in one row of a picture.
int MarksIn(const QImage& image, int row) {
  const QRgb ground = image.pixel(0, 0);
  int marks = 0;
  for (int x = 1; x < image.width(); ++x) {
    if (image.pixel(x, row) != ground && image.pixel(x - 1, row) == ground) ++marks;
  }
  return marks;
}

TEST(SkinScale, HasANotchForEachOfItsValues) {
  for (const int most : {5, 9, 10}) {
    for (const int value : {1, most}) {
      SkinScale scale(1, most, nullptr);
      scale.resize(scale.sizeHint());
      scale.setValue(value);
      const QImage image = scale.grab().toImage();
      int notches = 0;
      for (int y = image.height() / 2; y < image.height(); ++y)
        notches = std::max(notches, MarksIn(image, y));
      EXPECT_EQ(notches, most) << "at " << value;
    }
  }
}

}  // namespace
}  // namespace zorik
