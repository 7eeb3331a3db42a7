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

TEST(Tones, HaveAGoldenMarkWhereverThatIsSeen) {
  const QColor gold(0xF0, 0xB0, 0x40);
  int golden = 0;
  for (int grey = 0; grey < 256; ++grey) {
    const QColor ground(grey, grey, grey);
    const Tones tones = TonesOf(ground);
    EXPECT_EQ(tones.mark, Contrast(gold, ground) >= 3 ? gold : tones.text) << grey;
    golden += tones.mark == gold ? 1 : 0;
  }
  EXPECT_GT(golden, 90) << "up to a grey of a third of white's strength";
}

}  // namespace
}  // namespace zorik
