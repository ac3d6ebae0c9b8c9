// Font files: reading, checking, and which of them serves which family.
#pragma once

#include <stb/stb_truetype.h>

#include <memory>
#include <string>
#include <vector>

namespace platform {

inline constexpr int kFaces = 8;

// One font file in memory.
class Face {
 public:
  // Null if the file cannot be read or is damaged.
  static std::unique_ptr<Face> Read(const std::string& path);

  const stbtt_fontinfo& info() const { return info_; }
  // All in parts of the em.
  double ascent() const { return ascent_; }
  double descent() const { return descent_; }
  double xHeight() const { return xHeight_; }
  double Advance(int glyph) const;

 private:
  std::vector<unsigned char> bytes_;
  stbtt_fontinfo info_{};
  double unit_ = 0;
  double ascent_ = 0;
  double descent_ = 0;
  double xHeight_ = 0;
};

// The number of the face that a family and weight are served by.
int FaceNumber(const std::string& family, bool bold);
// The face of that number, or another where its file is of no use. Null if none is.
const Face* FindFace(int number);
// The face in which to draw a character that the face of that number lacks. Null if none.
const Face* FallbackFace(int number);

}  // namespace platform
