#include "platform/drawing/font.h"

#include <utf8proc.h>

#include <algorithm>
#include <cmath>

#include "platform/drawing/face.h"
#include "platform/drawing/glyphs.h"

namespace platform {
namespace {

// Small text would look grey: its stems are hardly a pixel wide and seldom fall on pixel borders.
const std::array<std::uint8_t, 256>& Darker() {
  static const std::array<std::uint8_t, 256> table = [] {
    std::array<std::uint8_t, 256> t{};
    for (std::size_t i = 0; i < t.size(); ++i)
      t[i] = static_cast<std::uint8_t>(
          std::lround(255 * std::pow(static_cast<double>(i) / 255, 0.72)));
    return t;
  }();
  return table;
}

bool IsControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

std::vector<std::unique_ptr<SizedFont>>& Sizes() {
  static std::vector<std::unique_ptr<SizedFont>> sizes;
  return sizes;
}

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  if (byte < 0x80) {
    ++at;
    return byte;
  }
  utf8proc_int32_t codepoint = 0;
  const utf8proc_ssize_t used =
      utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()) + at,
                       static_cast<utf8proc_ssize_t>(text.size() - at), &codepoint);
  if (used <= 0) {
    ++at;
    return 0xFFFD;
  }
  at += static_cast<std::size_t>(used);
  return static_cast<char32_t>(codepoint);
}

SizedFont::SizedFont(int face, double points, int scale)
    : face_(face), points_(points), scale_(scale), em_(points * 96 / 72) {
  const Face* own = FindFace(face);
  const double ascent = own ? own->ascent() : 0.9;
  const double descent = own ? own->descent() : 0.2;
  ascent_ = std::round(ascent * em_);
  // Rounded apart, too, so that a line never cuts the tails of its letters.
  lineHeight_ =
      std::max({1.0, std::round((ascent + descent) * em_), ascent_ + std::round(descent * em_)});
  const double em = em_ * scale_;
  underlineThickness_ = std::max(1, static_cast<int>(std::lround(em * 0.07)));
  underlineTop_ = std::max(1, static_cast<int>(std::lround(em * 0.075)));
}

Glyph SizedFont::Make(char32_t codepoint) const {
  Glyph glyph;
  if (IsControl(codepoint) && codepoint != '\t') return glyph;
  const int wanted = codepoint == '\t' ? ' ' : static_cast<int>(codepoint);
  const Face* fallback = FallbackFace(face_);
  for (const Face* face : {FindFace(face_), fallback}) {
    if (!face) continue;
    glyph.face = face;
    glyph.index = stbtt_FindGlyphIndex(&face->info(), wanted);
    if (glyph.index != 0) break;
  }
  if (glyph.face) glyph.advance = glyph.face->Advance(glyph.index) * em_;
  return glyph;
}

Glyph& SizedFont::At(char32_t codepoint) {
  if (codepoint < latin_.size()) {
    std::unique_ptr<Glyph>& slot = latin_[codepoint];
    if (!slot) slot = std::make_unique<Glyph>(Make(codepoint));
    return *slot;
  }
  const auto found = others_.find(codepoint);
  return found != others_.end() ? found->second
                                : others_.emplace(codepoint, Make(codepoint)).first->second;
}

const GlyphImage& SizedFont::Image(Glyph& glyph, int quarter) {
  std::unique_ptr<GlyphImage>& slot = glyph.images[quarter];
  if (slot) return *slot;
  slot = std::make_unique<GlyphImage>();
  if (!glyph.face) return *slot;
  const stbtt_fontinfo* info = &glyph.face->info();
  const double em = em_ * scale_;
  const auto across = static_cast<float>(em * stbtt_ScaleForMappingEmToPixels(info, 1));
  // Small letters end on a whole pixel, which keeps their horizontal strokes sharp.
  const double xHeight = glyph.face->xHeight() * em;
  const auto down =
      xHeight >= 3 ? across * static_cast<float>(std::round(xHeight) / xHeight) : across;
  const float shift = static_cast<float>(quarter) / 4;
  int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  stbtt_GetGlyphBitmapBoxSubpixel(info, glyph.index, across, down, shift, 0, &x0, &y0, &x1, &y1);
  if (x1 <= x0 || y1 <= y0) return *slot;
  slot->left = x0;
  slot->top = y0;
  slot->width = x1 - x0;
  slot->height = y1 - y0;
  slot->coverage.resize(static_cast<std::size_t>(slot->width) *
                        static_cast<std::size_t>(slot->height));
  stbtt_MakeGlyphBitmapSubpixel(info, slot->coverage.data(), slot->width, slot->height, slot->width,
                                across, down, shift, 0, glyph.index);
  for (std::uint8_t& c : slot->coverage) c = Darker()[c];
  return *slot;
}

SizedFont& FindFont(const Font& font, int scale) {
  const int face = FaceNumber(font.family, font.bold);
  const double points = font.points >= 1 ? std::min(font.points, 300.0) : 1.0;
  std::vector<std::unique_ptr<SizedFont>>& sizes = Sizes();
  for (const std::unique_ptr<SizedFont>& sized : sizes)
    if (sized->Is(face, points, scale)) return *sized;
  constexpr std::size_t kKept = 64;  // several times what the screens use
  if (sizes.size() >= kKept) sizes.clear();
  sizes.push_back(std::make_unique<SizedFont>(face, points, scale));
  return *sizes.back();
}

void ForgetGlyphs() { Sizes().clear(); }

double LineHeight(const Font& font) { return FindFont(font, 1).lineHeight(); }

double Ascent(const Font& font) { return FindFont(font, 1).ascent(); }

}  // namespace platform
