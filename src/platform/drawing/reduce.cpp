#include "platform/drawing/reduce.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace platform {
namespace {

// The weights of a target pixel add up to exactly this, so that a plain colour stays itself. Bytes
// averaged downwards then fill 16 bits; shifted by 15 bits to signed numbers and averaged across,
// 30 bits.
constexpr int kWholeDown = 1 << 8;
constexpr int kWholeAcross = 1 << 14;
constexpr int kShift = 1 << 15;
constexpr int kResultBits = 22;
// Takes the shift back and rounds to the nearest.
constexpr int kCorrection = kShift * kWholeAcross + (1 << (kResultBits - 1));

// Calls visit(i, s, weight) for each source pixel s that the target pixel i covers a part of.
template <class Visit>
void ForEachWeight(int source, int target, int whole, const Visit& visit) {
  for (int i = 0; i < target; ++i) {
    // In units of 1 / target of a source pixel the target pixel covers [from, to).
    const std::int64_t from = std::int64_t(i) * source;
    const std::int64_t to = from + source;
    // Rounding the running sum instead of each weight keeps the total exact.
    std::int64_t before = 0;
    for (std::int64_t s = from / target; s * target < to; ++s) {
      const std::int64_t covered = std::min(to, (s + 1) * target) - from;
      const std::int64_t sum = (covered * whole * 2 + source) / (std::int64_t(source) * 2);
      visit(i, static_cast<int>(s), static_cast<int>(sum - before));
      before = sum;
    }
  }
}

// The average of pairs * 2 pixels of four channels. The number of pairs is a type of its own where
// it is known beforehand.
template <class Pairs>
std::uint32_t Average(const std::uint16_t* from, const std::uint32_t* weights, Pairs pairs) {
#if defined(__SSE2__)
  __m128i sum = _mm_set1_epi32(kCorrection);
  for (int i = 0; i < pairs; ++i) {
    const __m128i both = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i * 8));
    const __m128i mixed = _mm_unpacklo_epi16(both, _mm_unpackhi_epi64(both, both));
    const __m128i weight = _mm_set1_epi32(static_cast<int>(weights[i]));
    sum = _mm_add_epi32(sum, _mm_madd_epi16(mixed, weight));
  }
  sum = _mm_srli_epi32(sum, kResultBits);
  sum = _mm_packs_epi32(sum, sum);
  return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(sum, sum))) & 0xFFFFFF;
#else
  std::int32_t sum[3] = {kCorrection, kCorrection, kCorrection};
  for (int i = 0; i < pairs; ++i)
    for (int c = 0; c < 3; ++c)
      sum[c] += static_cast<std::int16_t>(from[i * 8 + c]) * static_cast<int>(weights[i] & 0xFFFF) +
                static_cast<std::int16_t>(from[i * 8 + 4 + c]) * static_cast<int>(weights[i] >> 16);
  std::uint32_t pixel = 0;
  for (int c = 0; c < 3; ++c) pixel |= static_cast<std::uint32_t>(sum[c] >> kResultBits) << c * 8;
  return pixel;
#endif
}

// Adds two rows up by their weights, shifted: nearly every row of a window is made of one or two.
void Down(std::uint16_t* line, const std::uint8_t* a, const std::uint8_t* b, int weightA,
          int weightB, int bytes) {
  const auto wa = static_cast<std::uint16_t>(weightA), wb = static_cast<std::uint16_t>(weightB);
  for (int i = 0; i < bytes; ++i)
    line[i] = static_cast<std::uint16_t>(a[i] * wa + b[i] * wb + kShift);
}

}  // namespace

Reducer::Reducer(int sourceWidth, int sourceHeight, int targetWidth, int targetHeight)
    : sourceWidth_(std::max(sourceWidth, 0)),
      sourceHeight_(std::max(sourceHeight, 0)),
      targetWidth_(sourceWidth_ > 0 ? std::max(targetWidth, 0) : 0),
      targetHeight_(sourceHeight_ > 0 ? std::max(targetHeight, 0) : 0),
      columns_(static_cast<std::size_t>(targetWidth_)),
      rows_(static_cast<std::size_t>(targetHeight_)) {
  const auto widen = [](Span& span, int s) {
    if (span.count == 0) span.first = s;
    ++span.count;
  };
  ForEachWeight(sourceHeight_, targetHeight_, kWholeDown, [&](int i, int s, int weight) {
    if (rows_[i].count == 0) rows_[i].weight = static_cast<int>(rowWeights_.size());
    widen(rows_[i], s);
    rowWeights_.push_back(static_cast<std::uint16_t>(weight));
  });
  ForEachWeight(sourceWidth_, targetWidth_, kWholeAcross, [&](int i, int s, int) {
    widen(columns_[i], s);
    pairs_ = std::max(pairs_, (columns_[i].count + 1) / 2);
  });
  // Every column has the same number of weights, the last ones 0 where it needs fewer: a loop of
  // fixed length is worth more than the multiplications that it could spare.
  columnWeights_.resize(static_cast<std::size_t>(targetWidth_) * pairs_);
  ForEachWeight(sourceWidth_, targetWidth_, kWholeAcross, [&](int i, int s, int weight) {
    columns_[i].weight = i * pairs_;
    const int at = s - columns_[i].first;
    columnWeights_[columns_[i].weight + at / 2] |= static_cast<std::uint32_t>(weight)
                                                   << at % 2 * 16;
  });
  line_.resize((static_cast<std::size_t>(sourceWidth_) + static_cast<std::size_t>(pairs_) * 2) * 4);
}

DeviceRect Reducer::TargetOf(const DeviceRect& source) const {
  const DeviceRect r = Intersect(source, {0, 0, sourceWidth_, sourceHeight_});
  if (r.empty() || targetWidth_ == 0 || targetHeight_ == 0) return {};
  const auto low = [](int at, int from, int to) {
    return static_cast<int>(std::int64_t(at) * to / from);
  };
  const auto high = [](int at, int from, int to) {
    return static_cast<int>((std::int64_t(at) * to + from - 1) / from);
  };
  return {low(r.left, sourceWidth_, targetWidth_), low(r.top, sourceHeight_, targetHeight_),
          high(r.right, sourceWidth_, targetWidth_), high(r.bottom, sourceHeight_, targetHeight_)};
}

void Reducer::Run(const std::uint32_t* source, int sourceStride, std::uint32_t* targetPixels,
                  int targetStride, const DeviceRect& target) {
  const DeviceRect r = Intersect(target, {0, 0, targetWidth_, targetHeight_});
  if (r.empty()) return;
  const auto sourceRow = [&](int y) { return source + std::ptrdiff_t(y) * sourceStride; };
  const auto targetRow = [&](int y) { return targetPixels + std::ptrdiff_t(y) * targetStride; };
  if (sourceWidth_ == targetWidth_ && sourceHeight_ == targetHeight_) {
    for (int y = r.top; y < r.bottom; ++y)
      std::memcpy(targetRow(y) + r.left, sourceRow(y) + r.left,
                  static_cast<std::size_t>(r.width()) * sizeof(std::uint32_t));
    return;
  }
  const int first = columns_[r.left].first;
  const int end = columns_[r.right - 1].first + columns_[r.right - 1].count;
  const int bytes = (end - first) * 4;
  for (int y = r.top; y < r.bottom; ++y) {
    const Span& rows = rows_[y];
    std::uint16_t* const line = line_.data();
    const auto row = [&](int i) {
      return reinterpret_cast<const std::uint8_t*>(sourceRow(rows.first + i) + first);
    };
    const auto weight = [&](int i) { return i < rows.count ? rowWeights_[rows.weight + i] : 0; };
    Down(line, row(0), row(rows.count > 1 ? 1 : 0), weight(0), weight(1), bytes);
    for (int i = 2; i < rows.count; ++i) {
      const auto* from = row(i);
      const auto w = static_cast<std::uint16_t>(weight(i));
      for (int b = 0; b < bytes; ++b) line[b] = static_cast<std::uint16_t>(line[b] + from[b] * w);
    }
    std::uint32_t* to = targetRow(y);
    const auto across = [&](auto pairs) {
      for (int x = r.left; x < r.right; ++x)
        to[x] = Average(line + std::ptrdiff_t(columns_[x].first - first) * 4,
                        columnWeights_.data() + columns_[x].weight, pairs);
    };
    if (pairs_ == 1)  // at most two columns of the source in each
      across(std::integral_constant<int, 1>{});
    else
      across(pairs_);
  }
}

}  // namespace platform
