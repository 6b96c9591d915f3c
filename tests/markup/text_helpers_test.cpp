#include "markup/text_helpers.h"

#include <gtest/gtest.h>

#include "support/texts.h"

namespace quill::markup {
namespace {

TEST(TextHelpers, Decodes) {
  tests::ExpectEach(DecodeXMLText,
                    {{"&#65;&#x41;&#0;&#-5;&#65", "A&#x41;&#0;&#-5;&#65", "decimal, positive and closed"},
                     {"&#38;#7;&#7&#65;", "\x07&#7&#65;", "one behind the cursor goes: text is skipped"},
                     {"&amp;lt;&amp;amp;", "<&amp;", "ampersands first, though one layer only"},
                     {"&amp;#233;", "\x8E", "numbers see what the ampersands uncovered"},
                     {"&#8211;&#9999;", "-?", "codes above the character set"},
                     {"&apos;&quot; & &nbsp; &", "&apos;&quot; & &nbsp; &", "not this layer's business"}});
}

TEST(TextHelpers, Encodes) {
  tests::ExpectEach(
      EncodeXMLText,
      {{"a<b>&\t\n", "a&lt;b&gt;&amp;\t\n", "pure ASCII keeps its control characters"},
       {"\xA9\t\xA3\x01", "\xA9\t\xA3\x01", "so does text that is the same in both encodings"},
       {"\x8E\t\xA3&\x7F", "&#233;&#9;&#163;&amp;&#127;", "with one foreign character they go too"}});
}

}  // namespace
}  // namespace quill::markup
