#pragma once

#include <string>
#include <string_view>

namespace vantor {

/// Whether `bytes` is well-formed UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool isUTF8(std::string_view bytes);

/// `bytes` where they are well-formed; else with the replacement character U+FFFD for each run that
/// begins no character, written into `mended`, which then holds the result.
std::string_view validUTF8(std::string_view bytes, std::string& mended);

/// The same as a text of its own.
std::string repairedUTF8(std::string_view bytes);

/// For identifiers: each byte that belongs to no character is written as `\xE9`, so that different
/// bytes stay different. A text that contains such an escape itself cannot be distinguished from
/// it.
std::string distinctUTF8(std::string_view bytes);

}  // namespace vantor
