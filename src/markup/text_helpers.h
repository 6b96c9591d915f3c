// Functions on text that the markup classes share: white space, and the two
// forms of a text. In the program it is Mac Roman with plain characters; in an
// XML file it is ISO 8859-1 with "&amp;", "&lt;", "&gt;" and decimal references.
//
// White space is the blank, the tab, the line feed and the carriage return.
// Positions count from 1, and a search that finds nothing gives 0. The
// converters are shared by all callers: one thread only.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/text_converter.h"

namespace quill::markup {

// What the toolkit's users set for all of it.
namespace zkXMLToolkitGlobals {

// Markup is written indented, and white space between its parts left out.
inline bool UseXMLFormatting = false;

// A line break and one level of indentation, as markup is written. Empty until
// they are first asked for; set before, they stay.
inline std::string zkXMLLineDelimiter;
inline std::string zkXMLIndentationChar;

}  // namespace zkXMLToolkitGlobals

// The line break of all written markup: one carriage return, unless another has
// been set.
const std::string& zkXMLLineBreak();
void SetXMLLineBreakMac();

// One level of indentation: a tab, unless another text has been set.
const std::string& zkXMLIndentationCharacter();

// Whether `text` is one white space character. No program of ours calls this.
bool IsWhiteSpaceChar(std::string_view text);

// Position of the first white space character, of the first other character,
// at or behind position `start` (from 1).
std::size_t WhiteSpaceInStr(std::string_view text, std::size_t start = 1);
std::size_t NonWhiteSpaceInStr(std::string_view text, std::size_t start = 1);

// Program text to file text. Only a text that the conversion changes gets numeric
// references, and then for all its control characters too; a few characters
// outside ASCII, the pound sign among them, have the same code in both encodings.
// Throws `NilObjectException` if the machine has no converter for the two.
std::string EncodeXMLText(std::string_view text);

// File text to program text, one layer of escapes; "&apos;" and "&quot;" stay.
// Throws as `EncodeXMLText` does.
std::string DecodeXMLText(std::string text);

// Sets the encodings of file and program for both functions above, which do it
// themselves at the first call. Throws `NilObjectException` if there is no
// converter between the two.
void SetXMLEncodings(base::TextEncoding file, base::TextEncoding internal);

// Ours, not the domain's:

// The characters "&", "<" and ">" as escapes, and back: one layer, the ampersand
// first each time, so that "&amp;lt;" comes back as "<".
std::string EncodeEntities(std::string_view text);
void DecodeEntities(std::string& text);

// Every `what` in `text` by the character `with`, from left to right and in
// place; what was put in is not looked at again. `what` must not be empty.
void ReplaceByCharacter(std::string& text, std::string_view what, char with);

}  // namespace quill::markup
