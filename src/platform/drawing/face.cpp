#include "platform/drawing/face.h"

#include <array>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

#include "platform/drawing/font.h"
#include "platform/drawing/glyphs.h"
#include "platform/drawing/input_file.h"

namespace platform {
namespace {

constexpr std::array<const char*, kFaces> kFiles = {
    "DejaVuSans.ttf",
    "DejaVuSans-Bold.ttf",
    "LiberationSans-Regular.ttf",
    "LiberationSans-Bold.ttf",
    "LiberationSerif-Regular.ttf",
    "LiberationSerif-Bold.ttf",
    "LiberationMono-Regular.ttf",
    "LiberationMono-Bold.ttf",
};

std::uint32_t Word(const unsigned char* p) {
  return std::uint32_t(p[0]) << 24 | std::uint32_t(p[1]) << 16 | std::uint32_t(p[2]) << 8 | p[3];
}

// stb_truetype trusts what it reads, so a file with a table cut off or changed must not reach it.
bool IsWhole(const std::vector<unsigned char>& bytes) {
  constexpr std::size_t kHeader = 12;
  constexpr std::size_t kEntry = 16;
  if (bytes.size() < kHeader || Word(bytes.data()) != 0x00010000) return false;
  const std::size_t tables = std::size_t(bytes[4]) << 8 | bytes[5];
  if (bytes.size() < kHeader + tables * kEntry) return false;
  constexpr std::string_view kNeeded = "cmap glyf head hhea hmtx loca maxp";
  int found = 0;
  for (std::size_t i = 0; i < tables; ++i) {
    const unsigned char* entry = bytes.data() + kHeader + i * kEntry;
    const std::string_view tag(reinterpret_cast<const char*>(entry), 4);
    const std::size_t start = Word(entry + 8);
    const std::size_t length = Word(entry + 12);
    if (start > bytes.size() || length > bytes.size() - start) return false;
    const std::size_t at = kNeeded.find(tag);
    if (at == std::string_view::npos || at % 5 != 0) continue;
    ++found;
    const unsigned char* p = bytes.data() + start;
    std::uint32_t sum = 0;
    std::size_t n = 0;
    for (; n + 4 <= length; n += 4) sum += Word(p + n);
    for (int shift = 24; n < length; ++n, shift -= 8) sum += std::uint32_t(p[n]) << shift;
    if (tag == "head") {
      if (length < 54) return false;
      sum -= Word(p + 8);  // the adjustment for the whole file, not part of the table's own sum
    }
    if (sum != Word(entry + 4)) return false;
  }
  return found == 7;
}

struct Shelf {
  std::string folder;
  std::array<std::optional<std::unique_ptr<Face>>, kFaces> faces;  // read at the first wish
};

Shelf& TheShelf() {
  static Shelf shelf;
  return shelf;
}

std::string PathOf(int number) { return TheShelf().folder + "/" + kFiles[number]; }

const Face* Own(int number) {
  std::optional<std::unique_ptr<Face>>& slot = TheShelf().faces[number];
  if (!slot) slot = Face::Read(PathOf(number));
  return slot->get();
}

}  // namespace

std::unique_ptr<Face> Face::Read(const std::string& path) {
  std::string bytes;
  const InputFile file = OpenInput(path);
  if (!file || !ReadAll(file.get(), bytes)) return nullptr;
  auto face = std::make_unique<Face>();
  face->bytes_.assign(bytes.begin(), bytes.end());
  if (!IsWhole(face->bytes_) || !stbtt_InitFont(&face->info_, face->bytes_.data(), 0))
    return nullptr;
  face->unit_ = stbtt_ScaleForMappingEmToPixels(&face->info_, 1);
  int ascent = 0;
  int descent = 0;
  int gap = 0;
  stbtt_GetFontVMetrics(&face->info_, &ascent, &descent, &gap);
  face->ascent_ = ascent * face->unit_;
  face->descent_ = -descent * face->unit_;
  int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  if (stbtt_GetCodepointBox(&face->info_, 'x', &x0, &y0, &x1, &y1))
    face->xHeight_ = y1 * face->unit_;
  return face;
}

double Face::Advance(int glyph) const {
  int advance = 0;
  int bearing = 0;
  stbtt_GetGlyphHMetrics(&info_, glyph, &advance, &bearing);
  return advance * unit_;
}

int FaceNumber(const std::string& family, bool bold) {
  const int weight = bold ? 1 : 0;
  if (family == "Verdana") return weight;
  if (family == "Times New Roman") return 4 + weight;
  if (family == "Courier New") return 6 + weight;
  return 2 + weight;
}

const Face* FindFace(int number) {
  if (const Face* face = Own(number)) return face;
  if (const Face* face = Own(number ^ 1)) return face;
  if (const Face* face = Own(number & 1)) return face;
  for (int i = 0; i < kFaces; ++i)
    if (const Face* face = Own(i)) return face;
  return nullptr;
}

const Face* FallbackFace(int number) { return FindFace(number & 1); }

void SetFontFolder(std::string folder) {
  ForgetGlyphs();
  TheShelf() = {};
  TheShelf().folder = std::move(folder);
}

std::string MissingFonts() {
  std::string missing;
  for (int i = 0; i < kFaces; ++i) {
    const std::optional<std::unique_ptr<Face>>& read = TheShelf().faces[i];
    // Asking must not cost the reading of faces that may never be used.
    if (read ? *read != nullptr : OpenInput(PathOf(i)) != nullptr) continue;
    if (!missing.empty()) missing += ", ";
    missing += PathOf(i);
  }
  return missing;
}

}  // namespace platform
