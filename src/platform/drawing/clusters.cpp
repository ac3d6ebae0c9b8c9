#include "platform/drawing/clusters.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>
#include <utility>

#include "platform/drawing/glyphs.h"

namespace platform {
namespace {

enum class Kind { Word, Blank, Sign };

Kind KindOf(std::string_view text, std::size_t at) {
  switch (utf8proc_category(static_cast<utf8proc_int32_t>(NextCharacter(text, at)))) {
    case UTF8PROC_CATEGORY_ZS:
      return Kind::Blank;
    case UTF8PROC_CATEGORY_LU:
    case UTF8PROC_CATEGORY_LL:
    case UTF8PROC_CATEGORY_LT:
    case UTF8PROC_CATEGORY_LM:
    case UTF8PROC_CATEGORY_LO:
    case UTF8PROC_CATEGORY_MN:
    case UTF8PROC_CATEGORY_MC:
    case UTF8PROC_CATEGORY_ND:
    case UTF8PROC_CATEGORY_NL:
    case UTF8PROC_CATEGORY_NO:
      return Kind::Word;
    default:
      return Kind::Sign;
  }
}

void Append(std::string& text, char32_t c) {
  utf8proc_uint8_t bytes[4];
  const auto count = utf8proc_encode_char(static_cast<utf8proc_int32_t>(c), bytes);
  text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
}

}  // namespace

std::size_t NextCluster(std::string_view text, std::size_t at) {
  if (at >= text.size()) return text.size();
  utf8proc_int32_t state = 0;
  auto before = static_cast<utf8proc_int32_t>(NextCharacter(text, at));
  while (at < text.size()) {
    std::size_t next = at;
    const auto c = static_cast<utf8proc_int32_t>(NextCharacter(text, next));
    if (utf8proc_grapheme_break_stateful(before, c, &state)) break;
    before = c;
    at = next;
  }
  return at;
}

std::size_t PreviousCluster(std::string_view text, std::size_t at) {
  // What belongs together can be told only from the front.
  std::size_t start = 0;
  for (std::size_t next = 0; next < at && next < text.size();) {
    start = next;
    next = NextCluster(text, next);
  }
  return start;
}

std::pair<std::size_t, std::size_t> WordAround(std::string_view text, std::size_t at) {
  std::pair<std::size_t, std::size_t> run{0, 0};
  while (run.second < text.size() && run.second <= at) {
    run.first = run.second;
    const Kind kind = KindOf(text, run.first);
    while (run.second < text.size() && KindOf(text, run.second) == kind)
      run.second = NextCluster(text, run.second);
  }
  return run;
}

std::size_t PreviousWord(std::string_view text, std::size_t at) {
  std::size_t start = 0;
  for (std::size_t next = 0; next < at;) {
    start = next;
    next = NextWord(text, next);
  }
  return start;
}

std::size_t NextWord(std::string_view text, std::size_t at) {
  if (at >= text.size()) return text.size();
  const Kind kind = KindOf(text, at);
  while (at < text.size() && KindOf(text, at) == kind) at = NextCluster(text, at);
  while (at < text.size() && KindOf(text, at) == Kind::Blank) at = NextCluster(text, at);
  return at;
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t here = at;
    const char32_t c = NextCharacter(text, at);
    const bool breaks = (c >= '\t' && c <= '\r') || c == 0x85 || c == 0x2028 || c == 0x2029;
    if (breaks) {
      if (c == '\r' && at < text.size() && text[at] == '\n') ++at;
      line += ' ';
    } else if (c == 0xFFFD) {
      Append(line, c);
    } else if (utf8proc_category(static_cast<utf8proc_int32_t>(c)) != UTF8PROC_CATEGORY_CC) {
      line.append(text.substr(here, at - here));
    }
  }
  struct Free {
    void operator()(utf8proc_uint8_t* bytes) const { std::free(bytes); }
  };
  const std::unique_ptr<utf8proc_uint8_t, Free> composed(
      utf8proc_NFC(reinterpret_cast<const utf8proc_uint8_t*>(line.c_str())));
  return composed ? std::string(reinterpret_cast<const char*>(composed.get())) : line;
}

}  // namespace platform
