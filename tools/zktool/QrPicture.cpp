#include <qrencode.h>
#include <zlib.h>

#include <memory>

#include "data/Result.h"
#include "zktool/PostcardText.h"

namespace zorik {
namespace {

// Modules that stay white around the code, without which no reader finds it.
constexpr std::size_t kQuiet = 4;

const Bytef* Raw(const std::string& bytes) {
  return reinterpret_cast<const Bytef*>(bytes.data());
}

std::string BigEndian(unsigned long number) {
  std::string bytes;
  for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes += static_cast<char>(number >> shift & 0xFFU);
  return bytes;
}

// A part of a PNG: its length, its kind and its bytes, and a sum over both.
std::string Chunk(const std::string& kind, const std::string& bytes) {
  const std::string body = kind + bytes;
  const unsigned long sum = crc32(0, Raw(body), static_cast<uInt>(body.size()));
  return BigEndian(bytes.size()) + body + BigEndian(sum);
}

// Rows of one bit a pixel, 1 for white, each behind a byte that says that it stands as it is.
std::string RowsOf(const QRcode& code, std::size_t module) {
  const auto width = static_cast<std::size_t>(code.width), side = (width + 2 * kQuiet) * module;
  const auto black = [&](std::size_t x, std::size_t y) {
    if (x < kQuiet || y < kQuiet || x >= width + kQuiet || y >= width + kQuiet) return false;
    return (code.data[(y - kQuiet) * width + x - kQuiet] & 1U) != 0;
  };
  std::string rows;
  for (std::size_t y = 0; y < side; ++y) {
    std::string row(1 + (side + 7) / 8, '\0');
    for (std::size_t x = 0; x < side; ++x) {
      if (!black(x / module, y / module)) row[1 + x / 8] = static_cast<char>(row[1 + x / 8] | 0x80 >> x % 8);
    }
    rows += row;
  }
  return rows;
}

}  // namespace

bool KnowsPostcards() {
  return true;
}

Result<std::string> QrPicture(const std::string& word, int module) {
  const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
      QRcode_encodeString(word.c_str(), 0, QR_ECLEVEL_L, QR_MODE_8, 1), QRcode_free);
  if (!code) return Failure{"the code cannot be drawn"};
  const auto scale = static_cast<std::size_t>(module);
  const std::size_t side = (static_cast<std::size_t>(code->width) + 2 * kQuiet) * scale;
  const std::string rows = RowsOf(*code, scale);
  uLongf size = compressBound(static_cast<uLong>(rows.size()));
  std::string packed(size, '\0');
  if (compress2(reinterpret_cast<Bytef*>(packed.data()), &size, Raw(rows), static_cast<uLong>(rows.size()),
                Z_BEST_COMPRESSION) != Z_OK)
    return Failure{"the code cannot be packed"};
  packed.resize(size);
  const std::string grey{'\1', '\0', '\0', '\0', '\0'};  // a bit a pixel, and nothing unusual
  return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", BigEndian(side) + BigEndian(side) + grey) +
         Chunk("IDAT", packed) + Chunk("IEND", "");
}

}  // namespace zorik
