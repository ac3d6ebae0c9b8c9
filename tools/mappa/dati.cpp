#include "dati.h"

#include <charconv>
#include <fstream>
#include <map>
#include <string_view>

namespace mappa {
namespace {

std::string quoted(std::string_view text) {
  std::string result(1, '"');
  result.append(text).push_back('"');
  return result;
}

// Walks through the lines of a data file that are neither blank nor comments.
class Reader {
 public:
  explicit Reader(const std::filesystem::path& path)
      : name_(path.filename().string()), stream_(path) {
    if (!stream_) throw DataError("Cannot open " + path.string() + ".");
  }

  bool next() {
    while (std::getline(stream_, line_)) {
      ++number_;
      if (!line_.empty() && line_.back() == '\r') line_.pop_back();
      rest_ = line_;
      if (!line_.empty() && line_[0] != '#') return true;
    }
    return false;
  }

  [[noreturn]] void fail(const std::string& what) const {
    throw DataError(name_ + ", line " + std::to_string(number_) + ": " + what + ".");
  }

  std::string_view word(char separator = ' ') {
    if (rest_.empty()) fail("something is missing at the end");
    const auto end = std::min(rest_.find(separator), rest_.size());
    const auto result = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return result;
  }

  template <typename T>
  T parse(std::string_view text) const {
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
      fail(quoted(text) + " is not a number");
    }
    return value;
  }

  template <typename T>
  T number(char separator = ' ') {
    return parse<T>(word(separator));
  }

  std::string_view rest() const { return rest_; }

  // What is left of the line as pairs of longitude and latitude.
  std::vector<LonLat> places() {
    std::vector<LonLat> result;
    while (!rest_.empty()) {
      const double lon = number<double>();
      result.push_back(checked({lon, number<double>()}));
    }
    if (result.empty()) fail("a line of places is empty");
    return result;
  }

  LonLat checked(LonLat place) const {
    if (!(place.lon >= -180 && place.lon <= 210 && place.lat >= -90 && place.lat <= 90)) {
      fail("the place lies outside the globe");
    }
    return place;
  }

 private:
  std::string name_;
  std::ifstream stream_;
  std::string line_;
  std::string_view rest_;
  int number_ = 0;
};

Arc readArc(Reader& in, double quantum) {
  Arc arc;
  const auto kind = in.word();
  if (kind == "C") {
    arc.kind = ArcKind::coast;
  } else if (kind == "T") {
    arc.kind = ArcKind::border;
  } else if (kind == "I") {
    arc.kind = ArcKind::inner;
  } else {
    in.fail("unknown kind of arc " + quoted(kind));
  }
  double x = 0, y = 0;
  while (!in.rest().empty()) {
    x += in.number<int>();
    y += in.number<int>();
    arc.points.push_back(in.checked({x * quantum, y * quantum}));
  }
  if (arc.points.size() < 2) in.fail("an arc needs two points");
  return arc;
}

Ring readRing(Reader& in, std::size_t arcs) {
  Ring ring;
  while (!in.rest().empty()) {
    auto text = in.word();
    const bool reversed = text.starts_with('~');
    if (reversed) text.remove_prefix(1);
    const auto arc = in.parse<std::size_t>(text);
    if (arc >= arcs) in.fail("there is no arc " + std::string(text));
    ring.push_back({arc, reversed});
  }
  return ring;
}

void readLand(const std::filesystem::path& path, World& world) {
  Reader in(path);
  double quantum = 0;
  while (in.next()) {
    const auto key = in.word();
    if (key == "quanto") {
      quantum = in.number<double>();
    } else if (key == "arco") {
      if (!(quantum > 0)) in.fail("an arc stands before the quantum");
      world.arcs.push_back(readArc(in, quantum));
    } else if (key == "paese") {
      world.countries.push_back({std::string(in.rest()), 0, {}});
    } else if (key == "anello") {
      if (world.countries.empty()) in.fail("a ring stands before any country");
      world.countries.back().rings.push_back(readRing(in, world.arcs.size()));
    } else {
      in.fail("unknown word " + quoted(key));
    }
  }
  if (world.countries.empty()) in.fail("the file holds no country");
}

void readTints(const std::filesystem::path& path, World& world) {
  std::map<std::string, Country*, std::less<>> byName;
  for (Country& country : world.countries) byName[country.name] = &country;
  Reader in(path);
  while (in.next()) {
    const auto found = byName.find(in.word('\t'));
    if (found == byName.end()) in.fail("the map has no such country");
    found->second->tint = in.number<int>('\t');
    if (found->second->tint < 1 || found->second->tint > 5) in.fail("tints go from 1 to 5");
  }
}

void readCities(const std::filesystem::path& path, World& world) {
  Reader in(path);
  in.next();  // column titles
  while (in.next()) {
    City city;
    if (in.number<std::size_t>('\t') != world.cities.size()) in.fail("a city is out of order");
    city.name = in.word('\t');
    city.place.lat = in.number<double>('\t');
    city.place.lon = in.number<double>('\t');
    in.checked(city.place);
    city.square.x = in.number<double>('\t');
    city.square.y = in.number<double>('\t');
    city.pinned = in.number<int>('\t') != 0;
    world.cities.push_back(city);
  }
  if (world.cities.size() != 100) in.fail("the route has a hundred cities");
}

void readWaters(const std::filesystem::path& path, World& world) {
  Reader in(path);
  while (in.next()) {
    const auto key = in.word();
    if (key == "fiume") {
      const int weight = in.number<int>();
      if (!in.next()) in.fail("the course is missing");
      world.rivers.push_back({weight, in.places()});
    } else if (key == "lago") {
      if (!in.next()) in.fail("the shore is missing");
      world.lakes.push_back(in.places());
    } else {
      in.fail("unknown word " + quoted(key));
    }
  }
}

void readUplands(const std::filesystem::path& path, World& world) {
  Reader in(path);
  while (in.next()) {
    Upland upland;
    const auto key = in.word();
    if (key != "catena" && key != "altopiano") {
      in.fail("unknown word " + quoted(key));
    }
    upland.ridge = key == "catena";
    upland.metres = in.number<double>();
    upland.halfWidthKm = in.number<double>();
    if (!(upland.metres > 0 && upland.halfWidthKm > 0)) in.fail("height and width must be above 0");
    if (!in.next()) in.fail("the crest is missing");
    upland.crest = in.places();
    world.uplands.push_back(std::move(upland));
  }
}

}  // namespace

World readWorld(const std::filesystem::path& folder) {
  World world;
  readLand(folder / "europa.txt", world);
  readTints(folder / "paesi.tsv", world);
  readCities(folder / "citta.tsv", world);
  readWaters(folder / "acque.txt", world);
  readUplands(folder / "rilievi.txt", world);
  return world;
}

}  // namespace mappa
