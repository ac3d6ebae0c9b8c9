// Drawings are put together from shared parts: a sky, a tree, a roof, a numeral.
#pragma once

#include <set>
#include <string>

namespace dipingi {

// Replaces in an SVG text
//   <parte nome="moneta" x="3" y="5" metallo="#c93"/>   by the file moneta.svg of the parts folder
//   <scritta testo="Girovia" x="3" y="20" corpo="16"/>  by letter shapes.
// A part is a piece of SVG. It may start with <parametri metallo="#888" bordo="#000"/>, the
// parameters it takes and their defaults; {metallo} then stands for the value, also in the names of
// the parts that it uses, and {id} for a number of its own, so that its gradients have unique
// names. The attributes x, y, scala, ruota, specchio and opacity place any part.
class Parts {
 public:
  explicit Parts(std::string folder) : folder_(std::move(folder)) {}

  std::string Expand(const std::string& svg, const std::string& name);
  // The files read so far.
  const std::set<std::string>& used() const { return used_; }

 private:
  std::string Expand(const std::string& svg, const std::string& name, int depth);
  std::string Part(const std::string& element, const std::string& where, int depth);

  std::string folder_;
  std::set<std::string> used_;
  int instances_ = 0;
};

}  // namespace dipingi
