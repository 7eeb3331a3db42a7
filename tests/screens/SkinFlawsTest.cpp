#include <gtest/gtest.h>

#include "screens/DialogScript.h"
#include "screens/SkinFlaws.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

// What is told of so many keys that say nothing.
QString Told(int keys) {
  SkinFlaws flaws;
  for (int i = 1; i <= keys; ++i)
    flaws.push_back(
        {SkinFlaw::Kind::NotUnderstood, "key" + std::to_string(i) + ".left", "/skins/skindata.txt"});
  Skin skin;
  QString told;
  const test::DialogScript script = {[&told](QWidget& box) {
    told = box.findChild<QLabel*>("lblText")->text();
    QTest::keyClick(&box, Qt::Key_Return);
  }};
  TellFlaws(skin, nullptr, flaws);
  return told;
}

TEST(SkinFlaws, OfOneKindAreNamedUpToFive) {
  for (const int keys : {1, 4, 5}) {
    EXPECT_EQ(Told(keys).count(".left"), keys);
    EXPECT_FALSE(Told(keys).contains(QChar(0x2026))) << keys;
  }
  for (const int keys : {6, 7, 100}) {
    EXPECT_EQ(Told(keys).count(".left"), 5);
    EXPECT_TRUE(Told(keys).contains(QChar(0x2026))) << keys;
  }
}

TEST(SkinFlaws, AreToldWithTheirFile) {
  for (const int keys : {1, 6}) EXPECT_EQ(Told(keys).count("skindata.txt"), 1) << keys;
}

TEST(SkinFlaws, AreNotToldWhereThereIsNone) {
  Skin skin;
  const test::DialogScript nothing = {};
  TellFlaws(skin, nullptr, {});
}

}  // namespace
}  // namespace zorik
