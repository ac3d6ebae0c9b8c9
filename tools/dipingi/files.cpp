#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "image.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace dipingi {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Append(void* context, void* data, int size) {
  auto* bytes = static_cast<Bytes*>(context);
  const auto* first = static_cast<const std::uint8_t*>(data);
  bytes->insert(bytes->end(), first, first + size);
}

bool AnyTransparent(const Image& image) {
  for (std::size_t i = 3; i < image.rgba.size(); i += 4)
    if (image.rgba[i] != 255) return true;
  return false;
}

Bytes OnWhite(const Image& image) {
  Bytes rgb;
  rgb.reserve(image.rgba.size() / 4 * 3);
  for (std::size_t i = 0; i < image.rgba.size(); i += 4) {
    const int alpha = image.rgba[i + 3];
    for (int channel = 0; channel < 3; ++channel)
      rgb.push_back(static_cast<std::uint8_t>(
          (image.rgba[i + channel] * alpha + 255 * (255 - alpha) + 127) / 255));
  }
  return rgb;
}

Bytes Encode(const Image& image, const std::string& kind, int max_kb) {
  Bytes file;
  const int w = image.width, h = image.height;
  if (kind == ".png" && AnyTransparent(image)) {
    stbi_write_png_to_func(Append, &file, w, h, 4, image.rgba.data(), w * 4);
    return file;
  }
  const Bytes rgb = OnWhite(image);
  if (kind == ".png") {
    stbi_write_png_to_func(Append, &file, w, h, 3, rgb.data(), w * 3);
  } else if (kind == ".bmp") {
    stbi_write_bmp_to_func(Append, &file, w, h, 3, rgb.data());
  } else {
    for (int quality = 94; quality >= 40; quality -= 6) {
      file.clear();
      stbi_write_jpg_to_func(Append, &file, w, h, 3, rgb.data(), quality);
      if (max_kb <= 0 || file.size() <= static_cast<std::size_t>(max_kb) * 1024) return file;
    }
    throw Error("The picture does not fit into " + std::to_string(max_kb) + " KB as a JPEG.");
  }
  return file;
}

}  // namespace

void Write(const Image& image, const std::string& path, int max_kb) {
  const std::string kind = std::filesystem::path(path).extension().string();
  if (kind != ".png" && kind != ".jpg" && kind != ".bmp")
    throw Error(path + " must end in .png, .jpg or .bmp.");
  const Bytes file = Encode(image, kind, max_kb);
  std::ofstream out(path, std::ios::binary);
  out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  out.close();
  if (!out) throw Error(path + " cannot be written: " + std::strerror(errno) + ".");
}

std::string ReadText(const std::string& path) {
  if (std::filesystem::is_directory(path)) throw Error(path + " cannot be read: it is a folder.");
  std::ifstream in(path, std::ios::binary);
  if (!in) throw Error(path + " cannot be read: " + std::strerror(errno) + ".");
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace dipingi
