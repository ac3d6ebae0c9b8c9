#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace suona {

enum class Wave { None, Sine, Triangle, Saw, Square, Harmonics };
enum class FilterKind { None, Low, High, Band };

// A sine at a multiple of the pitch, dying to a thousandth in `decay` seconds.
struct Partial {
  double ratio, level, decay;
};

// A resonance at a fixed frequency: the same vowel or body at every pitch.
struct Formant {
  double hz, width, level;
};

struct Instrument {
  std::string name;
  Wave wave = Wave::None;
  double waveLevel = 1;
  std::vector<double> harmonics;
  std::vector<Formant> formants;
  std::vector<Partial> partials;
  double fmRatio = 0, fmIndex = 0, fmDecay = 0, fmLevel = 0;
  double noiseLevel = 0, noiseDecay = 0;  // decay 0: steady
  int unison = 1;
  double unisonCents = 0;
  double vibratoHz = 0, vibratoCents = 0, vibratoDelay = 0;
  double tremoloHz = 0, tremoloDepth = 0;
  double bendSemitones = 0, bendSeconds = 0;
  double attack = 0.005, decay = 0.1, sustain = 1, release = 0.05;
  FilterKind filter = FilterKind::None;
  double filterHz = 0, filterQ = 0.7, filterOctaves = 0;
  bool filterTracks = false;             // the filter is meant for A4 and moves with the pitch
  double sweepHz = 0, sweepSeconds = 0;  // 0 seconds: the filter stays where it is
};

struct Note {
  double hz, velocity;
  double start, seconds;
};

struct Part {
  std::vector<int> instruments;  // indices into Score::instruments; all play every note
  double gain = 1, pan = 0, send = 0, gate = 0.95;
  std::vector<Note> notes;
};

struct Score {
  double length = 0;
  int channels = 1;
  unsigned seed = 1;
  double loose = 0;  // seconds by which players miss the beat, at most
  double reverbSeconds = 0, reverbDamping = 0.5;
  double fade = 0.01;
  std::vector<Instrument> instruments;
  std::vector<Part> parts;
};

// What is wrong with a score, as one sentence that begins with file and line.
class ScoreError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

Score readScore(const std::filesystem::path& file);

}  // namespace suona
