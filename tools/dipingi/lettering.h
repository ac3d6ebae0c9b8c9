// Letters drawn as strokes, so that no picture depends on the fonts of the machine it is made on.
#pragma once

#include <string>

#include "element.h"

namespace dipingi {

// The shapes for one <scritta>. `glyphs` is the text of lettere.txt: lines of a character, its
// advance width and its path, in units of which a capital letter is 100 high, baseline at 0.
// Attributes: testo, x, y (baseline), corpo (height of a capital), spessore (stroke, in the units
// above), colore, ancora (start, middle, end), spazio (extra room between letters), raggio (bends
// the line around a circle: x, y is then its centre, positive over the top, negative under it) and
// angolo (where on the circle the anchor is, degrees clockwise from the top or bottom).
std::string Lettering(Attributes attributes, const std::string& glyphs, const std::string& where);

}  // namespace dipingi
