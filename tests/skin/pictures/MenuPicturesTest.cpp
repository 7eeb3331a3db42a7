#include <gtest/gtest.h>

#include <QImage>
#include <array>
#include <string>
#include <vector>

namespace zorik {
namespace {

struct Picture {
  const char* name;
  int width;
  int height;
};

constexpr std::array kFingers{"fingerPlay", "fingerRePlay", "fingerEditor", "finger4"};
constexpr std::array kWindows{"palm", "palmPlay", "select", "score", "gratulation", "newplayer", "working"};

constexpr Picture kButtons[] = {
    {"play", 288, 40},     {"addplayer", 96, 32},  {"changeskin", 96, 32}, {"close", 96, 32},
    {"help", 96, 32},      {"vscroll", 60, 48},    {"hscroll", 144, 20},   {"replay", 216, 40},
    {"playcave", 216, 40}, {"congrat", 216, 40},   {"send", 216, 40},      {"ok", 240, 32},
    {"yes", 240, 32},      {"no", 240, 32},        {"cancel", 240, 32},    {"retry", 240, 32},
    {"plate", 240, 32},    {"plateback", 240, 32}, {"practice", 96, 32},
};

constexpr Picture kOthers[] = {
    {"palm", 720, 520},         {"palmPlay", 720, 520},     {"fingerPlay", 720, 520},
    {"fingerRePlay", 720, 520}, {"fingerEditor", 720, 520}, {"finger4", 720, 520},
    {"select", 760, 540},       {"score", 520, 220},        {"gratulation", 520, 360},
    {"newplayer", 360, 160},    {"working", 200, 38},       {"bonus", 64, 64},
    {"checks", 120, 20},        {"iInformation", 32, 32},   {"iQuestion", 32, 32},
    {"iExclamation", 32, 32},   {"iCritical", 32, 32},
};

QImage Read(const std::string& name) {
  const QImage image(QString::fromStdString(ZORIK_SKINS "/Default/Menu/" + name + ".bmp"));
  EXPECT_FALSE(image.isNull()) << name;
  return image.convertToFormat(QImage::Format_ARGB32);
}

bool IsClear(QRgb pixel) {
  return pixel == 0;
}

bool IsDrawn(QRgb pixel) {
  return qAlpha(pixel) == 255 && qRed(pixel) >= 10 && qGreen(pixel) >= 10 && qBlue(pixel) >= 10;
}

int Drawn(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += IsClear(image.pixel(x, y)) ? 0 : 1;
  }
  return count;
}

// The first pixel that is neither quite clear nor quite solid, as text; empty if there is none.
std::string FirstHalfClear(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (IsClear(pixel) || IsDrawn(pixel)) continue;
      return std::to_string(x) + "," + std::to_string(y) + ": " + std::to_string(pixel);
    }
  }
  return "";
}

// How many clear pixels cannot be reached from the picture's edge: holes inside a window.
int Holes(const QImage& image) {
  const int width = image.width(), height = image.height();
  std::vector<bool> seen(static_cast<std::size_t>(width * height));
  std::vector<QPoint> open;
  const auto visit = [&](int x, int y) {
    if (x < 0 || y < 0 || x >= width || y >= height || !IsClear(image.pixel(x, y))) return;
    const auto place = static_cast<std::size_t>(y * width + x);
    if (seen[place]) return;
    seen[place] = true;
    open.emplace_back(x, y);
  };
  for (int x = 0; x < width; ++x) visit(x, 0), visit(x, height - 1);
  for (int y = 0; y < height; ++y) visit(0, y), visit(width - 1, y);
  int reached = 0;
  while (!open.empty()) {
    const QPoint at = open.back();
    open.pop_back();
    ++reached;
    visit(at.x() - 1, at.y()), visit(at.x() + 1, at.y()), visit(at.x(), at.y() - 1),
        visit(at.x(), at.y() + 1);
  }
  return width * height - Drawn(image) - reached;
}

// The lightness of one look of a button, clear pixels left out.
double Lightness(const QImage& image, int look, int looks) {
  const int width = image.width() / looks;
  double sum = 0, weight = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = look * width; x < (look + 1) * width; ++x) {
      const QRgb pixel = image.pixel(x, y);
      sum += qGray(pixel) * qAlpha(pixel);
      weight += qAlpha(pixel);
    }
  }
  return sum / weight;
}

TEST(MenuPictures, HaveTheSizesThatTheWindowsExpect) {
  for (const auto& [name, width, height] : kButtons)
    EXPECT_EQ(Read(name).size(), QSize(width, height)) << name;
  for (const auto& [name, width, height] : kOthers)
    EXPECT_EQ(Read(name).size(), QSize(width, height)) << name;
}

TEST(MenuPictures, OfButtonsDivideIntoThreeLooksAndOfChecksIntoSixSquares) {
  for (const Picture& button : kButtons) EXPECT_EQ(Read(button.name).width() % 3, 0) << button.name;
  const QImage checks = Read("checks");
  EXPECT_EQ(checks.width(), 6 * checks.height());
}

TEST(MenuPictures, OfButtonsAreLighterUnderThePointerAndDarkerWhenPressed) {
  for (const Picture& button : kButtons) {
    const QImage image = Read(button.name);
    EXPECT_GT(Lightness(image, 1, 3), Lightness(image, 0, 3) + 5) << button.name;
    EXPECT_LT(Lightness(image, 2, 3), Lightness(image, 0, 3) - 5) << button.name;
  }
}

TEST(MenuPictures, OfChecksDifferInEachOfTheirSixLooks) {
  const QImage checks = Read("checks");
  for (int look = 0; look < 6; ++look) {
    for (int other = 0; other < look; ++other) {
      EXPECT_NE(checks.copy(look * 20, 0, 20, 20), checks.copy(other * 20, 0, 20, 20))
          << look << " " << other;
    }
  }
}

TEST(MenuPictures, OfButtonsAndSignsDrawNothingThatIsNearlyBlack) {
  std::vector<Picture> pictures(std::begin(kButtons), std::end(kButtons));
  for (const char* name : {"bonus", "checks", "iInformation", "iQuestion", "iExclamation", "iCritical"}) {
    pictures.push_back({name, 0, 0});
  }
  for (const Picture& picture : pictures) {
    const QImage image = Read(picture.name);
    EXPECT_GT(Drawn(image), image.width() * image.height() / 3) << picture.name;
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QRgb pixel = image.pixel(x, y);
        dark += qAlpha(pixel) == 255 && !IsDrawn(pixel) ? 1 : 0;
      }
    }
    EXPECT_EQ(dark, 0) << picture.name;
  }
}

TEST(MenuPictures, OfWindowsAreBlackOutsideAndSolidInside) {
  for (const char* name : kWindows) {
    const QImage image = Read(name);
    EXPECT_TRUE(IsClear(image.pixel(0, 0))) << name;
    EXPECT_EQ(FirstHalfClear(image), "") << name;
    EXPECT_EQ(Holes(image), 0) << name;
  }
}

TEST(MenuPictures, OfFingersAreBlackAllAroundAndSolidInside) {
  for (const char* name : kFingers) {
    const QImage image = Read(name);
    EXPECT_TRUE(IsClear(image.pixel(0, 0))) << name;
    EXPECT_EQ(FirstHalfClear(image), "") << name;
    EXPECT_EQ(Holes(image), 0) << name;
    EXPECT_GT(Drawn(image), 10000) << name;
    EXPECT_LT(Drawn(image), 40000) << name;
  }
}

TEST(MenuPictures, OfFingersLieOnThePawAndNeverOnOneAnother) {
  const QImage palm = Read("palm");
  std::vector<QImage> fingers;
  for (const char* name : kFingers) fingers.push_back(Read(name));
  int shared = 0, beside = 0;
  for (int y = 0; y < palm.height(); ++y) {
    for (int x = 0; x < palm.width(); ++x) {
      int count = 0;
      for (const QImage& finger : fingers) count += IsClear(finger.pixel(x, y)) ? 0 : 1;
      shared += count > 1 ? 1 : 0;
      beside += count > 0 && IsClear(palm.pixel(x, y)) ? 1 : 0;
    }
  }
  EXPECT_EQ(shared, 0);
  EXPECT_EQ(beside, 0);
}

TEST(MenuPictures, OfThePawDifferInThePlayFingerAlone) {
  const QImage palm = Read("palm"), lit = Read("palmPlay"), finger = Read("fingerPlay");
  int changed = 0, elsewhere = 0;
  for (int y = 0; y < palm.height(); ++y) {
    for (int x = 0; x < palm.width(); ++x) {
      if (palm.pixel(x, y) == lit.pixel(x, y)) continue;
      ++changed;
      elsewhere += IsClear(finger.pixel(x, y)) ? 1 : 0;
    }
  }
  EXPECT_GT(changed, 10000);
  EXPECT_EQ(elsewhere, 0);
}

}  // namespace
}  // namespace zorik
