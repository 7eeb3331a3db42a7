// skinmaker picture IN.png OUT.bmp   a 32-bit bitmap with alpha channel
// skinmaker text IN.txt OUT.txt      UTF-8 of any editor into Windows-1250, lines ended by CR LF

#include <QImage>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "common/LittleEndian.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"

namespace {

using zorik::Done;
using zorik::Failure;
using zorik::Put16;
using zorik::Put32;
using zorik::Result;

// The head of a bitmap that tells of four channels, the fourth header of the format's history.
std::string BitmapHead(std::uint32_t width, std::uint32_t height) {
  constexpr std::uint32_t kFileHead = 14, kInfoHead = 108, kBitFields = 3;
  constexpr std::uint32_t kDotsPerMetre = 2835;
  constexpr std::uint32_t kSRgb = 0x73524742;
  const std::uint32_t pixels = width * height * 4;
  std::string head = "BM";
  Put32(head, kFileHead + kInfoHead + pixels);
  Put32(head, 0);
  Put32(head, kFileHead + kInfoHead);
  Put32(head, kInfoHead);
  Put32(head, width);
  Put32(head, height);
  Put16(head, 1);
  Put16(head, 32);
  Put32(head, kBitFields);
  Put32(head, pixels);
  Put32(head, kDotsPerMetre);
  Put32(head, kDotsPerMetre);
  Put32(head, 0);
  Put32(head, 0);
  for (const std::uint32_t mask : {0x00FF0000U, 0x0000FF00U, 0x000000FFU, 0xFF000000U}) Put32(head, mask);
  Put32(head, kSRgb);
  head.resize(kFileHead + kInfoHead, '\0');
  return head;
}

Result<std::string> Bitmap(const std::string& path) {
  QImage image(QString::fromStdString(path));
  if (image.isNull()) return Failure{path + " is no picture"};
  image = image.convertToFormat(QImage::Format_ARGB32);
  std::string bytes =
      BitmapHead(static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()));
  for (int y = image.height() - 1; y >= 0; --y) {
    for (int x = 0; x < image.width(); ++x) Put32(bytes, image.pixel(x, y));
  }
  return bytes;
}

Result<std::string> CzechText(const std::string& path) {
  const Result<std::string> utf8 = zorik::ReadWhole(path);
  if (!utf8) return utf8;
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  std::string_view marked = *utf8;
  if (marked.starts_with(kUtf8Mark)) marked.remove_prefix(kUtf8Mark.size());
  const std::optional<std::string> text = zorik::FromUtf8(marked);
  if (!text) return Failure{path + " is no UTF-8 or holds a character that Windows-1250 lacks"};
  std::string bytes;
  for (const char character : *text) {
    if (character == '\r') continue;
    if (character == '\n') bytes += '\r';
    bytes += character;
  }
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view kind = argc == 4 ? argv[1] : "";
  if (kind != "picture" && kind != "text") {
    std::fputs("usage: skinmaker picture IN.png OUT.bmp\n       skinmaker text IN.txt OUT.txt\n", stderr);
    return 2;
  }
  const Result<std::string> bytes = kind == "picture" ? Bitmap(argv[2]) : CzechText(argv[2]);
  const Result<Done> written = bytes ? zorik::WriteWhole(argv[3], *bytes) : Failure{bytes.Message()};
  if (written) return 0;
  std::fprintf(stderr, "%s\n", written.Message().c_str());
  return 1;
}
