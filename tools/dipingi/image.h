// Pixels on their way from a drawing to a file.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace dipingi {

// What went wrong, as one sentence for the person who called the tool.
struct Error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Straight (not premultiplied) RGBA, 8 bits a channel, row by row.
struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgba;

  Image() = default;
  Image(int w, int h) : width(w), height(h), rgba(static_cast<std::size_t>(w) * h * 4) {}
  std::uint8_t* at(int x, int y) { return &rgba[(static_cast<std::size_t>(y) * width + x) * 4]; }
  const std::uint8_t* at(int x, int y) const {
    return &rgba[(static_cast<std::size_t>(y) * width + x) * 4];
  }
};

// Draws the SVG text so that it fills width by height pixels. `name` is used in errors.
Image Render(const std::string& svg, const std::string& name, int width, int height);

// Cuts the picture's transparency at one half, so that every pixel is full colour or nothing (white
// with alpha 0), and returns the mask: black where the picture is, white elsewhere.
Image CutSprite(Image& picture);

// Writes a .png (RGBA only if something is transparent), .jpg or .bmp; transparency becomes white
// in the last two. With max_kb above 0 the JPEG's quality is lowered until the file fits.
void Write(const Image& image, const std::string& path, int max_kb);

std::string ReadText(const std::string& path);

}  // namespace dipingi
