#include "parts.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "element.h"
#include "image.h"
#include "lettering.h"

namespace dipingi {

std::string Number(double value) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << value;
  return out.str();
}

Attributes ParseAttributes(const std::string& element, const std::string& where) {
  Attributes attributes;
  std::size_t at = element.find_first_of(" \t\r\n");
  while (at != std::string::npos) {
    at = element.find_first_not_of(" \t\r\n", at);
    if (at == std::string::npos || element[at] == '/') break;
    const std::size_t equals = element.find('=', at);
    const std::size_t open = equals == std::string::npos ? equals : equals + 1;
    const std::size_t close =
        open == std::string::npos || (element[open] != '"' && element[open] != '\'')
            ? std::string::npos
            : element.find(element[open], open + 1);
    if (close == std::string::npos)
      throw Error(where + ": the attributes of " + element + " cannot be read.");
    attributes[element.substr(at, equals - at)] = element.substr(open + 1, close - open - 1);
    at = close + 1;
  }
  return attributes;
}

std::string Take(Attributes& attributes, const std::string& name, const std::string& otherwise) {
  const auto found = attributes.find(name);
  if (found == attributes.end()) return otherwise;
  std::string value = found->second;
  attributes.erase(found);
  return value;
}

double TakeNumber(Attributes& attributes, const std::string& name, double otherwise,
                  const std::string& where) {
  const std::string text = Take(attributes, name, "");
  if (text.empty()) return otherwise;
  std::istringstream in(text);
  in.imbue(std::locale::classic());
  double value = 0;
  if (!(in >> value) || !in.eof())
    throw Error(where + ": \"" + name + "\" must be a number, not \"" + text + "\".");
  return value;
}

namespace {

std::string WithoutComments(const std::string& svg) {
  std::string out;
  for (std::size_t at = 0; at < svg.size();) {
    const std::size_t open = svg.find("<!--", at);
    out += svg.substr(at, open == std::string::npos ? open : open - at);
    if (open == std::string::npos) break;
    const std::size_t close = svg.find("-->", open);
    if (close == std::string::npos) break;
    at = close + 3;
  }
  return out;
}

std::string Substitute(const std::string& text, const Attributes& values) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t open = text.find('{', at);
    out += text.substr(at, open == std::string::npos ? open : open - at);
    if (open == std::string::npos) break;
    const std::size_t close = text.find('}', open);
    const auto found = close == std::string::npos
                           ? values.end()
                           : values.find(text.substr(open + 1, close - open - 1));
    if (found == values.end()) {  // not ours: style sheets use braces too
      out += '{';
      at = open + 1;
    } else {
      out += found->second;
      at = close + 1;
    }
  }
  return out;
}

std::string Placement(Attributes& attributes, const std::string& where) {
  const double x = TakeNumber(attributes, "x", 0, where), y = TakeNumber(attributes, "y", 0, where);
  const double scale = TakeNumber(attributes, "scala", 1, where);
  const double turn = TakeNumber(attributes, "ruota", 0, where);
  const bool mirrored = Take(attributes, "specchio", "no") != "no";
  const std::string opacity = Take(attributes, "opacity", "");
  std::string group = "<g transform=\"translate(" + Number(x) + " " + Number(y) + ") rotate(" +
                      Number(turn) + ") scale(" + Number(mirrored ? -scale : scale) + " " +
                      Number(scale) + ")\"";
  if (!opacity.empty()) group += " opacity=\"" + opacity + "\"";
  return group + ">";
}

}  // namespace

std::string Parts::Expand(const std::string& svg, const std::string& name) {
  return Expand(svg, name, 0);
}

std::string Parts::Expand(const std::string& svg, const std::string& name, int depth) {
  const std::string text = WithoutComments(svg);
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t part = text.find("<parte ", at), lettering = text.find("<scritta ", at);
    const std::size_t open = std::min(part, lettering);
    out += text.substr(at, open == std::string::npos ? open : open - at);
    if (open == std::string::npos) break;
    const std::size_t close = text.find("/>", open);
    if (close == std::string::npos || text.find('>', open) != close + 1)
      throw Error(name + ": <parte> and <scritta> must end in />.");
    const std::string element = text.substr(open, close + 2 - open);
    if (open == part) {
      out += Part(element, name, depth);
    } else {
      const std::string file = folder_ + "/lettere.txt";
      used_.insert(file);
      out += Lettering(ParseAttributes(element, name), ReadText(file), name);
    }
    at = close + 2;
  }
  return out;
}

std::string Parts::Part(const std::string& element, const std::string& where, int depth) {
  if (depth > 12) throw Error(where + ": the parts use each other without end.");
  Attributes given = ParseAttributes(element, where);
  const std::string name = Take(given, "nome", "");
  const std::string file = folder_ + "/" + name + ".svg";
  if (!std::filesystem::exists(file)) throw Error(where + ": there is no part \"" + name + "\".");
  used_.insert(file);
  const std::string group = Placement(given, where);

  std::string text = WithoutComments(ReadText(file));
  Attributes values;
  const std::string head = "<parametri ";
  const std::size_t open = text.find(head);
  if (open != std::string::npos) {
    const std::size_t close = text.find("/>", open);
    if (close == std::string::npos) throw Error(file + ": <parametri> must end in />.");
    values = ParseAttributes(text.substr(open, close + 2 - open), file);
    text.erase(open, close + 2 - open);
  }
  for (const auto& [key, value] : given) {
    if (!values.count(key))
      throw Error(where + ": the part \"" + name + "\" has no parameter \"" + key + "\".");
    values[key] = value;
  }
  values["id"] = "p" + std::to_string(++instances_);
  return group + Expand(Substitute(text, values), file, depth + 1) + "</g>";
}

}  // namespace dipingi
