// Pictures as BMP files.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace kav {

/// A picture: rows from the top, each of `width` pixels 0x00RRGGBB; both from 1 to 32767.
struct BitmapPixels {
  int width;
  int height;
  std::span<const std::uint32_t> pixels;  ///< width * height
};

/// The bytes of a BMP file with 24 bits a pixel: file header (14), information header (40), rows
/// from the bottom, each filled up to a multiple of 4 bytes. Source: the published layout of
/// BITMAPFILEHEADER and BITMAPINFOHEADER.
std::string PrintBitmap(const BitmapPixels& picture);

}  // namespace kav
