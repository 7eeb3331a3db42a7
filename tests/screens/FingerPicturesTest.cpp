#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace zorik {
namespace {

QImage Shipped(const char* name) {
  const QImage image(QString(ZORIK_BUILT_SKINS "/Default/Menu/") + name + ".bmp");
  EXPECT_FALSE(image.isNull()) << name;
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// So a finger that is lit by its own picture has no other edge than one that is lit in that of the paw.
TEST(FingerPictures, TheLitPlayFingerLaidOverThePawGivesThePawThatHasItLit) {
  QImage paw = Shipped("palm");
  QPainter(&paw).drawImage(0, 0, Shipped("fingerPlay"));
  EXPECT_EQ(paw, Shipped("palmPlay"));
}

}  // namespace
}  // namespace zorik
