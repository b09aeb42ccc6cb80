#pragma once

#include <string>
#include <string_view>

// Windows code page 1252, for tags, old settings files and the Windows
// dialect. The five bytes without a character (81 8D 8F 90 9D) stand for the
// control characters of the same number, so that every byte goes there and
// back.
namespace tavo {

char32_t Cp1252ToCode(unsigned char byte);

std::string Cp1252ToUtf8(std::string_view bytes);

// One byte a character. A character outside the page becomes `?`, never one
// that only looks like it. A byte that is no UTF-8 stays the byte it is.
std::string Utf8ToCp1252(std::string_view text);

// Case of single bytes of the page.
unsigned char Cp1252Upper(unsigned char byte);
unsigned char Cp1252Lower(unsigned char byte);

} // namespace tavo
