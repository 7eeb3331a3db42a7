// Where the parts of a message box stand to each other.
#include <gtest/gtest.h>

#include <QLabel>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "screens/MsgBox.h"
#include "screens/SkinButton.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

constexpr int kMargin = 16;
constexpr int kGap = 12;

// A box with an icon of this size.
class MsgBoxPlaces : public testing::TestWithParam<QSize> {
 protected:
  MsgBoxPlaces() {
    skin.Data("dialog:\ncolor=28303C\nyes.image=yes\nno.image=no\n");
    skin.Picture("yes", test::Strips(test::kLooks, {80, 32}));
    skin.Picture("no", test::Strips(test::kLooks, {60, 20}));
    skin.Picture("iQuestion", test::Strips({Qt::green}, GetParam()));
    skin.Apply();
  }

  void Look(const QString& text, const std::function<void()>& look, MsgIcon icon = MsgIcon::OfSet,
            const QString& title = "Zorík") {
    const test::InDialog inside([&](QWidget& box) {
      size = box.size();
      const auto place = [&](const char* name) { return box.findChild<QWidget*>(name)->geometry(); };
      head = place("lblTitle");
      words = place("lblText");
      sign = place("imgIcon");
      signShown = box.findChild<QWidget*>("imgIcon")->isVisible();
      yes = place("yes");
      no = place("no");
      look();
    });
    SkinMsgBox(skin.Skin(), nullptr, text, MsgButtons::YesNo, icon, title);
    EXPECT_TRUE(inside.Opened());
  }

  test::TestSkin skin;
  QSize size;
  QRect head, words, sign, yes, no;
  bool signShown = false;
};

TEST_P(MsgBoxPlaces, StandBelowEachOtherWithTheSameGaps) {
  for (const QString& text : {QString("Ano?"), QString("Ano?\nAno?\nAno?\nAno?\nAno?\nAno?\nAno?\nAno?")}) {
    Look(text, [&] {
      EXPECT_TRUE(signShown);
      EXPECT_EQ(sign.size(), GetParam());
      EXPECT_EQ(sign.left(), 12);
      EXPECT_EQ(head.top(), kMargin);
      EXPECT_LE(std::abs(head.left() - (size.width() - head.left() - head.width())), 1);
      const int top = std::min(words.top(), sign.top());
      const int bottom = std::max(words.top() + words.height(), sign.top() + sign.height());
      EXPECT_EQ(top, head.top() + head.height() + kGap);
      EXPECT_EQ(yes.top(), bottom + kGap);
      EXPECT_EQ(no.top(), yes.top());
      EXPECT_EQ(size.height(), yes.top() + yes.height() + kMargin);
      EXPECT_LE(std::abs(words.top() * 2 + words.height() - sign.top() * 2 - sign.height()), 1)
          << "icon and text have one middle";
      EXPECT_EQ(no.left(), yes.left() + yes.width() + kGap);
      EXPECT_LE(std::abs(yes.left() - (size.width() - no.left() - no.width())), 1);
    });
  }
}

TEST_P(MsgBoxPlaces, AreAsWideAsTheWidestOfThem) {
  const QString wide("Slova, která jsou širší než tlačítka pod nimi");
  Look(wide, [&] {
    EXPECT_EQ(words.left(), sign.left() + sign.width() + kGap);
    EXPECT_EQ(size.width(), words.left() + words.width() + kMargin);
  });
  Look("?", [&] {
    const int left = std::max(kMargin, sign.left() + sign.width() + kGap);
    EXPECT_NEAR(words.left() - left, size.width() - kMargin - words.left() - words.width(), 1)
        << "a short text stands in the middle of its room";
  });
  Look(
      "?", [&] { EXPECT_EQ(size.width(), head.width() + 2 * kMargin); }, MsgIcon::OfSet,
      "Nadpis, který je širší než tlačítka i text pod ním");
}

TEST_P(MsgBoxPlaces, LeaveNoRoomForAnIconThatIsNotThere) {
  Look(
      "Slova, která jsou širší než tlačítka pod nimi",
      [&] {
        EXPECT_FALSE(signShown);
        EXPECT_EQ(words.left(), kMargin);
        EXPECT_EQ(size.width(), words.width() + 2 * kMargin);
        EXPECT_EQ(words.top(), head.top() + head.height() + kGap);
      },
      MsgIcon::None);
}

INSTANTIATE_TEST_SUITE_P(Icons, MsgBoxPlaces,
                         testing::Values(QSize(32, 32), QSize(50, 90), QSize(9, 5), QSize(130, 130)));

}  // namespace
}  // namespace zorik
