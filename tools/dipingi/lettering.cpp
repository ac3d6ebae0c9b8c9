#include "lettering.h"

#include <cmath>
#include <numbers>
#include <sstream>
#include <vector>

#include "image.h"

namespace dipingi {
namespace {

struct Glyph {
  double advance = 0;
  std::string path;
};

std::map<std::string, Glyph> ParseGlyphs(const std::string& text) {
  std::map<std::string, Glyph> glyphs;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream in(line);
    std::string character;
    Glyph glyph;
    if (!(in >> character >> glyph.advance) || character == "//") continue;
    std::getline(in >> std::ws, glyph.path);
    if (character == "spazio") character = " ";
    glyphs[character] = glyph;
  }
  return glyphs;
}

std::vector<std::string> Characters(const std::string& text) {
  std::vector<std::string> characters;
  for (const char c : text) {
    const bool continues = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
    if (continues && !characters.empty())
      characters.back() += c;
    else
      characters.emplace_back(1, c);
  }
  return characters;
}

}  // namespace

std::string Lettering(Attributes attributes, const std::string& glyphs, const std::string& where) {
  const auto number = [&](const char* name, double otherwise) {
    return TakeNumber(attributes, name, otherwise, where);
  };
  const std::string text = Take(attributes, "testo", "");
  const double x = number("x", 0), y = number("y", 0), unit = number("corpo", 20) / 100;
  const double weight = number("spessore", 14), gap = number("spazio", 0);
  const double radius = number("raggio", 0) / unit, angle = number("angolo", 0);
  const std::string colour = Take(attributes, "colore", "#000");
  const std::string anchor = Take(attributes, "ancora", "start");
  if (!attributes.empty())
    throw Error(where + ": <scritta> does not know \"" + attributes.begin()->first + "\".");
  if (anchor != "start" && anchor != "middle" && anchor != "end")
    throw Error(where + ": \"ancora\" must be start, middle or end.");

  const auto shapes = ParseGlyphs(glyphs);
  const auto characters = Characters(text);
  std::vector<Glyph> line;
  double width = -gap;
  for (const auto& character : characters) {
    const auto found = shapes.find(character);
    if (found == shapes.end())
      throw Error(where + ": there is no letter shape for \"" + character + "\".");
    line.push_back(found->second);
    width += found->second.advance + gap;
  }

  std::string out = "<g transform=\"translate(" + Number(x) + " " + Number(y) + ") scale(" +
                    Number(unit) + ")\" fill=\"none\" stroke=\"" + colour + "\" stroke-width=\"" +
                    Number(weight) + "\" stroke-linecap=\"round\" stroke-linejoin=\"round\">";
  double pen = anchor == "middle" ? -width / 2 : anchor == "end" ? -width : 0;
  for (const Glyph& glyph : line) {
    std::string place = "translate(" + Number(pen) + " 0)";
    if (radius != 0) {
      const double middle = pen + glyph.advance / 2;
      const double turn = middle / radius * 180 / std::numbers::pi + angle;
      place = "rotate(" + Number(turn) + ") translate(" + Number(-glyph.advance / 2) + " " +
              Number(-radius) + ")";
    }
    out += "<path transform=\"" + place + "\" d=\"" + glyph.path + "\"/>";
    pen += glyph.advance + gap;
  }
  return out + "</g>";
}

}  // namespace dipingi
