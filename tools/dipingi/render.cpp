#include <cairo.h>
#include <librsvg/rsvg.h>

#include <cmath>
#include <memory>

#include "image.h"

namespace dipingi {
namespace {

struct Release {
  void operator()(RsvgHandle* handle) const { g_object_unref(handle); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(GError* error) const { g_error_free(error); }
};

std::string Message(GError* raw) {
  std::unique_ptr<GError, Release> error(raw);
  std::string message = error ? error->message : "unknown reason";
  while (!message.empty() && (message.back() == '\n' || message.back() == '.')) message.pop_back();
  return message;
}

void CheckShape(RsvgHandle* handle, const std::string& name, int width, int height) {
  gboolean has_width, has_height, has_box;
  RsvgLength w, h;
  RsvgRectangle box;
  rsvg_handle_get_intrinsic_dimensions(handle, &has_width, &w, &has_height, &h, &has_box, &box);
  if (!has_box || !(box.width > 0) || !(box.height > 0))
    throw Error(name + " has no viewBox, so its proportions are not known.");
  // Half a pixel of the larger side is what rounding the size can cost.
  if (std::abs(box.width * height - box.height * width) > 0.5 * std::max(box.width, box.height))
    throw Error(name + " is drawn " + std::to_string(std::lround(box.width)) + " by " +
                std::to_string(std::lround(box.height)) + ", which has not the proportions of " +
                std::to_string(width) + " by " + std::to_string(height) + " pixels.");
}

}  // namespace

Image Render(const std::string& svg, const std::string& name, int width, int height) {
  // Fonts differ from machine to machine; letters are drawn as shapes instead.
  if (svg.find("<text") != std::string::npos)
    throw Error(name + " uses <text>; write with <scritta> instead.");

  GError* raw = nullptr;
  std::unique_ptr<RsvgHandle, Release> handle(rsvg_handle_new_from_data(
      reinterpret_cast<const guint8*>(svg.data()), static_cast<gsize>(svg.size()), &raw));
  if (!handle) throw Error(name + " cannot be read as SVG: " + Message(raw) + ".");
  CheckShape(handle.get(), name, width, height);

  std::unique_ptr<cairo_surface_t, Release> surface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  std::unique_ptr<cairo_t, Release> context(cairo_create(surface.get()));
  const RsvgRectangle viewport{0, 0, static_cast<double>(width), static_cast<double>(height)};
  if (!rsvg_handle_render_document(handle.get(), context.get(), &viewport, &raw))
    throw Error(name + " cannot be drawn: " + Message(raw) + ".");
  cairo_surface_flush(surface.get());

  Image image(width, height);
  const unsigned char* data = cairo_image_surface_get_data(surface.get());
  const int stride = cairo_image_surface_get_stride(surface.get());
  for (int y = 0; y < height; ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(data + std::ptrdiff_t{y} * stride);
    for (int x = 0; x < width; ++x) {
      const std::uint32_t alpha = row[x] >> 24;
      std::uint8_t* out = image.at(x, y);
      for (int channel = 0; channel < 3 && alpha != 0; ++channel) {
        const std::uint32_t value = row[x] >> (16 - 8 * channel) & 0xFF;
        out[channel] = static_cast<std::uint8_t>(std::min(255u, (value * 255 + alpha / 2) / alpha));
      }
      out[3] = static_cast<std::uint8_t>(alpha);
    }
  }
  return image;
}

Image CutSprite(Image& picture) {
  Image mask(picture.width, picture.height);
  for (std::size_t i = 0; i < picture.rgba.size(); i += 4) {
    const bool inside = picture.rgba[i + 3] >= 128;
    for (int channel = 0; channel < 3; ++channel) {
      mask.rgba[i + channel] = inside ? 0 : 255;
      if (!inside) picture.rgba[i + channel] = 255;
    }
    mask.rgba[i + 3] = 255;
    picture.rgba[i + 3] = inside ? 255 : 0;
  }
  return mask;
}

}  // namespace dipingi
