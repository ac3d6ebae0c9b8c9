#include "score.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <optional>
#include <sstream>

#include "random.h"

namespace suona {
namespace {

constexpr double kMaxSeconds = 60;
constexpr double kMaxHz = 18000;

struct TempoPoint {
  double beat, bpm;
};

// A note before the whole tempo map is known.
struct WrittenNote {
  std::size_t part;
  double hz, velocity, beat, beats;
  int line;
};

std::optional<double> asNumber(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return {};
  return value;
}

// "F#4", "Bb3", "A4" is 440 Hz; a bare number is a frequency.
std::optional<double> asPitch(std::string_view text) {
  if (const auto hz = asNumber(text)) return *hz > 0 && *hz <= kMaxHz ? hz : std::nullopt;
  constexpr int kSemitones[] = {9, 11, 0, 2, 4, 5, 7};  // from A to G
  if (text.size() < 2 || text[0] < 'A' || text[0] > 'G') return {};
  int semitone = kSemitones[text[0] - 'A'];
  std::string_view octave = text.substr(1);
  if (octave[0] == '#' || octave[0] == 'b') {
    semitone += octave[0] == '#' ? 1 : -1;
    octave.remove_prefix(1);
  }
  if (octave.size() != 1 || octave[0] < '0' || octave[0] > '9') return {};
  return 440 * std::exp2((semitone - 9 + 12 * (octave[0] - '0' - 4)) / 12.0);
}

// Seconds from the first beat to this one; the tempo runs in straight lines between the points.
double secondsAt(const std::vector<TempoPoint>& tempo, double beat) {
  double seconds = 0;
  for (std::size_t i = 0; i < tempo.size(); ++i) {
    const auto [from, bpm] = tempo[i];
    if (beat <= from) break;
    const bool last = i + 1 == tempo.size();
    const double span = (last ? beat : std::min(beat, tempo[i + 1].beat)) - from;
    const double slope =
        last ? 0 : (tempo[i + 1].bpm - bpm) / std::max(1e-9, tempo[i + 1].beat - from);
    seconds +=
        std::abs(slope) < 1e-9 ? span * 60 / bpm : 60 / slope * std::log1p(slope * span / bpm);
  }
  return seconds;
}

class Reader {
 public:
  explicit Reader(const std::filesystem::path& file) : file_(file) {}

  Score read() {
    std::ifstream in(file_);
    if (!in) throw ScoreError(file_.string() + ": cannot be read");
    for (std::string text; std::getline(in, text);) {
      ++line_;
      tokens_.clear();
      next_ = 0;
      std::istringstream words(text);
      // A '#' opens a comment only where a word begins: F#4 is a note.
      for (std::string word; words >> word && word[0] != '#';) tokens_.push_back(word);
      if (!tokens_.empty()) readLine();
    }
    finish();
    return std::move(score_);
  }

 private:
  [[noreturn]] void fail(const std::string& what) const { failAt(line_, what); }
  [[noreturn]] void failAt(int line, const std::string& what) const {
    throw ScoreError(file_.string() + ":" + std::to_string(line) + ": " + what);
  }

  bool more() const { return next_ < tokens_.size(); }
  const std::string& word(const char* what) {
    if (!more()) fail(std::string("there is no ") + what + " here");
    return tokens_[next_++];
  }
  double checked(std::string_view text, const char* what, double low, double high) const {
    const auto value = asNumber(text);
    if (!value || *value < low || *value > high) {
      std::ostringstream sentence;
      sentence << "'" << text << "' is no " << what << " (" << low << " to " << high << ")";
      fail(sentence.str());
    }
    return *value;
  }
  double number(const char* what, double low, double high) {
    return checked(word(what), what, low, high);
  }
  // "1:0.5:0.2", with exactly `count` numbers from 0 up.
  std::vector<double> tuple(std::size_t count, const char* what) {
    const std::string text = word(what);
    std::vector<double> values;
    std::istringstream in(text);
    for (std::string item; std::getline(in, item, ':');)
      values.push_back(checked(item, what, 0, 20000));
    if (values.size() != count) fail("'" + text + "' is no " + what);
    return values;
  }

  void readLine() {
    const std::string key = tokens_[next_++];
    if (key == "instrument") {
      score_.instruments.emplace_back().name = word("name");
      inPart_ = false;
    } else if (key == "part") {
      readPart();
    } else if (inPart_) {
      for (next_ = 0; more();) readNote(tokens_[next_++]);
    } else if (!(score_.instruments.empty() ? readHeader(key)
                                            : readInstrument(score_.instruments.back(), key))) {
      fail("unknown word '" + key + "'");
    }
    if (more()) fail("'" + tokens_[next_] + "' is too much here");
  }

  bool readHeader(const std::string& key) {
    if (key == "length") {
      score_.length = number("length in seconds", 0.02, kMaxSeconds);
    } else if (key == "channels") {
      score_.channels = static_cast<int>(number("number of channels", 1, 2));
    } else if (key == "seed") {
      score_.seed = static_cast<unsigned>(number("seed", 1, 1e6));
    } else if (key == "loose") {
      score_.loose = number("time in seconds", 0, 0.1);
    } else if (key == "fade") {
      score_.fade = number("time in seconds", 0.002, kMaxSeconds);
    } else if (key == "reverb") {
      score_.reverbSeconds = number("time in seconds", 0.05, 10);
      score_.reverbDamping = number("damping", 0, 0.95);
    } else if (key == "bar") {
      bar_ = number("number of beats", 0.25, 32);
    } else if (key == "tempo") {
      const double beat = number("beat", 0, 10000);
      if (tempo_.empty() ? beat != 0 : beat <= tempo_.back().beat)
        fail("the tempo must go from beat 0 on, each point after the one before");
      tempo_.push_back({beat, number("tempo", 5, 1000)});
    } else {
      return false;
    }
    return true;
  }

  bool readInstrument(Instrument& it, const std::string& key) {
    constexpr double kLong = kMaxSeconds;
    if (key == "wave") {
      const std::string& name = word("wave");
      if (name == "sine")
        it.wave = Wave::Sine;
      else if (name == "triangle")
        it.wave = Wave::Triangle;
      else if (name == "saw")
        it.wave = Wave::Saw;
      else if (name == "square")
        it.wave = Wave::Square;
      else
        fail("unknown wave '" + name + "'");
      it.waveLevel = more() ? number("level", 0, 10) : 1;
    } else if (key == "harmonics") {
      it.wave = Wave::Harmonics;
      while (more()) it.harmonics.push_back(number("level", -10, 10));
    } else if (key == "formants") {
      while (more()) {
        const auto v = tuple(3, "formant hz:width:level");
        it.formants.push_back({v[0], std::max(1.0, v[1]), v[2]});
      }
    } else if (key == "partials") {
      while (more()) {
        const auto v = tuple(3, "partial ratio:level:decay");
        it.partials.push_back({v[0], v[1], std::max(0.001, v[2])});
      }
    } else if (key == "fm") {
      it.fmRatio = number("ratio", 0, 50);
      it.fmIndex = number("index", 0, 50);
      it.fmDecay = number("decay in seconds", 0.001, kLong);
      it.fmLevel = more() ? number("level", 0, 10) : 1;
    } else if (key == "noise") {
      it.noiseLevel = number("level", 0, 10);
      it.noiseDecay = more() ? number("decay in seconds", 0.001, kLong) : 0;
    } else if (key == "unison") {
      it.unison = static_cast<int>(number("number of players", 1, 16));
      it.unisonCents = number("detuning in cents", 0, 100);
    } else if (key == "vibrato") {
      it.vibratoHz = number("rate in Hz", 0, 50);
      it.vibratoCents = number("depth in cents", 0, 200);
      it.vibratoDelay = number("delay in seconds", 0, kLong);
    } else if (key == "tremolo") {
      it.tremoloHz = number("rate in Hz", 0, 100);
      it.tremoloDepth = number("depth", 0, 1);
    } else if (key == "bend") {
      it.bendSemitones = number("number of semitones", -48, 48);
      it.bendSeconds = number("time in seconds", 0.001, kLong);
    } else if (key == "env") {
      it.attack = number("attack in seconds", 0.001, kLong);
      it.decay = number("decay in seconds", 0.001, kLong);
      it.sustain = number("sustain", 0, 1);
      it.release = number("release in seconds", 0.002, kLong);
    } else if (key == "filter") {
      const std::string& name = word("filter");
      if (name == "low")
        it.filter = FilterKind::Low;
      else if (name == "high")
        it.filter = FilterKind::High;
      else if (name == "band")
        it.filter = FilterKind::Band;
      else
        fail("unknown filter '" + name + "'");
      it.filterHz = number("frequency", 20, kMaxHz);
      it.filterQ = number("Q", 0.3, 30);
      it.filterOctaves = more() ? number("number of octaves", -10, 10) : 0;
    } else if (key == "sweep") {
      it.sweepHz = number("frequency", 20, kMaxHz);
      it.sweepSeconds = number("time in seconds", 0.001, kLong);
    } else if (key == "track") {
      it.filterTracks = true;
    } else {
      return false;
    }
    return true;
  }

  void readPart() {
    Part part;
    std::istringstream names(word("instrument"));
    for (std::string name; std::getline(names, name, '+');) {
      const auto& all = score_.instruments;
      const auto found =
          std::find_if(all.begin(), all.end(), [&](const auto& i) { return i.name == name; });
      if (found == all.end()) fail("there is no instrument '" + name + "'");
      part.instruments.push_back(static_cast<int>(found - all.begin()));
    }
    while (more()) {
      const std::string& key = word("setting");
      if (key == "level")
        part.gain = std::pow(10, number("level in dB", -80, 20) / 20);
      else if (key == "pan")
        part.pan = number("pan", -1, 1);
      else if (key == "send")
        part.send = number("send", 0, 4);
      else if (key == "gate")
        part.gate = number("gate", 0.01, 2);
      else
        fail("unknown setting '" + key + "'");
    }
    score_.parts.push_back(part);
    inPart_ = true;
    beat_ = 0;
    velocity_ = rampTo_ = 0.8;
    rampFrom_ = rampBeats_ = 0;
  }

  double velocityNow() const {
    if (rampBeats_ <= 0) return velocity_;
    const double way = std::clamp((beat_ - rampFrom_) / rampBeats_, 0.0, 1.0);
    return velocity_ + (rampTo_ - velocity_) * way;
  }

  double pitch(const std::string& text) const {
    const auto hz = asPitch(text);
    if (!hz) fail("'" + text + "' is no pitch");
    return *hz;
  }

  void readNote(const std::string& token) {
    const std::string_view text = token;
    if (text == "|") {
      const double bars = beat_ / bar_;
      if (std::abs(bars - std::round(bars)) > 1e-6)
        fail("this bar line is not at the end of a bar");
    } else if (text == "scatter") {
      scatter();
    } else if (text[0] == '@') {
      beat_ = checked(text.substr(1), "beat", 0, 10000);
    } else if (text[0] == '*') {
      readVelocity(text.substr(1));
    } else if (const auto colon = text.find(':'); colon != text.npos && colon > 0) {
      const double beats = checked(text.substr(colon + 1), "length in beats", 0.001, 1000);
      std::istringstream pitches(token.substr(0, colon));
      for (std::string name; std::getline(pitches, name, '+');) {
        if (name == "-") continue;
        notes_.push_back(
            {score_.parts.size() - 1, pitch(name), velocityNow(), beat_, beats, line_});
      }
      beat_ += beats;
    } else {
      fail("'" + token + "' is no note");
    }
  }

  // Strews notes of random pitch over the next beats: the crackle of paper, the claps of a crowd.
  void scatter() {
    const auto count = static_cast<int>(number("number of notes", 1, 2000));
    const double span = number("number of beats", 0.001, 1000);
    const double low = pitch(word("pitch"));
    const double high = pitch(word("pitch"));
    const double beats = number("length in beats", 0.001, 1000);
    const double start = beat_;
    Random random(score_.seed + static_cast<unsigned>(line_));
    for (int i = 0; i < count; ++i) {
      beat_ = start + span * (i + random.unit()) / count;
      const double hz = low * std::pow(high / low, random.unit());
      const double velocity = velocityNow() * (0.5 + 0.5 * random.unit());
      notes_.push_back({score_.parts.size() - 1, hz, velocity, beat_, beats, line_});
    }
    beat_ = start + span;
  }

  // "0.7", or "0.5>0.9/8": from 0.5 to 0.9 over eight beats.
  void readVelocity(std::string_view text) {
    const auto arrow = text.find('>');
    velocity_ = checked(text.substr(0, arrow), "velocity", 0, 1.5);
    rampBeats_ = 0;
    if (arrow == text.npos) return;
    const auto slash = text.find('/', arrow);
    if (slash == text.npos) fail("'" + std::string(text) + "' does not say over how many beats");
    rampTo_ = checked(text.substr(arrow + 1, slash - arrow - 1), "velocity", 0, 1.5);
    rampBeats_ = checked(text.substr(slash + 1), "number of beats", 0.001, 1000);
    rampFrom_ = beat_;
  }

  void finish() {
    if (score_.length <= 0) fail("the score does not say its length");
    if (notes_.empty()) fail("the score has no note");
    if (tempo_.empty()) tempo_ = {{0, 60}};
    for (const auto& n : notes_) {
      const double start = secondsAt(tempo_, n.beat);
      if (start >= score_.length) failAt(n.line, "a note starts after the end of the sound");
      Part& part = score_.parts[n.part];
      const double seconds = secondsAt(tempo_, n.beat + n.beats * part.gate) - start;
      part.notes.push_back({n.hz, n.velocity, start, std::min(seconds, score_.length - start)});
    }
  }

  std::filesystem::path file_;
  Score score_;
  std::vector<TempoPoint> tempo_;
  std::vector<WrittenNote> notes_;
  std::vector<std::string> tokens_;
  std::size_t next_ = 0;
  int line_ = 0;
  bool inPart_ = false;
  double bar_ = 4, beat_ = 0;
  double velocity_ = 0.8, rampTo_ = 0.8, rampFrom_ = 0, rampBeats_ = 0;
};

}  // namespace

Score readScore(const std::filesystem::path& file) { return Reader(file).read(); }

}  // namespace suona
