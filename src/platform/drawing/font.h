// Fonts by the names that the forms use, measured and drawn through stb_truetype.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// A face as a form asks for it. Known families: "Verdana" (served by DejaVu Sans), "MS Sans Serif"
// and "Arial" (Liberation Sans), "Times New Roman" (Liberation Serif), "Courier New" (Liberation
// Mono). Any other name is served as "MS Sans Serif". 1 point is 96/72 logical pixels of em height.
struct Font {
  std::string family = "MS Sans Serif";
  double points = 8.25;
  bool bold = false;
  bool underline = false;

  friend bool operator==(const Font&, const Font&) = default;
};

// Says where the font files lie (DejaVuSans.ttf, DejaVuSans-Bold.ttf, LiberationSans-Regular.ttf
// and so on). To be called once before the first text is measured or drawn. A file that is missing
// or broken is replaced by another family's; with no usable file at all text is not drawn and has
// width 0, and MissingFonts() tells which files were looked for.
void SetFontFolder(std::string folder);
std::string MissingFonts();

// Logical pixels, independent of the scale: advance widths are not hinted. UTF-8; bytes that are
// no UTF-8 count as U+FFFD. Line breaks in the text are "\n" or "\r\n".
double TextWidth(const Font& font, std::string_view text);  // of the widest line
double LineHeight(const Font& font);                        // ascent + descent, whole pixels
double Ascent(const Font& font);

}  // namespace platform
