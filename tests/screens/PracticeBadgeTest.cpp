#include <gtest/gtest.h>

#include <QImage>
#include <array>

#include "screens/PracticeBadge.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

constexpr QRect kFrame(30, 20, 500, 440);

class ABadge : public testing::Test {
 protected:
  ABadge() {
    parent.resize(600, 500);
    badge.SetText("HHHH");
    badge.PlaceIn(kFrame);
  }

  QImage Seen() {
    QImage seen(badge.size(), QImage::Format_ARGB32);
    seen.fill(Qt::transparent);
    badge.render(&seen, {}, {}, QWidget::RenderFlags());
    return seen;
  }

  // Where two pictures of it differ.
  static QRect Changed(const QImage& one, const QImage& other) {
    QRegion changed;
    for (int y = 0; y < one.height(); ++y) {
      for (int x = 0; x < one.width(); ++x) {
        if (one.pixel(x, y) != other.pixel(x, y)) changed += QRect(x, y, 1, 1);
      }
    }
    return changed.boundingRect();
  }

  // Where its text stands. A blank text of the same width leaves its place free.
  QRect TextPlace() {
    const QString text = badge.Text();
    const QRect place = badge.geometry();
    const QImage seen = Seen();
    badge.SetText({});
    badge.setGeometry(place);
    const QImage bare = Seen();
    badge.SetText(text);
    return Changed(seen, bare);
  }

  // Where this colour is.
  QRect PlaceOf(QColor colour) {
    const QImage seen = Seen();
    QRegion place;
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        if (seen.pixelColor(x, y) == colour) place += QRect(x, y, 1, 1);
      }
    }
    return place.boundingRect();
  }

  QWidget parent;
  test::TestSkin skin;
  PracticeBadge badge{&parent};
};

TEST_F(ABadge, IsHiddenAtFirstAndNothingForMouseAndKeys) {
  EXPECT_TRUE(badge.isHidden());
  EXPECT_TRUE(badge.testAttribute(Qt::WA_TransparentForMouseEvents));
  EXPECT_EQ(badge.focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(badge.objectName(), "practice");
}

TEST_F(ABadge, LiesInTheLowerLeftCornerOfItsFrameAsFarFromBothSides) {
  const QRect place = badge.geometry();
  EXPECT_EQ(place.left() - kFrame.left(), 6);
  EXPECT_EQ(kFrame.bottom() - place.bottom(), 6);
  badge.PlaceIn(kFrame.translated(11, -7));
  EXPECT_EQ(badge.geometry(), place.translated(11, -7));
}

TEST_F(ABadge, IsAsWideAsItsTextWithTheSameRoomOnBothSides) {
  const QRect text = TextPlace();
  EXPECT_NEAR(text.left(), badge.width() - 1 - text.right(), 2);
  EXPECT_NEAR(text.left(), 11, 2);
  EXPECT_NEAR(text.center().y(), badge.height() / 2, 3);
  const int before = badge.width();
  badge.SetText("HHHHHHHH");
  EXPECT_NEAR(badge.width() - 20, 2 * (before - 20), 2) << "a text of twice the letters";
  EXPECT_EQ(badge.Text(), "HHHHHHHH");
}

TEST_F(ABadge, LeavesTheFrameRoomOnTheRightOfALongText) {
  badge.SetText(QString(300, 'H'));
  EXPECT_EQ(kFrame.right() - badge.geometry().right(), badge.geometry().left() - kFrame.left());
}

TEST_F(ABadge, HasSmallerLettersInALowerFrameButNotSmallerThanCanBeRead) {
  const int high = TextPlace().height();
  badge.PlaceIn({0, 0, 500, 330});
  const int low = TextPlace().height();
  EXPECT_LT(low, high);
  badge.PlaceIn({0, 0, 500, 100});
  EXPECT_GT(TextPlace().height(), 5);
  badge.PlaceIn({0, 0, 500, 4000});
  EXPECT_EQ(TextPlace().height(), high) << "nor larger in a high one";
}

TEST_F(ABadge, HasARoundGroundThatIsTheSameOnAllItsSides) {
  badge.SetText({});
  badge.resize(80, 40);
  const QImage seen = Seen();
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 80; ++x) {
      EXPECT_NEAR(qAlpha(seen.pixel(x, y)), qAlpha(seen.pixel(79 - x, y)), 12) << x << ' ' << y;
      EXPECT_NEAR(qAlpha(seen.pixel(x, y)), qAlpha(seen.pixel(x, 39 - y)), 12) << x << ' ' << y;
    }
  }
  EXPECT_EQ(qAlpha(seen.pixel(0, 0)), 0);
  EXPECT_EQ(seen.pixelColor(40, 0), seen.pixelColor(40, 1)) << "a rim of two pixels";
  EXPECT_EQ(qAlpha(seen.pixel(40, 0)), 255);
  EXPECT_NE(seen.pixelColor(40, 1), seen.pixelColor(40, 2));
  EXPECT_GT(seen.pixelColor(40, 1).lightness(), seen.pixelColor(40, 20).lightness() + 80);
  EXPECT_GT(qAlpha(seen.pixel(40, 20)), 200) << "its words read well on any cave";
  EXPECT_LT(qAlpha(seen.pixel(40, 20)), 255) << "which is still seen";
}

TEST_F(ABadge, HasALightInTheColourOfTheProspectWithItsWordsBehindIt) {
  struct Look {
    Prospect prospect;
    QColor colour;
  };
  const std::array<Look, 3> looks{{{Prospect::Known, {0x70, 0xF0, 0x70}},
                                   {Prospect::NoneYet, {0xFF, 0xC8, 0x50}},
                                   {Prospect::Impossible, {0xFF, 0x60, 0x60}}}};
  const int height = badge.height();
  const int bottom = badge.geometry().bottom();
  const QRect text = TextPlace();
  QStringList words;
  for (const Look& look : looks) {
    badge.SetLight(look.prospect, skin.Skin());
    EXPECT_EQ(badge.Light(), look.prospect);
    words.push_back(badge.LightText());
    EXPECT_GT(badge.height(), height + 8) << "a line more";
    EXPECT_EQ(badge.geometry().bottom(), bottom);
    EXPECT_EQ(TextPlace().topLeft(), text.topLeft()) << "the text stays above";
    const QRect light = PlaceOf(look.colour);
    EXPECT_NEAR(light.width(), light.height(), 1) << "a round light";
    EXPECT_GE(light.width(), 5);
    EXPECT_GT(light.top(), text.bottom());
    EXPECT_NEAR(light.left(), text.left(), 3) << "below the first letter";
    EXPECT_LT(light.bottom(), badge.height() - 4);
  }
  words.removeDuplicates();
  EXPECT_EQ(words.size(), 3);
  EXPECT_FALSE(words.contains(""));
  badge.SetLight(std::nullopt, skin.Skin());
  EXPECT_EQ(badge.height(), height);
  EXPECT_EQ(badge.LightText(), "");
}

TEST_F(ABadge, HasRoomForTheWordsOfItsLight) {
  badge.SetText("H");
  badge.SetLight(Prospect::NoneYet, skin.Skin());
  const QRect light = PlaceOf({0xFF, 0xC8, 0x50});
  const QImage seen = Seen();
  const auto written = [&](int x) {
    int bright = 0;
    for (int y = light.top() - 3; y <= light.bottom() + 3; ++y)
      bright += seen.pixelColor(x, y).lightness() > 120 ? 1 : 0;
    return bright > 0;
  };
  int first = light.right() + 2;
  while (first < badge.width() && !written(first)) ++first;
  int last = badge.width() - 4;
  while (last > 0 && !written(last)) --last;
  EXPECT_GT(first, light.right() + 2) << "a gap behind the light";
  EXPECT_LT(first, light.right() + 10);
  EXPECT_NEAR(badge.width() - 1 - last, light.left(), 4) << "as much room behind them as before the light";
}

}  // namespace
}  // namespace zorik
