// The plates of the game window's bars and what stands on them.
#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "screens/BarButton.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

constexpr QColor kCaption(0xFF, 0xF8, 0xE8);
constexpr double kReadsWell = 4.5;

// The worst that words of the caption's colour read on the middle row of the plate.
double WorstContrast(BarButton& button) {
  const QImage face = button.grab().toImage();
  double worst = 21;
  for (int x = 8; x < face.width() - 8; ++x) {
    worst = std::min(worst, Contrast(face.pixelColor(x, face.height() / 2), kCaption));
  }
  return worst;
}

TEST(BarButton, IsAPlateOnWhichItsCaptionReadsWellFromEndToEnd) {
  BarButton button(nullptr);
  button.resize(150, 38);
  EXPECT_GE(WorstContrast(button), kReadsWell);
}

TEST(BarButton, GlowsRoundItsCaptionWhichReadsWellAllTheWhile) {
  BarButton button(nullptr);
  button.resize(150, 38);
  button.SetCaption(" ");
  button.move(300, 300);  // not under the pointer
  button.show();
  const QImage still = button.grab().toImage();
  const auto rim = [](const QImage& face) { return face.pixelColor(face.width() / 2, 2).green(); };
  button.SetPulse(true);
  double worst = 21;
  EXPECT_TRUE(QTest::qWaitFor([&] {
    worst = std::min(worst, WorstContrast(button));
    return rim(button.grab().toImage()) > rim(still) + 150;
  })) << "it glows so that it is seen";
  EXPECT_TRUE(QTest::qWaitFor([&] { return button.grab().toImage() == still; })) << "it fades in turn";
  EXPECT_GE(worst, kReadsWell);
}

}  // namespace
}  // namespace zorik
