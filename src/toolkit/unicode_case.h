#pragma once

// Simple case of single code points, as Unicode lays it down: one code point
// to one. What has no other case, and numbers that are no code point, come
// back as they are.
namespace tavo {

char32_t SimpleUpper(char32_t code);
char32_t SimpleLower(char32_t code);
// Common form for comparison without regard to case.
char32_t SimpleFold(char32_t code);

} // namespace tavo
