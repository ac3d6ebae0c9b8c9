#include "platform/drawing/enlarge.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/drawing/resample.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace platform {
namespace {

// The weights of a target pixel add up to exactly this, so that a plain colour stays itself. A
// cubic overshoots: bytes are shifted to signed ones, so that their sums downwards stay within 16
// bits.
constexpr int kWholeDown = 1 << 7;
constexpr int kWholeAcross = 1 << 14;
constexpr int kShift = 128;
constexpr int kResultBits = 21;
// Takes the shift back and rounds to the nearest.
constexpr int kCorrection = (kShift << kResultBits) + (1 << (kResultBits - 1));

struct Taps {
  int first = 0;  // of four neighbours; may lie outside the source, which goes on as it ends
  std::array<std::int16_t, 4> weights{};
};

std::vector<Taps> TapsOf(int source, int target, int whole) {
  std::vector<Taps> all(static_cast<std::size_t>(target));
  for (int i = 0; i < target; ++i) {
    const double at = (i + 0.5) * source / target - 0.5;
    const double t = at - std::floor(at);
    const double w[] = {t * (-0.5 + t * (1 - 0.5 * t)), 1 + t * t * (1.5 * t - 2.5),
                        t * (0.5 + t * (2 - 1.5 * t)), t * t * (0.5 * t - 0.5)};
    Taps& taps = all[static_cast<std::size_t>(i)];
    taps.first = static_cast<int>(std::floor(at)) - 1;
    int rest = whole;
    for (std::size_t k = 0; k < 4; ++k) {
      taps.weights[k] = static_cast<std::int16_t>(std::lround(w[k] * whole));
      rest -= taps.weights[k];
    }
    std::int16_t& most = taps.weights[t < 0.5 ? 1 : 2];
    most = static_cast<std::int16_t>(most + rest);
  }
  return all;
}

// The four channels of a pixel, in parts of 1 << kResultBits and shifted; where the cubic
// overshoots, beyond what a byte holds.
struct Sums {
  alignas(16) std::array<std::int32_t, 4> channels{};
};

Sums Across(const std::int16_t* from, const std::array<std::int16_t, 4>& w) {
  Sums sums;
#if defined(__SSE2__)
  const auto half = [](const std::int16_t* two, int a, int b) {
    const __m128i both = _mm_loadu_si128(reinterpret_cast<const __m128i*>(two));
    const __m128i mixed = _mm_unpacklo_epi16(both, _mm_unpackhi_epi64(both, both));
    return _mm_madd_epi16(mixed, _mm_set1_epi32((b << 16) | (a & 0xFFFF)));
  };
  _mm_store_si128(reinterpret_cast<__m128i*>(sums.channels.data()),
                  _mm_add_epi32(half(from, w[0], w[1]), half(from + 8, w[2], w[3])));
#else
  for (std::size_t c = 0; c < 4; ++c)
    for (std::size_t k = 0; k < 4; ++k) sums.channels[c] += from[k * 4 + c] * w[k];
#endif
  return sums;
}

std::uint32_t Pack(const Sums& sums) {
#if defined(__SSE2__)
  const __m128i all = _mm_load_si128(reinterpret_cast<const __m128i*>(sums.channels.data()));
  const __m128i whole =
      _mm_srai_epi32(_mm_add_epi32(all, _mm_set1_epi32(kCorrection)), kResultBits);
  const __m128i words = _mm_packs_epi32(whole, whole);
  return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(words, words)));
#else
  std::uint32_t pixel = 0;
  for (std::size_t c = 0; c < 4; ++c)
    pixel |= static_cast<std::uint32_t>(
                 std::clamp((sums.channels[c] + kCorrection) >> kResultBits, 0, 255))
             << c * 8;
  return pixel;
#endif
}

// Back from colours that count by their opacity. An opacity that overshoots has taken its colours
// along.
std::uint32_t PackUnmultiplied(Sums sums) {
  constexpr int kZero = -(kShift << kResultBits);
  constexpr int kFull = (255 - kShift) << kResultBits;
  const int alpha = sums.channels[3];
  if (alpha == kFull) return Pack(sums);
  if (alpha <= kZero) return 0;
  const double one = double(kFull - kZero) / (double(alpha) - kZero);
  for (std::size_t c = 0; c < 3; ++c)
    sums.channels[c] = static_cast<std::int32_t>(
        std::clamp((double(sums.channels[c]) - kZero) * one + kZero, double(kZero), double(kFull)));
  return Pack(sums);
}

std::uint32_t Premultiply(std::uint32_t p) {
  const std::uint32_t alpha = p >> 24;
  if (alpha == 255) return p;
  std::uint32_t out = alpha << 24;
  for (int shift = 0; shift < 24; shift += 8)
    out |= ((p >> shift & 0xFF) * alpha + 127) / 255 << shift;
  return out;
}

}  // namespace

void Enlarge(const PixelView& source, int width, int height, bool alpha, std::uint32_t* target) {
  const std::vector<Taps> columns = TapsOf(source.width, width, kWholeAcross);
  const std::vector<Taps> rows = TapsOf(source.height, height, kWholeDown);
  const auto sourceRow = [&source](int y) {
    return source.pixels + std::ptrdiff_t(std::clamp(y, 0, source.height - 1)) * source.stride;
  };
  std::vector<std::uint32_t> opaque;
  if (alpha) {
    opaque.reserve(static_cast<std::size_t>(source.width) *
                   static_cast<std::size_t>(source.height));
    for (int y = 0; y < source.height; ++y)
      std::transform(sourceRow(y), sourceRow(y) + source.width, std::back_inserter(opaque),
                     Premultiply);
  }
  const PixelView from =
      alpha ? PixelView{opaque.data(), source.width, source.width, source.height} : source;
  const auto bytes = [&from](int y) {
    return reinterpret_cast<const std::uint8_t*>(
        from.pixels + std::ptrdiff_t(std::clamp(y, 0, from.height - 1)) * from.stride);
  };
  // A row averaged downwards, four channels a pixel, with two pixels more at either end.
  constexpr int kMargin = 2 * 4;
  const int count = from.width * 4;
  std::vector<std::int16_t> line(static_cast<std::size_t>(count + 2 * kMargin));
  std::int16_t* const inside = line.data() + kMargin;
  for (int y = 0; y < height; ++y) {
    const Taps& taps = rows[static_cast<std::size_t>(y)];
    const std::uint8_t *a = bytes(taps.first), *b = bytes(taps.first + 1),
                       *c = bytes(taps.first + 2), *d = bytes(taps.first + 3);
    const int wa = taps.weights[0], wb = taps.weights[1], wc = taps.weights[2],
              wd = taps.weights[3];
    for (int i = 0; i < count; ++i)
      inside[i] = static_cast<std::int16_t>(a[i] * wa + b[i] * wb + c[i] * wc + d[i] * wd -
                                            kShift * kWholeDown);
    for (int i = 0; i < kMargin; ++i) {
      line[static_cast<std::size_t>(i)] = inside[i % 4];
      inside[count + i] = inside[count - 4 + i % 4];
    }
    std::uint32_t* to = target + std::ptrdiff_t(y) * width;
    for (int x = 0; x < width; ++x) {
      const Taps& column = columns[static_cast<std::size_t>(x)];
      const Sums sums = Across(inside + column.first * 4, column.weights);
      to[x] = alpha ? PackUnmultiplied(sums) : Pack(sums);
    }
  }
}

}  // namespace platform
