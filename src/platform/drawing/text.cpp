// Laying text out in lines, measuring and drawing it.
#include <algorithm>
#include <cmath>

#include "platform/drawing/glyphs.h"
#include "platform/drawing/pixel.h"
#include "platform/drawing/surface.h"

namespace platform {
namespace {

// A box that was measured for a text must hold it after rounding, too.
constexpr double kSlack = 1e-6;

double WidthOf(SizedFont& font, std::string_view line) {
  double width = 0;
  for (std::size_t at = 0; at < line.size();) width += font.Advance(NextCharacter(line, at));
  return width;
}

// Calls visit(line, width) for the lines of one paragraph, broken at blanks to fit `limit`. The
// blanks at a break belong to neither line.
template <class Visit>
void WrapParagraph(SizedFont& font, std::string_view text, double limit, const Visit& visit) {
  std::size_t start = 0;     // of the line
  std::size_t breakEnd = 0;  // before the last blanks of the line
  std::size_t next = 0;      // behind them; not after `start` if there are none
  double width = 0, breakWidth = 0, nextWidth = 0;
  bool afterBlank = false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t here = at;
    const char32_t c = NextCharacter(text, at);
    const double advance = font.Advance(c);
    if (c == ' ') {
      if (!afterBlank) {
        breakEnd = here;
        breakWidth = width;
      }
      width += advance;
      next = at;
      nextWidth = width;
      afterBlank = true;
      continue;
    }
    afterBlank = false;
    if (width + advance > limit + kSlack && next > start) {
      visit(text.substr(start, breakEnd - start), breakWidth);
      start = next;
      width -= nextWidth;
    }
    if (width + advance > limit + kSlack && here > start) {
      visit(text.substr(start, here - start), width);
      start = here;
      width = 0;
    }
    width += advance;
  }
  // Blanks at the very end do not push a line out of its box.
  const bool hanging = afterBlank && width > limit + kSlack;
  visit(text.substr(start), hanging ? breakWidth : width);
}

// Calls visit(line, width) for each line of a text.
template <class Visit>
void LayOut(SizedFont& font, std::string_view text, bool wrap, double limit, const Visit& visit) {
  for (bool more = true; more;) {
    const std::size_t end = text.find('\n');
    more = end != std::string_view::npos;
    std::string_view paragraph = text.substr(0, end);
    if (more) text.remove_prefix(end + 1);
    if (more && paragraph.ends_with('\r')) paragraph.remove_suffix(1);
    if (wrap)
      WrapParagraph(font, paragraph, limit, visit);
    else
      visit(paragraph, WidthOf(font, paragraph));
  }
}

void BlendGlyph(Surface& surface, const GlyphImage& image, int x, int y, const DeviceRect& clip,
                std::uint32_t pixel) {
  const DeviceRect r = Intersect(
      {x + image.left, y + image.top, x + image.left + image.width, y + image.top + image.height},
      clip);
  for (int line = r.top; line < r.bottom; ++line) {
    const std::uint8_t* cover = image.coverage.data() +
                                static_cast<std::size_t>(line - y - image.top) * image.width +
                                (r.left - x - image.left);
    std::uint32_t* to = surface.row(line) + r.left;
    for (int i = 0; i < r.width(); ++i)
      if (cover[i] != 0) to[i] = Blend(to[i], pixel, Widen(cover[i]));
  }
}

// Draws one line; x and baseline in device pixels, width in logical ones.
void DrawLine(Surface& surface, SizedFont& font, std::string_view line, double x, int baseline,
              const DeviceRect& clip, std::uint32_t pixel) {
  double pen = x;
  for (std::size_t at = 0; at < line.size();) {
    if (pen - clip.right > 1024) break;  // no glyph reaches back so far
    Glyph& glyph = font.At(NextCharacter(line, at));
    const double next = pen + glyph.advance * surface.scale();
    if (glyph.face && next > clip.left - 1024) {
      const int quarters = static_cast<int>(std::floor(pen * 4 + 0.5));
      BlendGlyph(surface, font.Image(glyph, quarters & 3), quarters >> 2, baseline, clip, pixel);
    }
    pen = next;
  }
}

}  // namespace

double TextWidth(const Font& font, std::string_view text) {
  SizedFont& sized = FindFont(font, 1);
  double widest = 0;
  LayOut(sized, text, false, 0,
         [&](std::string_view, double width) { widest = std::max(widest, width); });
  return widest;
}

TextSize MeasureText(std::string_view text, const TextStyle& style, double width) {
  SizedFont& sized = FindFont(style.font, 1);
  TextSize size;
  LayOut(sized, text, style.wrap, width, [&](std::string_view, double lineWidth) {
    size.width = std::max(size.width, std::ceil(lineWidth - kSlack));
    size.height += sized.lineHeight();
  });
  return size;
}

void Surface::TextOut(double x, double y, std::string_view text, const Font& font, Color color) {
  DrawLines({x, y, 0, 0}, text, {font, color, Align::Left, false}, clip_);
}

void Surface::DrawText(const Rect& box, std::string_view text, const TextStyle& style) {
  DrawLines(box, text, style, Intersect(Place(box), clip_));
}

void Surface::DrawLines(const Rect& box, std::string_view text, const TextStyle& style,
                        const DeviceRect& clip) {
  if (clip.empty()) return;
  SizedFont& font = FindFont(style.font, scale_);
  const std::uint32_t pixel = SwapRedBlue(style.color);
  const double left = ClampCoordinate(box.left + origin_.x);
  double top = ClampCoordinate(box.top + origin_.y);
  LayOut(font, text, style.wrap, box.width, [&](std::string_view line, double width) {
    const int baseline = RoundToPixel((top + font.ascent()) * scale_);
    // Accents and tails may reach out of the line by half its height.
    const double margin = font.lineHeight() * scale_;
    const bool visible = baseline - 2 * margin < clip.bottom && baseline + margin > clip.top;
    top += font.lineHeight();
    if (!visible) return;
    double x = left;
    if (style.align == Align::Center) x += (box.width - width) / 2;
    if (style.align == Align::Right) x += box.width - width;
    x = ClampCoordinate(x) * scale_;
    DrawLine(*this, font, line, x, baseline, clip, pixel);
    if (style.font.underline) {
      const int rule = baseline + font.underlineTop();
      const DeviceRect stroke{RoundToPixel(x), rule, RoundToPixel(x + width * scale_),
                              rule + font.underlineThickness()};
      const DeviceRect r = Intersect(stroke, clip);
      FillDevice(r, pixel);
    }
  });
}

}  // namespace platform
