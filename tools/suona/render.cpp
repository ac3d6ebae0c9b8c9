#include "render.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "random.h"
#include "reverb.h"

namespace suona {
namespace {

constexpr double kTau = 2 * std::numbers::pi;
constexpr std::size_t kTable = 4096;
constexpr double kTopHz = 17000;      // no partial above this, so that nothing folds back
constexpr std::size_t kControl = 16;  // samples between two looks at the slow things

// One period of the wave at this pitch, with no harmonic above the top.
std::vector<float> makeTable(const Instrument& it, double hz) {
  const double highest = hz * std::exp2(std::max(0.0, it.bendSemitones) / 12);
  const auto count = static_cast<int>(std::min(600.0, kTopHz / highest));
  static const std::vector<float> sines = [] {
    std::vector<float> s(kTable);
    for (std::size_t j = 0; j < kTable; ++j)
      s[j] = static_cast<float>(std::sin(kTau * static_cast<double>(j) / kTable));
    return s;
  }();
  std::vector<float> table(kTable + 1);
  for (int k = 1; k <= std::max(1, count); ++k) {
    double level = 0;
    switch (it.wave) {
      case Wave::None:
        break;
      case Wave::Sine:
        level = k == 1 ? 1 : 0;
        break;
      case Wave::Triangle:
        level = k % 2 == 0 ? 0 : (k % 4 == 1 ? 1.0 : -1.0) / (k * k);
        break;
      case Wave::Saw:
        level = 0.6 / k;
        break;
      case Wave::Square:
        level = k % 2 == 0 ? 0 : 0.9 / k;
        break;
      case Wave::Harmonics:
        level = static_cast<std::size_t>(k) <= it.harmonics.size() ? it.harmonics[k - 1] : 0;
        break;
    }
    if (!it.formants.empty()) {
      double gain = 0;
      for (const auto& f : it.formants) {
        const double off = (k * hz - f.hz) / f.width;
        gain += f.level / (1 + off * off);
      }
      level *= gain;
    }
    if (std::abs(level) < 1e-5) continue;
    for (std::size_t i = 0; i < kTable; ++i)
      table[i] += static_cast<float>(level) * sines[i * static_cast<std::size_t>(k) % kTable];
  }
  table[kTable] = table[0];
  return table;
}

double envelope(const Instrument& it, double t, double gate) {
  const auto held = [&](double at) {
    if (at < it.attack) return 0.5 - 0.5 * std::cos(std::numbers::pi * at / it.attack);
    return it.sustain + (1 - it.sustain) * std::exp(-4.6 * (at - it.attack) / it.decay);
  };
  if (t < gate) return held(t);
  const double left = std::max(0.0, 1 - (t - gate) / it.release);
  return held(gate) * left * left * left;
}

// State variable filter in its trapezoidal form, which stays stable while the frequency moves.
class Filter {
 public:
  void tune(double hz, double q) {
    g_ = std::tan(std::numbers::pi * std::clamp(hz, 20.0, 18000.0) / kRate);
    k_ = 1 / q;
    a_ = 1 / (1 + g_ * (g_ + k_));
  }
  double operator()(double in, FilterKind kind) {
    const double v3 = in - s2_;
    const double band = a_ * s1_ + g_ * a_ * v3;
    const double low = s2_ + g_ * band;
    s1_ = 2 * band - s1_;
    s2_ = 2 * low - s2_;
    switch (kind) {
      case FilterKind::None:
        return in;
      case FilterKind::Low:
        return low;
      case FilterKind::High:
        return in - k_ * band - low;
      case FilterKind::Band:
        return k_ * band;
    }
    return in;
  }

 private:
  double g_ = 0, k_ = 1, a_ = 1, s1_ = 0, s2_ = 0;
};

// One of the players of a unison.
struct Player {
  double phase, tune, vibratoRate, vibratoPhase, left, right;
  double step = 0;
};

class Voice {
 public:
  Voice(const Instrument& it, const std::vector<float>& table, const Note& note, Random& random)
      : it_(it), table_(table), note_(note), random_(random) {
    for (int i = 0; i < it.unison; ++i) {
      const double place = it.unison == 1 ? 0 : 2.0 * i / (it.unison - 1) - 1;
      const double share = 1 / std::sqrt(it.unison);
      players_.push_back({it.unison == 1 ? 0 : random.unit(),
                          std::exp2(it.unisonCents * (place + 0.3 * random.sway()) / 1200),
                          it.vibratoHz * (1 + 0.08 * random.sway()), random.unit(),
                          share * (1 - 0.5 * place), share * (1 + 0.5 * place)});
    }
    if (it.unison == 1) players_[0].vibratoPhase = 0;
  }

  // Adds the note to `out`; gains are those of the part for left and right.
  void play(Sound& out, std::size_t start, double gainLeft, double gainRight) {
    const double gate = note_.seconds;
    const auto count = static_cast<std::size_t>((gate + it_.release) * kRate);
    double amp = 0;
    for (std::size_t n = 0; n < count && start + n < out.size(); ++n) {
      const double t = static_cast<double>(n) / kRate;
      if (n % kControl == 0) control(t, envelope(it_, t, gate));
      double left = 0;
      double right = 0;
      sources(t, left, right);
      if (it_.filter != FilterKind::None) {
        left = filters_[0](left, it_.filter);
        right = filters_[1](right, it_.filter);
      }
      amp = envelope(it_, t, gate) * note_.velocity;
      if (it_.tremoloDepth > 0)
        amp *= 1 - it_.tremoloDepth * (0.5 - 0.5 * std::cos(kTau * it_.tremoloHz * t));
      out.left[start + n] += static_cast<float>(left * amp * gainLeft);
      out.right[start + n] += static_cast<float>(right * amp * gainRight);
    }
  }

 private:
  void control(double t, double level) {
    bend_ = it_.bendSeconds > 0
                ? std::exp2(it_.bendSemitones / 12 * std::exp(-4.6 * t / it_.bendSeconds))
                : 1;
    const double swell = it_.vibratoDelay > 0 ? std::min(1.0, t / it_.vibratoDelay) : 1;
    for (auto& p : players_) {
      const double sway = std::sin(kTau * (p.vibratoRate * t + p.vibratoPhase));
      const double vibrato = std::exp2(it_.vibratoCents / 1200 * swell * sway);
      p.step = note_.hz * bend_ * vibrato * p.tune / kRate;
    }
    if (it_.filter == FilterKind::None) return;
    double hz = it_.filterHz * (it_.filterTracks ? note_.hz / 440 : 1);
    if (it_.sweepSeconds > 0)
      hz *= std::pow(it_.sweepHz / it_.filterHz, std::min(1.0, t / it_.sweepSeconds));
    hz *= std::exp2(it_.filterOctaves * level * note_.velocity);
    for (auto& f : filters_) f.tune(hz, it_.filterQ);
  }

  void sources(double t, double& left, double& right) {
    double middle = 0;
    if (it_.wave != Wave::None) {
      for (auto& p : players_) {
        const double at = p.phase * kTable;
        const auto i = static_cast<std::size_t>(at);
        const double rest = at - static_cast<double>(i);
        const double value = table_[i] + (table_[i + 1] - table_[i]) * rest;
        p.phase += p.step;
        p.phase -= std::floor(p.phase);
        left += it_.waveLevel * value * p.left;
        right += it_.waveLevel * value * p.right;
      }
    }
    if (!it_.partials.empty() || it_.fmLevel > 0) cycle_ += note_.hz * bend_ / kRate;
    for (const auto& p : it_.partials) {
      if (p.ratio * note_.hz * bend_ > kTopHz) continue;
      middle += p.level * std::exp(-6.9 * t / p.decay) * std::sin(kTau * p.ratio * cycle_);
    }
    if (it_.fmLevel > 0) {
      const double index = it_.fmIndex * std::exp(-4.6 * t / it_.fmDecay);
      middle +=
          it_.fmLevel * std::sin(kTau * cycle_ + index * std::sin(kTau * it_.fmRatio * cycle_));
    }
    left += middle;
    right += middle;
    if (it_.noiseLevel > 0) {
      const double level =
          it_.noiseLevel * (it_.noiseDecay > 0 ? std::exp(-6.9 * t / it_.noiseDecay) : 1);
      left += level * random_.sway();
      right += level * random_.sway();
    }
  }

  const Instrument& it_;
  const std::vector<float>& table_;
  const Note& note_;
  Random& random_;
  std::vector<Player> players_;
  Filter filters_[2];
  double bend_ = 1, cycle_ = 0;
};

}  // namespace

Sound render(const Score& score) {
  const auto size = static_cast<std::size_t>(std::lround(score.length * kRate));
  const auto silence = [&] { return Sound{std::vector<float>(size), std::vector<float>(size)}; };
  Sound dry = silence();
  Sound send = silence();
  Random random(score.seed);
  std::map<std::pair<int, double>, std::vector<float>> tables;

  for (const Part& part : score.parts) {
    Sound own = silence();
    const double angle = (part.pan + 1) * std::numbers::pi / 4;
    const double left = part.gain * std::numbers::sqrt2 * std::cos(angle);
    const double right = part.gain * std::numbers::sqrt2 * std::sin(angle);
    for (const Note& note : part.notes) {
      for (const int index : part.instruments) {
        const Instrument& it = score.instruments[index];
        auto& table = tables[{index, note.hz}];
        if (table.empty()) table = makeTable(it, note.hz);
        const double late = score.loose * random.unit();
        Voice voice(it, table, note, random);
        voice.play(own, static_cast<std::size_t>((note.start + late) * kRate), left, right);
      }
    }
    for (std::size_t n = 0; n < size; ++n) {
      dry.left[n] += own.left[n];
      dry.right[n] += own.right[n];
      send.left[n] += static_cast<float>(part.send) * own.left[n];
      send.right[n] += static_cast<float>(part.send) * own.right[n];
    }
  }
  if (score.reverbSeconds > 0) addReverb(dry, send, score.reverbSeconds, score.reverbDamping);
  return dry;
}

}  // namespace suona
