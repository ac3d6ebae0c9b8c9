// Faces and cached glyphs behind the fonts; only for the units that measure and draw text.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/drawing/font.h"

namespace platform {

class Face;

struct GlyphImage {
  int left = 0;  // of the first column, from the glyph's origin
  int top = 0;   // of the first row, from the baseline
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> coverage;
};

struct Glyph {
  const Face* face = nullptr;  // null if there is nothing to draw
  int index = 0;
  double advance = 0;  // logical pixels
  std::array<std::unique_ptr<GlyphImage>, 4> images;
};

// A face at one size and one scale, with its glyphs as far as they were used.
class SizedFont {
 public:
  SizedFont(int face, double points, int scale);

  bool Is(int face, double points, int scale) const {
    return face_ == face && points_ == points && scale_ == scale;
  }
  Glyph& At(char32_t codepoint);
  double Advance(char32_t codepoint) { return At(codepoint).advance; }
  // The glyph drawn with its origin `quarter` fourths of a device pixel right of a pixel's edge.
  const GlyphImage& Image(Glyph& glyph, int quarter);

  double ascent() const { return ascent_; }          // logical, whole
  double lineHeight() const { return lineHeight_; }  // logical, whole
  // Device pixels.
  int underlineTop() const { return underlineTop_; }  // below the baseline
  int underlineThickness() const { return underlineThickness_; }

 private:
  Glyph Make(char32_t codepoint) const;

  int face_;
  double points_;
  int scale_;
  double em_;  // logical pixels
  double ascent_ = 0;
  double lineHeight_ = 0;
  int underlineTop_ = 0;
  int underlineThickness_ = 1;
  std::array<std::unique_ptr<Glyph>, 0x180> latin_;
  std::unordered_map<char32_t, Glyph> others_;
};

// Valid until the next call.
SizedFont& FindFont(const Font& font, int scale);

// Needed when the faces go away.
void ForgetGlyphs();

// Reads one character and moves `at` behind it; U+FFFD for each byte that is no UTF-8.
char32_t NextCharacter(std::string_view text, std::size_t& at);

}  // namespace platform
