// The host's text functions. Text is one byte a character. Positions count
// from 1, and a search that finds nothing returns 0.
//
// Functions that return a `string_view` return a part of their argument: it
// lives no longer than the text that was passed in.
//
// No program of ours calls `Len`, `Left`, `Right`, `Mid`, `Replace`, `Asc`,
// `CountFields` and `NthField`.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quill::base {

// The host's string equality: the case of the letters A to Z does not count.
bool EqualText(std::string_view a, std::string_view b);

// One of the ten digits of ASCII.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A letter of ASCII.
constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

std::size_t Len(std::string_view text);

// Return the first, the last `count` characters. A count of 0 or less gives the
// empty text, one above the length the whole.
std::string_view Left(std::string_view text, std::ptrdiff_t count);
std::string_view Right(std::string_view text, std::ptrdiff_t count);

// Return `count` characters from position `start` on, or all of them to the end. A
// start below 1 counts as 1, one behind the end gives the empty text.
std::string_view Mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t count);
std::string_view Mid(std::string_view text, std::ptrdiff_t start);

// Returns the position of the first `what` at or behind `start` (from 1), 0 if there
// is none. The case of the letters A to Z does not count. An empty `what` is found
// nowhere.
std::size_t InStr(std::size_t start, std::string_view text, std::string_view what);
std::size_t InStr(std::string_view text, std::string_view what);

// Returns `text` without the blanks, tabs, line feeds and carriage returns at its ends.
std::string_view Trim(std::string_view text);

// The first, every `what` in `text` by `with`; letter case counts. All are
// replaced from left to right, and what was put in is not looked at again. An
// empty `what` changes nothing.
std::string Replace(std::string_view text, std::string_view what, std::string_view with);
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);

// The fields of `text` between separators; letter case counts. A text without
// the separator is one field, an empty text has none, and a field beyond the
// last (or below 1) is empty. `separator` must not be empty.
std::size_t CountFields(std::string_view text, std::string_view separator);
std::string_view NthField(std::string_view text, std::string_view separator, std::size_t n);

// Ours, not the domain's: all fields at once, for who walks them, in one pass
// instead of one for each.
std::vector<std::string_view> Fields(std::string_view text, char separator);

// Returns `text` with the letters a to z in upper case. Ours, not the domain's.
std::string Uppercase(std::string_view text);

// Returns the character of that code as text. Text has one byte a character: a code
// above 255 gives the nearest character of ISO 8859-1 where there is an obvious
// one (curly quotes, dashes), else "?". A code below 0 gives "?" too.
std::string Chr(int code);

// Returns the code of the first character, 0 to 255; 0 for an empty text.
int Asc(std::string_view text);

}  // namespace quill::base
