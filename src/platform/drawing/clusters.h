// Text as a reader sees it: a letter with its accents is one character, however many code points
// it is written in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace platform {

// The end of the character that begins at byte `at`, and the start of the one that ends there.
std::size_t NextCluster(std::string_view text, std::size_t at);
std::size_t PreviousCluster(std::string_view text, std::size_t at);

// The word, the blanks or the signs around byte `at`, as [first, second).
std::pair<std::size_t, std::size_t> WordAround(std::string_view text, std::size_t at);
// The start of the word before `at`, and the start of the one behind it.
std::size_t PreviousWord(std::string_view text, std::size_t at);
std::size_t NextWord(std::string_view text, std::size_t at);

// For a text of one line: accents joined to their letters where there is such a letter, line breaks
// and tabs made blanks, other control characters left out, bytes that are no UTF-8 made U+FFFD.
std::string OneLine(std::string_view text);

}  // namespace platform
