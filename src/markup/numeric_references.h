// The decimal references of a text ("&#65;"), replaced by their characters.
//
// The rule is a loop with a cursor over a text that changes under it. From the
// cursor on it takes the next "&#"; without one, or without a ";" behind it, it
// ends. It reads the number behind the "&#" the way `base::IntVal` does, and if
// that is above 0, the first place in the WHOLE text that holds the reference in
// its plain spelling ("&#", the number without leading zeros, ";") becomes the
// character. Then the cursor stands one character behind where the "&#" was
// found, counted in the changed text. So
//
//   &#65;&#65;         AA           each replaced where it is found
//   &#065;             &#065;       the plain spelling occurs nowhere
//   &#065;x&#65;       &#065;xA     replaced behind the cursor's place
//   &#38;#65; &#65;    A &#65;      the first one has made a reference, which
//                                   comes first in the text
//
// and when the place lay before the cursor, the shorter text takes the cursor
// past characters that it never looks at.
//
// The time is linear in the length of the text, but for a logarithm where
// references make new ones.
#pragma once

#include <string>

namespace quill::markup {

// Characters above 255 come out as `base::Chr` gives them.
void ReplaceNumericReferences(std::string& text);

}  // namespace quill::markup
