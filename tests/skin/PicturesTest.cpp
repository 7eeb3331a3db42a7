#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <cstdint>
#include <string>
#include <vector>

#include "PictureFolder.h"
#include "data/Files.h"
#include "data/Result.h"
#include "skin/Pictures.h"
#include "support/AsNobody.h"

namespace zorik {
namespace {

constexpr QRgb kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kError = 0xFFFFFF00;

void Append(std::string& bytes, std::uint32_t number, int count) {
  for (int i = 0; i < count; ++i)
    bytes += static_cast<char>(number >> (8U * static_cast<unsigned>(i)) & 255U);
}

// A bmp that says that it is so large, and holds next to nothing.
std::string HeaderOf(std::uint32_t width, std::uint32_t height) {
  std::string bytes = "BM";
  for (const std::uint32_t number : {1000U, 0U, 54U, 40U, width, height}) Append(bytes, number, 4);
  Append(bytes, 1, 2);
  Append(bytes, 24, 2);
  for (const std::uint32_t number : {0U, 0U, 2835U, 2835U, 0U, 0U}) Append(bytes, number, 4);
  return bytes + std::string(900, 'x');
}

class PicturesTest : public test::PictureFolder {
 protected:
  PicturesTest() { Paint("error.bmp", kError); }

  QImage Load(const std::string& path) { return pictures_.Load(places_, At(path)); }
  QRgb ColourOf(const std::string& path) { return Load(path).pixel(0, 0); }

  PictureCache pictures_;
};

TEST_F(PicturesTest, ComeInThreeKindsWhateverTheirNamesSay) {
  const QImage green = test::Plain(kGreen, {8, 8});
  ASSERT_TRUE(green.save(QString::fromStdString(At("a.gif")), "bmp"));
  EXPECT_EQ(ColourOf("a.gif"), kGreen);
  ASSERT_TRUE(green.save(QString::fromStdString(At("a.bmp")), "jpg", 100));
  EXPECT_NEAR(qGreen(ColourOf("a.bmp")), 255, 3);
  const QByteArray dot = QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7");
  Touch("a.jpg", dot.toStdString());
  EXPECT_EQ(qAlpha(ColourOf("a.jpg")), 0) << "a clear gif";
}

TEST_F(PicturesTest, OfOtherKindsAreNotRead) {
  ASSERT_TRUE(test::Plain(kGreen).save(QString::fromStdString(At("a.bmp")), "png"));
  EXPECT_TRUE(ReadImage(At("a.bmp")).isNull());
  EXPECT_EQ(ColourOf("a.bmp"), kError);
}

TEST_F(PicturesTest, ThatAreMissingAreTheErrorPicture) {
  EXPECT_EQ(ColourOf("nothing.bmp"), kError);
  std::filesystem::create_directories(At("folder.bmp"));
  EXPECT_EQ(ColourOf("folder.bmp"), kError);
}

TEST_F(PicturesTest, ThatAreAPipeAreNotWaitedFor) {
  ASSERT_EQ(mkfifo(At("a.bmp").c_str(), 0666), 0);
  alarm(20);
  EXPECT_TRUE(ReadImage(At("a.bmp")).isNull());
  EXPECT_EQ(ColourOf("a.bmp"), kError);
  alarm(0);
}

TEST_F(PicturesTest, AreReadWhateverTheirNamesAre) {
  Paint("a.bmp", kGreen);
  std::filesystem::rename(At("a.bmp"), At("k\xF9\xF2.bmp"));
  EXPECT_EQ(ColourOf("k\xF9\xF2.bmp"), kGreen);
}

TEST_F(PicturesTest, ThatAreBrokenAreTheErrorPicture) {
  for (const char* bytes : {"", "BM", "GIF89a", "\xFF\xD8\xFF", "no picture at all"}) {
    Touch("a.bmp", bytes);
    EXPECT_EQ(PictureCache().Load(places_, At("a.bmp")).pixel(0, 0), kError) << bytes;
  }
}

TEST_F(PicturesTest, ThatMayNotBeReadAreTheErrorPicture) {
  Paint("a.bmp", kGreen);
  std::filesystem::permissions(At("a.bmp"), std::filesystem::perms::none);
  std::filesystem::permissions(places_.SkinsPath, std::filesystem::perms(0755));  // the error picture is read
  const test::AsNobody nobody;
  ASSERT_FALSE(ReadWhole(At("a.bmp")));
  EXPECT_EQ(ColourOf("a.bmp"), kError);
}

TEST_F(PicturesTest, ThatAreCutShortAreNoDanger) {
  Paint("whole.bmp", kGreen, {160, 160});
  const std::string whole = *ReadWhole(At("whole.bmp"));
  for (std::size_t length = 0; length < whole.size(); length += 997) {
    Touch("a.bmp", std::string_view(whole).substr(0, length));
    EXPECT_FALSE(PictureCache().Load(places_, At("a.bmp")).isNull()) << length;
  }
}

TEST_F(PicturesTest, ThatSayTheyAreEnormousAreTheErrorPicture) {
  for (const std::uint32_t edge : {20000U, 4097U, 65535U, 0x7FFFFFFFU, 0xFFFFFFFFU, 0x80000000U}) {
    Touch("a.bmp", HeaderOf(edge, edge));
    EXPECT_EQ(PictureCache().Load(places_, At("a.bmp")).pixel(0, 0), kError) << edge;
  }
  Touch("a.bmp", HeaderOf(0, 0));
  EXPECT_EQ(PictureCache().Load(places_, At("a.bmp")).pixel(0, 0), kError);
}

TEST_F(PicturesTest, HaveAsManyPixelsAsTheLimitAllows) {
  Paint("a.bmp", kGreen, {30, 20});
  EXPECT_FALSE(ReadImage(At("a.bmp"), 600).isNull());
  EXPECT_TRUE(ReadImage(At("a.bmp"), 599).isNull());
}

TEST_F(PicturesTest, AreThePlayersOwnOrElseTheInstallations) {
  places_.ShippedSkins = places_.SkinsPath + "/shipped";
  places_.Skin = "Mine";
  const auto found = [&] { return Within(GetSchPicPath(places_, "Cold", "Gem")); };
  for (const char* const path :
       {"shipped/error.bmp", "shipped/Default/Game/Gem.bmp", "Default/Game/Gem.bmp",
        "shipped/Default/Game/Cold/Gem.bmp", "shipped/Mine/Game/Gem.jpg", "Mine/Game/Gem.bmp",
        "shipped/Mine/Game/Cold/Gem.bmp", "Mine/Game/Cold/Gem.gif"}) {
    std::filesystem::remove(At("error.bmp"));
    Touch(path);
    EXPECT_EQ(found(), path);
  }
}

TEST_F(PicturesTest, OfThePlayersOwnMayBeTheErrorPictureToo) {
  places_.ShippedSkins = places_.SkinsPath + "/shipped";
  Paint("shipped/error.bmp", kBlue);
  EXPECT_EQ(ColourOf("nothing.bmp"), kError);
  std::filesystem::remove(At("error.bmp"));
  EXPECT_EQ(ColourOf("nothing.bmp"), kBlue);
}

TEST_F(PicturesTest, WithoutAnErrorPictureAreATileOfMagenta) {
  std::filesystem::remove(At("error.bmp"));
  const QImage tile = Load("nothing.bmp");
  EXPECT_EQ(tile.size(), QSize(80, 80));
  EXPECT_EQ(tile.pixel(40, 40), 0xFFFF00FF);
}

TEST_F(PicturesTest, AreReadOnceWhileTheirFileStaysAsItIs) {
  Paint("a.bmp", kGreen);
  const qint64 key = Load("a.bmp").cacheKey();
  EXPECT_EQ(Load("a.bmp").cacheKey(), key);
}

TEST_F(PicturesTest, AreReadAgainWhenTheirFileHasAnotherTime) {
  Paint("a.bmp", kGreen);
  EXPECT_EQ(ColourOf("a.bmp"), kGreen);
  Paint("a.bmp", kBlue);
  Age("a.bmp", 60);
  EXPECT_EQ(ColourOf("a.bmp"), kBlue);
}

TEST_F(PicturesTest, AreForgottenWhenTheirFileGoes) {
  Paint("a.bmp", kGreen);
  EXPECT_EQ(ColourOf("a.bmp"), kGreen);
  std::filesystem::remove(At("a.bmp"));
  EXPECT_EQ(ColourOf("a.bmp"), kError);
}

TEST_F(PicturesTest, AreLetGoWhenTheyBecomeTooMany) {
  // Nine of four million bytes; eight of them are as much as is kept.
  for (int i = 0; i < 9; ++i) Paint(std::to_string(i) + ".bmp", kGreen, {1000, 1000});
  const qint64 first = Load("0.bmp").cacheKey();
  for (int i = 1; i < 8; ++i) Load(std::to_string(i) + ".bmp");
  EXPECT_EQ(Load("0.bmp").cacheKey(), first);
  Load("8.bmp");
  const qint64 anew = Load("0.bmp").cacheKey();
  EXPECT_NE(anew, first);
  Load("1.bmp");
  EXPECT_EQ(Load("0.bmp").cacheKey(), anew) << "there is room again";
}

TEST_F(PicturesTest, LoseOnlyTheirExactBlack) {
  QImage image = test::Plain(kGreen, {4, 1});
  image.setPixel(0, 0, 0xFF000000);
  image.setPixel(1, 0, 0xFF000001);
  image.setPixel(2, 0, 0xFF010000);
  const QImage clear = WithoutBlack(image);
  EXPECT_EQ(clear.pixel(0, 0), 0U);
  EXPECT_EQ(clear.pixel(1, 0), 0xFF000001);
  EXPECT_EQ(clear.pixel(2, 0), 0xFF010000);
  EXPECT_EQ(clear.pixel(3, 0), kGreen);
}

// The head of a bitmap of 2 x 2 pixels with an alpha channel, as the makers of skins write it.
std::string HeadOfBitmap() {
  std::string head = "BM";
  for (const std::uint32_t number : {122U + 16, 0U, 122U, 108U, 2U, 2U}) Append(head, number, 4);
  Append(head, 1, 2);
  Append(head, 32, 2);
  for (const std::uint32_t number : {3U, 16U, 0U, 0U, 0U, 0U}) Append(head, number, 4);
  for (const std::uint32_t mask : {0x00FF0000U, 0x0000FF00U, 0x000000FFU, 0xFF000000U}) Append(head, mask, 4);
  head.resize(122, '\0');
  return head;
}

const std::string kTwoLines("\1\2\3\4\5\6\7\x8\x11\x12\x13\x14\x15\x16\x17\x18", 16);

class Bitmaps : public test::PictureFolder {
 protected:
  QImage Read(const std::string& bytes, std::int64_t mostPixels = kMostPixels) const {
    EXPECT_TRUE(WriteWhole(At("a.bmp"), bytes));
    return ReadImage(At("a.bmp"), mostPixels);
  }
};

TEST_F(Bitmaps, HaveTheLowestLineFirstAndBlueBeforeRed) {
  const QImage image = Read(HeadOfBitmap() + kTwoLines);
  ASSERT_EQ(image.size(), QSize(2, 2));
  EXPECT_EQ(image.format(), QImage::Format_ARGB32);
  EXPECT_EQ(image.pixel(0, 1), 0x04030201U);
  EXPECT_EQ(image.pixel(1, 1), 0x08070605U);
  EXPECT_EQ(image.pixel(0, 0), 0x14131211U);
  EXPECT_EQ(image.pixel(1, 0), 0x18171615U);
}

TEST_F(Bitmaps, WithMorePixelsThanAreReadAreNone) {
  EXPECT_TRUE(Read(HeadOfBitmap() + kTwoLines, 3).isNull());
  EXPECT_FALSE(Read(HeadOfBitmap() + kTwoLines, 4).isNull());
}

// Whatever the toolkit makes of them is what counts.
TEST_F(Bitmaps, OfAnyOtherKindAreReadByTheToolkit) {
  const std::string whole = HeadOfBitmap() + kTwoLines;
  std::vector<std::string> others{whole + "more", whole.substr(0, 100)};
  for (const std::size_t place : {0U, 10U, 14U, 18U, 21U, 22U, 25U, 26U, 28U, 30U, 54U, 58U, 62U, 66U}) {
    others.push_back(whole);
    others.back()[place] = static_cast<char>(others.back()[place] ^ 3);
  }
  for (std::size_t i = 0; i < others.size(); ++i) {
    const QImage ours = Read(others[i]);
    QImageReader toolkit(QString::fromStdString(At("a.bmp")), "bmp");
    const bool large = std::int64_t{toolkit.size().width()} * toolkit.size().height() > kMostPixels;
    EXPECT_EQ(ours, large ? QImage() : toolkit.read().convertToFormat(QImage::Format_ARGB32)) << i;
  }
}

}  // namespace
}  // namespace zorik
