// Pictures from files, fitted to the logical size and the scale at which they are shown.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/drawing/surface.h"

namespace platform {

// A decoded picture file: PNG, JPEG or BMP. Files are drawn at twice their logical size as a rule,
// but any size is accepted.
class Picture {
 public:
  // Null if the file is missing, unreadable, broken larger than 8192 pixels on a side or than 16
  // megapixels; `error`
  // then holds the operating system's code (errno, ENOENT for a missing file; EILSEQ for a file
  // that is no picture) and is 0 otherwise.
  static std::shared_ptr<const Picture> Load(const std::string& path, int& error);
  // For pictures made in memory: 0xAARRGGBB, row by row.
  static std::shared_ptr<const Picture> FromPixels(int width, int height,
                                                   std::vector<std::uint32_t> argb);

  int pixelWidth() const { return width_; }
  int pixelHeight() const { return height_; }
  bool hasTransparency() const { return transparent_; }
  const std::vector<std::uint32_t>& argb() const { return argb_; }

  // The picture as a surface of the given logical size and scale, well resampled. Transparent
  // pixels become `back`. With `sprite`, transparency is cut at one half after resampling instead
  // of being blended: inside the outline full colour, outside exactly `back`, as the pairs of
  // picture and mask need it. A mask, which is all black and white, is cut likewise: the two keep
  // one outline at every scale.
  Surface Fit(int width, int height, int scale, Color back = colors::kWhite,
              bool sprite = false) const;
  // Draws the picture, transparency blended, over what is there.
  void Draw(Surface& destination, const Rect& place) const;

 private:
  int width_ = 0;
  int height_ = 0;
  bool transparent_ = false;
  bool mask_ = false;  // opaque, all black and white
  std::vector<std::uint32_t> argb_;
  // As last drawn in another size: repaints come often, and mostly for a small part.
  mutable std::vector<std::uint32_t> drawn_;
  mutable int drawnWidth_ = 0;
  mutable int drawnHeight_ = 0;
};

// Saves device pixels as PNG. False, with the reason in errno, if the file cannot be written.
bool SavePng(const Surface& surface, const std::string& path);

}  // namespace platform
