#include "plotter/bitmap_file.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "support/effort.h"
#include "support/random.h"

namespace kav {
namespace {

using test::Random;
using test::Tries;
using Pixels = std::vector<std::uint32_t>;

/// The bytes that hexadecimal digits in pairs stand for; blanks do not matter.
std::string Bytes(std::string_view digits) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string bytes;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (digits[i] == ' ') continue;
    bytes += static_cast<char>(kDigits.find(digits[i]) * 16 + kDigits.find(digits[i + 1]));
    ++i;
  }
  return bytes;
}

std::uint32_t Read(const std::string& bytes, std::size_t at, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = count; i > 0; --i) {
    value = value << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return value;
}

/// A picture as a reader of the published layout understands it; empty where the sizes disagree.
struct Picture {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  Pixels pixels = {};

  bool operator==(const Picture&) const = default;
};

Picture ReadBitmap(const std::string& bytes) {
  if (bytes.size() < 54 || bytes.substr(0, 2) != "BM") return {};
  const bool isPlain = Read(bytes, 14, 4) == 40 && Read(bytes, 26, 2) == 1 &&
                       Read(bytes, 28, 2) == 24 && Read(bytes, 30, 4) == 0;
  if (!isPlain || Read(bytes, 2, 4) != bytes.size()) return {};
  Picture picture{Read(bytes, 18, 4), Read(bytes, 22, 4)};
  const std::size_t start = Read(bytes, 10, 4);
  const std::size_t rowSize = (std::size_t{picture.width} * 24 + 31) / 32 * 4;
  if (start + rowSize * picture.height != bytes.size()) return {};
  for (std::size_t row = 0; row < picture.height; ++row) {
    for (std::size_t column = 0; column < picture.width; ++column) {
      const std::size_t at = start + (picture.height - 1 - row) * rowSize + column * 3;
      picture.pixels.push_back(Read(bytes, at, 3));
    }
  }
  return picture;
}

TEST(BitmapFile, OnePixel) {
  const Pixels pixels{0x123456};
  EXPECT_EQ(PrintBitmap({1, 1, pixels}), Bytes("42 4D 3A 00 00 00 00 00 00 00 36 00 00 00 "
                                               "28 00 00 00 01 00 00 00 01 00 00 00 01 00 18 00 "
                                               "00 00 00 00 04 00 00 00 13 0B 00 00 13 0B 00 00 "
                                               "00 00 00 00 00 00 00 00 "
                                               "56 34 12 00"));
}

TEST(BitmapFile, RowsStandFromTheBottomAndAreFilledUp) {
  const Pixels pixels{0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF, 0x000000, 0x008284};
  EXPECT_EQ(PrintBitmap({3, 2, pixels}), Bytes("42 4D 4E 00 00 00 00 00 00 00 36 00 00 00 "
                                               "28 00 00 00 03 00 00 00 02 00 00 00 01 00 18 00 "
                                               "00 00 00 00 18 00 00 00 13 0B 00 00 13 0B 00 00 "
                                               "00 00 00 00 00 00 00 00 "
                                               "FF FF FF 00 00 00 84 82 00 00 00 00 "
                                               "00 00 FF 00 FF 00 FF 00 00 00 00 00"));
}

TEST(BitmapFile, WhatIsAboveTheColourOfAPixelDoesNotMatter) {
  const Pixels plain{0x123456, 0x654321};
  const Pixels marked{0xFF123456, 0x80654321};
  EXPECT_EQ(PrintBitmap({2, 1, marked}), PrintBitmap({2, 1, plain}));
}

TEST(BitmapFile, SizesCountTheFilling) {
  struct Row {
    int width;
    int height;
    std::size_t size;
  };
  // 54 bytes of headers; rows of 3, 6, 9, 12 and 690 bytes fill 4, 8, 12, 12 and 692.
  for (const auto& [width, height, size] :
       {Row{1, 7, 54 + 7 * 4}, Row{2, 7, 54 + 7 * 8}, Row{3, 7, 54 + 7 * 12},
        Row{4, 7, 54 + 7 * 12}, Row{230, 230, 54 + 230 * 692}, Row{32767, 1, 54 + 98304},
        Row{1, 32767, 54 + 4 * 32767}}) {
    const Pixels pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const std::string bytes = PrintBitmap({width, height, pixels});
    EXPECT_EQ(bytes.size(), size) << width << ' ' << height;
    EXPECT_EQ(Read(bytes, 2, 4), size) << width << ' ' << height;
    EXPECT_EQ(Read(bytes, 34, 4), size - 54) << width << ' ' << height;
  }
}

TEST(BitmapFile, AReaderGetsThePictureBack) {
  Random random(56);
  for (int i = 0; i < Tries(500); ++i) {
    Picture picture{static_cast<std::uint32_t>(1 + random.Below(40)),
                    static_cast<std::uint32_t>(1 + random.Below(40))};
    for (std::size_t k = picture.width * picture.height; k > 0; --k) {
      picture.pixels.push_back(static_cast<std::uint32_t>(random.Below(1 << 24)));
    }
    const std::string bytes = PrintBitmap(
        {static_cast<int>(picture.width), static_cast<int>(picture.height), picture.pixels});
    ASSERT_EQ(ReadBitmap(bytes), picture);
  }
}

}  // namespace
}  // namespace kav
