// Numbers as the host converts them: one rule for turning a real into an
// integer, used wherever the program measures, and one for reading and writing
// decimal text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quill::base {

// Returns `value` without its fraction (2.9 gives 2, -2.9 gives -2). What int32 can't
// hold saturates at its nearest end; a value that is not a number gives 0.
std::int32_t ToInt32(double value);

// Returns `value` in single precision; what a float can't hold saturates at its nearest
// end. A value that is not a number gives 0.
float ToFloat(double value);

// Returns the sum, saturated to int32. For pens and counts that hostile text may drive
// beyond every screen.
std::int32_t AddSaturating(std::int32_t a, std::int32_t b);

// Returns the number at the head of `text`, 0 if there is none. Takes leading white
// space, a sign, digits with at most one point, and an exponent; stops in
// silence at the first character that is none of these. A number too large
// for a double gives infinity, one too small gives 0.
double Val(std::string_view text);

// Returns `Val` of `text` as an integer, by the rule of `ToInt32`.
std::int32_t IntVal(std::string_view text);

// Returns the decimal text of `value`: digits, with a leading "-" below 0.
std::string Str(std::int32_t value);

}  // namespace quill::base
