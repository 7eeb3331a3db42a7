#include <gtest/gtest.h>

#include "screens/Tones.h"

namespace zorik {
namespace {

TEST(Tones, CompareColoursAsReadersDo) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 0.01);
  EXPECT_NEAR(Contrast(Qt::red, Qt::white), 3.998, 0.01);
}

TEST(Tones, LetTextBeReadOnEveryGround) {
  for (int red = 0; red < 256; red += 51) {
    for (int green = 0; green < 256; green += 51) {
      for (int blue = 0; blue < 256; blue += 51) {
        const Tones tones = TonesOf(QColor(red, green, blue));
        EXPECT_GE(Contrast(tones.text, tones.ground), 3.9) << red << ' ' << green << ' ' << blue;
        EXPECT_GE(Contrast(tones.mark, tones.ground), 3) << red << ' ' << green << ' ' << blue;
      }
    }
  }
}

TEST(Tones, LetTextBeReadWellOnDarkAndLightGround) {
  for (const QColor ground :
       {QColor(0x28, 0x30, 0x3C), QColor(Qt::black), QColor(Qt::white), QColor("#FFF8E0")}) {
    EXPECT_GE(Contrast(TonesOf(ground).text, ground), 10) << ground.name().toStdString();
  }
}

}  // namespace
}  // namespace zorik
