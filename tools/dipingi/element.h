// The one kind of XML that is read by hand: an empty element with quoted attributes.
#pragma once

#include <map>
#include <string>

namespace dipingi {

using Attributes = std::map<std::string, std::string>;

// `element` is "<name a="1" b='2'/>"; `where` is named in errors.
Attributes ParseAttributes(const std::string& element, const std::string& where);

// The attribute's value, removed from the list, or `otherwise`.
std::string Take(Attributes& attributes, const std::string& name, const std::string& otherwise);
double TakeNumber(Attributes& attributes, const std::string& name, double otherwise,
                  const std::string& where);

// A number as SVG wants it, without regard to the locale.
std::string Number(double value);

}  // namespace dipingi
