#include "tela.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "dati.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace mappa {

Canvas::Canvas(int width, int height, int scale, cairo_format_t format)
    : width_(width),
      height_(height),
      scale_(scale),
      surface_(cairo_image_surface_create(format, width * scale, height * scale)),
      cr_(cairo_create(surface_.get())) {
  if (cairo_status(cr()) != CAIRO_STATUS_SUCCESS) {
    throw DataError("There is not enough memory for a picture of this size.");
  }
  cairo_scale(cr(), scale, scale);
  cairo_set_line_join(cr(), CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_cap(cr(), CAIRO_LINE_CAP_ROUND);
}

std::uint8_t* Canvas::row(int y) const {
  return cairo_image_surface_get_data(surface_.get()) +
         static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface_.get());
}

void Canvas::put(int x, int y, Colour c, double alpha) const {
  const auto byte = [alpha](double v) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(v, 0.0, 1.0) * alpha * 255));
  };
  std::uint8_t* pixel = row(y) + static_cast<std::ptrdiff_t>(x) * 4;
  pixel[0] = byte(c.b);
  pixel[1] = byte(c.g);
  pixel[2] = byte(c.r);
  pixel[3] = byte(1);
}

void Canvas::paint(const Canvas& other, double x, double y, double alpha) const {
  cairo_save(cr());
  cairo_translate(cr(), x, y);
  cairo_scale(cr(), 1.0 / other.scale_, 1.0 / other.scale_);
  cairo_set_source_surface(cr(), other.surface_.get(), 0, 0);
  cairo_paint_with_alpha(cr(), alpha);
  cairo_restore(cr());
}

std::vector<std::uint8_t> Canvas::rgbBytes() const {
  flush();
  std::vector<std::uint8_t> bytes;
  bytes.reserve(static_cast<std::size_t>(pixelWidth()) * pixelHeight() * 3);
  for (int y = 0; y < pixelHeight(); ++y) {
    const std::uint8_t* pixel = row(y);
    for (int x = 0; x < pixelWidth(); ++x, pixel += 4) {
      bytes.insert(bytes.end(), {pixel[2], pixel[1], pixel[0]});
    }
  }
  return bytes;
}

void tracePath(cairo_t* cr, const Line& line) {
  for (const Point& p : line) cairo_line_to(cr, p.x, p.y);
}

void roundedBox(cairo_t* cr, Box b, double r) {
  constexpr double quarter = std::numbers::pi / 2;
  cairo_new_sub_path(cr);
  cairo_arc(cr, b.x + b.width - r, b.y + r, r, -quarter, 0);
  cairo_arc(cr, b.x + b.width - r, b.y + b.height - r, r, 0, quarter);
  cairo_arc(cr, b.x + r, b.y + b.height - r, r, quarter, 2 * quarter);
  cairo_arc(cr, b.x + r, b.y + r, r, 2 * quarter, 3 * quarter);
  cairo_close_path(cr);
}

void save(const Canvas& canvas, const std::filesystem::path& path, int jpegQuality) {
  const auto bytes = canvas.rgbBytes();
  const std::string name = path.string(), ending = path.extension().string();
  const int w = canvas.pixelWidth(), h = canvas.pixelHeight();
  int written = 0;
  if (ending == ".bmp") {
    written = stbi_write_bmp(name.c_str(), w, h, 3, bytes.data());
  } else if (ending == ".jpg") {
    written = stbi_write_jpg(name.c_str(), w, h, 3, bytes.data(), jpegQuality);
  } else if (ending == ".png") {
    written = stbi_write_png(name.c_str(), w, h, 3, bytes.data(), w * 3);
  } else {
    throw DataError("A picture is written as .bmp, .jpg or .png, not as \"" + ending + "\".");
  }
  if (written == 0) throw DataError("Cannot write " + name + ".");
}

}  // namespace mappa
