// A picture to draw on with cairo, in logical pixels that are drawn `scale` times as large.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

#include "geometria.h"

namespace mappa {

struct Colour {
  double r = 0;
  double g = 0;
  double b = 0;
};

constexpr Colour rgb(std::uint32_t value) {
  return {(value >> 16 & 255) / 255.0, (value >> 8 & 255) / 255.0, (value & 255) / 255.0};
}

constexpr Colour mix(Colour a, Colour b, double t) {
  return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

class Canvas {
 public:
  Canvas(int width, int height, int scale, cairo_format_t format = CAIRO_FORMAT_ARGB32);

  cairo_t* cr() const { return cr_.get(); }
  int width() const { return width_; }  // logical
  int height() const { return height_; }
  int scale() const { return scale_; }
  int pixelWidth() const { return width_ * scale_; }
  int pixelHeight() const { return height_ * scale_; }

  void setColour(Colour c, double alpha = 1) const {
    cairo_set_source_rgba(cr(), c.r, c.g, c.b, alpha);
  }

  // Raw rows; call after the drawing and before touching pixels, and changed() afterwards.
  std::uint8_t* row(int y) const;
  void flush() const { cairo_surface_flush(surface_.get()); }
  void changed() const { cairo_surface_mark_dirty(surface_.get()); }
  void put(int x, int y, Colour c, double alpha = 1) const;

  // Paints another canvas of the same scale with its corner at (x, y).
  void paint(const Canvas& other, double x, double y, double alpha = 1) const;

  // Rows from the top, three bytes a pixel, red first.
  std::vector<std::uint8_t> rgbBytes() const;

 private:
  struct Release {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* cr) const { cairo_destroy(cr); }
  };
  int width_, height_, scale_;
  std::unique_ptr<cairo_surface_t, Release> surface_;
  std::unique_ptr<cairo_t, Release> cr_;
};

void tracePath(cairo_t* cr, const Line& line);
void roundedBox(cairo_t* cr, Box box, double radius);

// The format follows the file's ending: .bmp (24 bits), .jpg or .png. Throws DataError.
void save(const Canvas& canvas, const std::filesystem::path& path, int jpegQuality);

}  // namespace mappa
