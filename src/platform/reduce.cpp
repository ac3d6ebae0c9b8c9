#include "platform/reduce.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {
namespace {

// The weights of a target pixel add up to exactly this, so that a plain colour stays itself. A
// column of weighted bytes then still fits into 16 bits.
constexpr int kWhole = 256;

}  // namespace

Reducer::Reducer(int sourceWidth, int sourceHeight, int targetWidth, int targetHeight)
    : sourceWidth_(std::max(sourceWidth, 0)),
      sourceHeight_(std::max(sourceHeight, 0)),
      targetWidth_(sourceWidth_ > 0 ? std::max(targetWidth, 0) : 0),
      targetHeight_(sourceHeight_ > 0 ? std::max(targetHeight, 0) : 0) {
  const auto spans = [this](int source, int target) {
    std::vector<Span> result;
    result.reserve(static_cast<std::size_t>(target));
    for (int i = 0; i < target; ++i) {
      // In units of 1 / target of a source pixel the target pixel covers [from, to).
      const std::int64_t from = std::int64_t(i) * source;
      const std::int64_t to = from + source;
      const int first = static_cast<int>(from / target);
      const int end = static_cast<int>((to + target - 1) / target);
      result.push_back({first, end - first, static_cast<int>(weights_.size())});
      // Rounding the running sum instead of each weight keeps the total exact.
      std::int64_t before = 0;
      for (int s = first; s < end; ++s) {
        const std::int64_t covered =
            std::min<std::int64_t>(to, std::int64_t(s + 1) * target) - from;
        const std::int64_t sum = (covered * kWhole * 2 + source) / (std::int64_t(source) * 2);
        weights_.push_back(static_cast<std::uint16_t>(sum - before));
        before = sum;
      }
    }
    return result;
  };
  columns_ = spans(sourceWidth_, targetWidth_);
  rows_ = spans(sourceHeight_, targetHeight_);
  line_.resize(static_cast<std::size_t>(sourceWidth_) * 4);
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
  for (int y = r.top; y < r.bottom; ++y) {
    const Span& rows = rows_[y];
    const std::size_t bytes = static_cast<std::size_t>(end - first) * 4;
    std::uint16_t* const line = line_.data();
    for (int i = 0; i < rows.count; ++i) {
      const auto* from = reinterpret_cast<const std::uint8_t*>(sourceRow(rows.first + i) + first);
      const std::uint16_t weight = weights_[rows.weight + i];
      if (i == 0)
        for (std::size_t b = 0; b < bytes; ++b)
          line[b] = static_cast<std::uint16_t>(from[b] * weight);
      else
        for (std::size_t b = 0; b < bytes; ++b)
          line[b] = static_cast<std::uint16_t>(line[b] + from[b] * weight);
    }
    std::uint32_t* to = targetRow(y);
    for (int x = r.left; x < r.right; ++x) {
      const Span& columns = columns_[x];
      const std::uint16_t* from = line + std::ptrdiff_t(columns.first - first) * 4;
      const std::uint16_t* weight = weights_.data() + columns.weight;
      std::uint32_t blue = 1 << 15, green = 1 << 15, red = 1 << 15;
      for (int i = 0; i < columns.count; ++i, from += 4) {
        blue += std::uint32_t(from[0]) * weight[i];
        green += std::uint32_t(from[1]) * weight[i];
        red += std::uint32_t(from[2]) * weight[i];
      }
      to[x] = blue >> 16 | (green >> 8 & 0x00FF00) | (red & 0xFF0000);
    }
  }
}

}  // namespace platform
