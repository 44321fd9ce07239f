#include "plotter/bitmap_file.h"

#include <cstddef>
#include <utility>

namespace kav {
namespace {

constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInformationSize = 40;
constexpr std::uint32_t kPixelsStart = kFileHeaderSize + kInformationSize;
constexpr std::uint16_t kBitsPerPixel = 24;
/// 72 pixels an inch.
constexpr std::uint32_t kPixelsPerMetre = 2835;

/// Writes integers with the lowest byte first.
class LittleEndianWriter {
 public:
  explicit LittleEndianWriter(std::size_t size) { bytes_.reserve(size); }

  void Put16(std::uint32_t value) { Put(value, 2); }
  void Put32(std::uint32_t value) { Put(value, 4); }
  std::string Take() { return std::move(bytes_); }

 private:
  void Put(std::uint32_t value, int count) {
    for (; count > 0; --count, value >>= 8U) bytes_ += static_cast<char>(value & 0xFFU);
  }

  std::string bytes_;
};

std::uint32_t RowSize(int width) {
  constexpr std::uint32_t kAlignment = 4;
  const std::uint32_t size = static_cast<std::uint32_t>(width) * (kBitsPerPixel / 8);
  return (size + kAlignment - 1) / kAlignment * kAlignment;
}

std::string Headers(const BitmapPixels& picture) {
  const std::uint32_t pixelsSize =
      RowSize(picture.width) * static_cast<std::uint32_t>(picture.height);
  LittleEndianWriter writer(kPixelsStart + std::size_t{pixelsSize});
  writer.Put16(0x4D42);  // "BM"
  writer.Put32(kPixelsStart + pixelsSize);
  writer.Put32(0);  // reserved
  writer.Put32(kPixelsStart);
  writer.Put32(kInformationSize);
  writer.Put32(static_cast<std::uint32_t>(picture.width));
  writer.Put32(static_cast<std::uint32_t>(picture.height));
  writer.Put16(1);  // planes
  writer.Put16(kBitsPerPixel);
  writer.Put32(0);  // not compressed
  writer.Put32(pixelsSize);
  writer.Put32(kPixelsPerMetre);
  writer.Put32(kPixelsPerMetre);
  writer.Put32(0);  // colours of the table, which a picture of 24 bits does not have
  writer.Put32(0);  // and of these the important ones
  return writer.Take();
}

/// Blue, green, red, for each pixel.
void WriteRow(std::span<const std::uint32_t> row, char* out) {
  for (const std::uint32_t pixel : row) {
    out[0] = static_cast<char>(pixel & 0xFFU);
    out[1] = static_cast<char>(pixel >> 8U & 0xFFU);
    out[2] = static_cast<char>(pixel >> 16U & 0xFFU);
    out += 3;
  }
}

}  // namespace

std::string PrintBitmap(const BitmapPixels& picture) {
  const auto width = static_cast<std::size_t>(picture.width);
  const auto height = static_cast<std::size_t>(picture.height);
  std::string bytes = Headers(picture);
  bytes.resize(kPixelsStart + std::size_t{RowSize(picture.width)} * height);
  char* out = bytes.data() + kPixelsStart;
  for (std::size_t row = height; row > 0; --row) {
    WriteRow(picture.pixels.subspan((row - 1) * width, width), out);
    out += RowSize(picture.width);
  }
  return bytes;
}

}  // namespace kav
