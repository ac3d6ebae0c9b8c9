// What is done to words that come from outside or stand in capitals.
#pragma once

#include <string>
#include <string_view>

namespace girovia {

// A name of more than 12 characters becomes its first 12 and "...". A character is what a reader
// takes for one: letter with its accents, flag, family of emoji. Bytes that are no UTF-8 are
// replaced by U+FFFD first.
std::string TroncaNome(std::string_view nome);

// By the rules of the script, accents and all. What is no UTF-8 becomes U+FFFD.
std::string Maiuscole(std::string_view testo);
std::string PrimaMaiuscola(std::string_view testo);

}  // namespace girovia
