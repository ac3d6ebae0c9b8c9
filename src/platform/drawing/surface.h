// A drawing surface that keeps what is drawn on it, and the operations on it.
//
// Places and sizes are logical pixels; the surface holds scale * scale device pixels for each of
// them. At scale 1 every operation is exact to the pixel, as told at each; at higher scales shapes
// and text gain resolution and pictures keep theirs. Nothing here throws, and every coordinate is
// allowed: what falls outside the surface or its clip is not drawn.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/drawing/font.h"
#include "platform/drawing/geometry.h"

namespace platform {

enum class RasterOp : std::uint32_t {
  SrcCopy = 0xCC0020,     // destination = source
  SrcAnd = 0x8800C6,      // destination = source AND destination
  MergePaint = 0xBB0226,  // destination = NOT source OR destination
};

enum class Align { Left, Center, Right };

struct Pen {
  double width = 1;  // logical pixels
  Color color = colors::kBlack;
};

// How a block of text is laid out in its box.
struct TextStyle {
  Font font;
  Color color = colors::kBlack;
  Align align = Align::Left;
  bool wrap = false;
};

class Outline;

class Surface {
 public:
  Surface() = default;
  // Filled with `back`. Sizes of 0 give a surface on which nothing can be drawn.
  Surface(int width, int height, int scale, Color back = colors::kWhite);
  // Takes device pixels over, row by row; the top byte of each must be 0. Empty if their count does
  // not fit the size.
  Surface(int width, int height, int scale, std::vector<std::uint32_t> pixels);
  // Of just so many device pixels, though its last logical row and column are cut by that.
  static Surface OfDevicePixels(int deviceWidth, int deviceHeight, int scale, Color back);

  int width() const { return width_; }    // logical
  int height() const { return height_; }  // logical
  int scale() const { return scale_; }
  int deviceWidth() const { return deviceWidth_; }
  int deviceHeight() const { return deviceHeight_; }
  DeviceRect deviceBounds() const { return {0, 0, deviceWidth(), deviceHeight()}; }

  // Device pixels, 0x00RRGGBB; the top byte is always 0.
  std::uint32_t* row(int deviceY) { return pixels_.data() + std::size_t(deviceY) * deviceWidth(); }
  const std::uint32_t* row(int deviceY) const {
    return pixels_.data() + std::size_t(deviceY) * deviceWidth();
  }
  // The device pixel in the middle of a logical one, for tests and readers. Outside: black.
  Color PixelAt(double x, double y) const;

  // Drawing is limited to the clip, which starts as the whole surface, and shifted by the origin,
  // which starts at 0, 0. The clip is in device pixels and not shifted by the origin. Controls are
  // painted on their container's surface with the origin at their own corner.
  const DeviceRect& clip() const { return clip_; }
  void SetClip(const DeviceRect& clip);  // is cut to the surface
  Point origin() const { return origin_; }
  void SetOrigin(Point origin) { origin_ = origin; }

  void Cls(Color color);  // the whole clip

  // --- Pixel copies. Both surfaces have one scale; where they differ nothing is copied.
  // Source pixels outside the source surface leave the destination as it is.
  void BitBlt(double x, double y, double width, double height, const Surface& source,
              double sourceX, double sourceY, RasterOp op);
  // Scales the source rectangle to the destination rectangle, averaging where it shrinks and
  // interpolating where it grows. The scales of the two surfaces may differ. With SrcCopy only.
  void StretchBlt(const Rect& destination, const Surface& source, const Rect& from);

  // --- Shapes. A coordinate names a pixel; a box with corners (x1, y1) and (x2, y2), given in any
  // order, includes the pixels of both corners. A pen of odd width w covers (w - 1) / 2 pixels on
  // either side of the line's own; one of even width w covers w / 2 pixels before it and w / 2 - 1
  // behind it, so that a horizontal line at y = 200 with a pen of 62 covers the rows 169 to 230.
  // Horizontal and vertical edges are not antialiased at any scale where they fall on pixel
  // borders; all others are. Wide lines have round ends and round joins.
  void Line(double x1, double y1, double x2, double y2, const Pen& pen);
  void Box(double x1, double y1, double x2, double y2, const Pen& pen);
  void FillBox(double x1, double y1, double x2, double y2, Color color);
  void FillBoxAnd(double x1, double y1, double x2, double y2, Color color);  // bitwise AND
  void Polyline(const std::vector<Point>& points, bool closed, const Pen& pen);

  // --- Areas in the plain geometric sense: a rectangle covers [left, right) x [top, bottom).
  // The edges of plain rectangles and boxes go to the nearest device pixel, as in ToDevice.
  void FillRect(const Rect& r, Color color);
  void FillRoundRect(const Rect& r, double ellipseWidth, double ellipseHeight, Color color);
  // The outline lies centred on the edge of r.
  void RoundRect(const Rect& r, double ellipseWidth, double ellipseHeight, const Pen& pen);
  void FillOval(const Rect& r, Color color);
  void Oval(const Rect& r, const Pen& pen);                         // the outline lies inside r
  void FillPolygon(const std::vector<Point>& points, Color color);  // winding rule

  // --- Text, antialiased. `y` is the top of the first line.
  void TextOut(double x, double y, std::string_view text, const Font& font, Color color);
  // Aligned in the box, wrapped at blanks where the style says so, cut at the box's edges. Lines
  // that do not fit in height are cut; a word wider than the box is broken inside.
  void DrawText(const Rect& box, std::string_view text, const TextStyle& style);

 private:
  DeviceRect Place(const Rect& r) const;  // to device pixels, with the origin
  Point Place(Point p) const;
  void FillDevice(const DeviceRect& area, std::uint32_t pixel);  // cut to the clip
  void Paint(const Outline& outline, Color color);
  void DrawLines(const Rect& box, std::string_view text, const TextStyle& style,
                 const DeviceRect& clip);

  int width_ = 0;
  int height_ = 0;
  int deviceWidth_ = 0;
  int deviceHeight_ = 0;
  int scale_ = 1;
  DeviceRect clip_;
  Point origin_;
  std::vector<std::uint32_t> pixels_;
};

// What DrawText would fill: the size of the text laid out in lines of at most `width` logical
// pixels (wrapped if style.wrap), rounded up to whole pixels.
struct TextSize {
  double width = 0;
  double height = 0;
};
TextSize MeasureText(std::string_view text, const TextStyle& style, double width);

// 8-bit coverage of an area at device resolution, used to shape a form.
class Mask {
 public:
  Mask() = default;
  Mask(int width, int height, int scale);  // logical size; starts empty
  static Mask RoundRect(int width, int height, int scale, const Rect& r, double ellipseWidth,
                        double ellipseHeight);
  static Mask Polygon(int width, int height, int scale, const std::vector<Point>& points);

  int deviceWidth() const { return deviceWidth_; }
  int deviceHeight() const { return deviceHeight_; }
  const std::uint8_t* row(int deviceY) const {
    return coverage_.data() + std::size_t(deviceY) * deviceWidth_;
  }
  // At least half covered. Logical pixels.
  bool Contains(double x, double y) const;

 private:
  void Fill(const Outline& outline);

  int deviceWidth_ = 0;
  int deviceHeight_ = 0;
  int scale_ = 1;
  std::vector<std::uint8_t> coverage_;
};

// Puts the part `area` (device pixels of `source`) of a surface on another of the same scale with
// its corner at device pixel (x, y), through the mask, which has the size of the source.
void CompositeMasked(Surface& destination, int x, int y, const Surface& source, const Mask& mask,
                     const DeviceRect& area);

}  // namespace platform
