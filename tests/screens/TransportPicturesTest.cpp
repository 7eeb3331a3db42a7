// The signs on the buttons of the bar below a record: what belongs together looks alike, what goes the other
// way looks the other way.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "screens/TransportPictures.h"

namespace zorik {
namespace {

constexpr std::array kAll{Transport::Play,    Transport::Stop,   Transport::Back,
                          Transport::Forward, Transport::Slower, Transport::Faster,
                          Transport::Start,   Transport::End,    Transport::Page};
constexpr int kEdge = 96;
constexpr QRgb kInk = 0xFF2A1A10;
constexpr double kSame = 0.2;  // of a pixel, at the smooth edges of a shape

// How much of each pixel something covers.
using Cover = std::vector<double>;

std::size_t At(int x, int y) {
  return static_cast<std::size_t>(y * kEdge + x);
}

// Away from the rim.
bool IsInside(int along) {
  return along >= 14 && along < kEdge - 14;
}

// What lies below the signs, which is the same on both sides of its diagonal: at every place at least one of
// them leaves it free.
std::array<int, kEdge * kEdge> Plate() {
  std::array<int, kEdge * kEdge> plate{};
  for (const Transport what : kAll) {
    const QImage picture = TransportPicture(what);
    for (int y = 0; y < kEdge; ++y) {
      for (int x = 0; x < kEdge; ++x) {
        const int red = picture.pixelColor(x, y).red();
        plate[At(x, y)] = std::max(plate[At(x, y)], red);
        if (IsInside(x) && IsInside(y)) plate[At(y, x)] = std::max(plate[At(y, x)], red);
      }
    }
  }
  return plate;
}

Cover SignOf(Transport what) {
  static const auto kPlate = Plate();
  const QImage picture = TransportPicture(what);
  Cover cover(kPlate.size());
  for (int y = 0; y < kEdge; ++y) {
    for (int x = 0; x < kEdge; ++x) {
      const int room = kPlate[At(x, y)] - qRed(kInk);
      if (room > 20) cover[At(x, y)] = (kPlate[At(x, y)] - picture.pixelColor(x, y).red()) / double(room);
    }
  }
  return cover;
}

Cover OpacityOf(const QImage& picture) {
  Cover cover(kEdge * kEdge);
  for (int y = 0; y < kEdge; ++y) {
    for (int x = 0; x < kEdge; ++x) cover[At(x, y)] = picture.pixelColor(x, y).alphaF();
  }
  return cover;
}

template <class Place>
Cover Turned(const Cover& cover, Place place) {
  Cover turned(cover.size());
  for (int y = 0; y < kEdge; ++y) {
    for (int x = 0; x < kEdge; ++x) turned[At(x, y)] = cover[place(x, y)];
  }
  return turned;
}

Cover LeftToRight(const Cover& cover) {
  return Turned(cover, [](int x, int y) { return At(kEdge - 1 - x, y); });
}

Cover UpsideDown(const Cover& cover) {
  return Turned(cover, [](int x, int y) { return At(x, kEdge - 1 - y); });
}

Cover OnItsSide(const Cover& cover) {
  return Turned(cover, [](int x, int y) { return At(y, x); });
}

double Difference(const Cover& one, const Cover& other) {
  double most = 0;
  for (std::size_t i = 0; i < one.size(); ++i) most = std::max(most, std::abs(one[i] - other[i]));
  return most;
}

Cover Without(Cover one, const Cover& other) {
  for (std::size_t i = 0; i < one.size(); ++i) one[i] -= other[i];
  return one;
}

// What of it lies in these columns and rows.
Cover Part(const Cover& cover, int left, int top, int right, int bottom) {
  Cover part(cover.size());
  for (int y = top; y < bottom; ++y) {
    for (int x = left; x < right; ++x) part[At(x, y)] = cover[At(x, y)];
  }
  return part;
}

double AreaOf(const Cover& cover) {
  double area = 0;
  for (const double part : cover) area += part;
  return area;
}

// The first and the last row that a shape is in.
std::pair<int, int> RowsOf(const Cover& cover) {
  std::pair<int, int> rows{kEdge, -1};
  for (int y = 0; y < kEdge; ++y) {
    for (int x = 0; x < kEdge; ++x) {
      if (cover[At(x, y)] < 0.5) continue;
      rows = {std::min(rows.first, y), std::max(rows.second, y)};
    }
  }
  return rows;
}

TEST(TransportPictures, LieOnOnePlateThatIsTheSameOnAllItsSides) {
  const Cover plate = OpacityOf(TransportPicture(Transport::Play));
  EXPECT_LT(Difference(plate, LeftToRight(plate)), 0.05);
  EXPECT_LT(Difference(plate, UpsideDown(plate)), 0.05);
  EXPECT_LT(Difference(plate, OnItsSide(plate)), 0.05);
  for (const Transport what : kAll) EXPECT_EQ(OpacityOf(TransportPicture(what)), plate);
  EXPECT_EQ(plate[At(0, 0)], 0) << "round corners";
  EXPECT_EQ(plate[At(0, kEdge / 2)], 0) << "and a rim that is not cut off";
  EXPECT_EQ(plate[At(1, kEdge / 2)], 1);
}

TEST(TransportPictures, AreOfOneInkWithTheirRim) {
  for (const Transport what : kAll) {
    const QImage picture = TransportPicture(what);
    for (const int along : {1, 3, 6}) EXPECT_EQ(picture.pixel(along, kEdge / 2), kInk) << along;
    EXPECT_NE(picture.pixel(7, kEdge / 2), kInk) << "the rim has six pixels";
  }
  EXPECT_EQ(TransportPicture(Transport::Play).pixel(40, 48), kInk);
  EXPECT_EQ(TransportPicture(Transport::Stop).pixel(34, 48), kInk);
}

TEST(TransportPictures, AreLitFromTheirUpperLeftCorner) {
  const QImage picture = TransportPicture(Transport::Slower);
  for (int along = 14; along < 40; ++along) {
    EXPECT_GE(picture.pixelColor(along, along).lightness(),
              picture.pixelColor(along + 1, along + 1).lightness());
    EXPECT_EQ(picture.pixel(along, 20), picture.pixel(20, along)) << along;
  }
  EXPECT_GT(picture.pixelColor(14, 14).lightness(), picture.pixelColor(81, 81).lightness() + 40);
}

TEST(TransportPictures, MirrorEachOtherWhereTheyGoTheOtherWay) {
  EXPECT_LT(Difference(SignOf(Transport::Back), LeftToRight(SignOf(Transport::Forward))), kSame);
  EXPECT_LT(Difference(SignOf(Transport::Start), LeftToRight(SignOf(Transport::End))), kSame);
  EXPECT_GT(Difference(SignOf(Transport::Back), SignOf(Transport::Forward)), 0.9);
  EXPECT_GT(Difference(SignOf(Transport::Start), SignOf(Transport::End)), 0.9);
}

TEST(TransportPictures, StandInTheMiddle) {
  for (const Transport what : kAll) {
    const Cover sign = SignOf(what);
    if (what != Transport::Page) {
      EXPECT_LT(Difference(sign, UpsideDown(sign)), kSame);
    }
    EXPECT_EQ(AreaOf(sign), AreaOf(Part(sign, 14, 14, 82, 82))) << "away from the rim";
  }
  for (const Transport what : {Transport::Stop, Transport::Slower, Transport::Faster}) {
    const Cover sign = SignOf(what);
    EXPECT_LT(Difference(sign, LeftToRight(sign)), kSame);
  }
  const auto [top, bottom] = RowsOf(SignOf(Transport::Page));
  EXPECT_EQ(top, kEdge - 1 - bottom);
}

TEST(TransportPictures, BuildOneSignFromTheOther) {
  const Cover bar = Without(SignOf(Transport::Forward), SignOf(Transport::Play));
  EXPECT_EQ(*std::min_element(bar.begin(), bar.end()), 0) << "a step is the arrow of play";
  EXPECT_LT(Difference(bar, Part(bar, 14, 14, 28, 82)), kSame) << "with a bar behind it";
  EXPECT_EQ(RowsOf(bar), RowsOf(SignOf(Transport::Stop)));
  EXPECT_EQ(RowsOf(Part(SignOf(Transport::End), 69, 0, kEdge, kEdge)), RowsOf(bar));
  const Cover upright = Without(SignOf(Transport::Faster), SignOf(Transport::Slower));
  EXPECT_EQ(*std::min_element(upright.begin(), upright.end()), 0) << "a plus has the minus in it";
  EXPECT_LT(Difference(SignOf(Transport::Faster), OnItsSide(SignOf(Transport::Faster))), kSame);
}

// A window with a title, in which there is the sign of play.
TEST(TransportPictures, ShowThePageAsAWindowInWhichItPlays) {
  const Cover page = SignOf(Transport::Page);
  const Cover arrow = Part(page, 30, 34, 68, 68);
  const Cover window = Without(page, arrow);
  EXPECT_LT(Difference(window, LeftToRight(window)), kSame);
  EXPECT_NEAR(AreaOf(arrow) * 4, AreaOf(SignOf(Transport::Play)), 12) << "half as large as the other";
  const auto [top, bottom] = RowsOf(window);
  for (int y = top; y <= bottom; ++y)
    EXPECT_NEAR(window[At(20, y)], 1, kSame) << "its side is closed at " << y;
  const auto free = [&](int y) { return window[At(48, y)] < 0.5; };
  int first = top, last = bottom;
  while (!free(first)) ++first;
  while (!free(last)) --last;
  EXPECT_GT(first - top, bottom - last) << "the title is the thickest part of the frame";
  for (int y = first; y <= last; ++y) {
    for (int x = 30; x < 68; ++x)
      EXPECT_NEAR(arrow[At(x, y)], arrow[At(x, first + last - y)], kSame) << "in its middle";
  }
}

}  // namespace
}  // namespace zorik
