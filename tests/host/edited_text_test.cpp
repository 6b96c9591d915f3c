#include "host/edited_text.h"

#include <gtest/gtest.h>

namespace quill::host {
namespace {

struct Edit {
  const char* given;
  std::u16string_view shown;
  std::u16string_view edited;
  const char* bytes;
};

TEST(EditedText, KeepsWhatWasNotEdited) {
  const Edit rows[] = {
      {"", u"", u"a\nb", "a\nb"},
      {"a\r\nb\r\nc", u"a\nb\nc", u"a\nnew\nb\nc\n", "a\r\nnew\r\nb\r\nc\r\n"},
      {"a\rb\nc\r\nd\xE2\x80\xA8"
       "e\xE2\x80\xA9"
       "f",
       u"a\nb\nc\nd\ne\nf", u"0\na\nb\nc\nnew\nd\ne\nF",
       "0\na\rb\nc\r\nnew\nd\xE2\x80\xA8"
       "e\xE2\x80\xA9"
       "F"},
      // Edits at both ends, lines of which there are many, and one that has moved.
      {"1\rx\r\nx\nx\ry\r9", u"1\nx\nx\nx\ny\n9", u"one\nx\nx\nx\ny\nnine", "one\nx\r\nx\nx\ry\rnine"},
      {"1\ra\nb\r\nc\r9", u"1\na\nb\nc\n9", u"1.\nc\na\nb\n9.", "1.\nc\na\nb\r\n9."},
      // A lone CR whose next line goes must not swallow the end of that one.
      {"a\rb\nc", u"a\nb\nc", u"a\n\nc", "a\r\rc"},
      {"\xEF\xBB\xBF"
       "caf\xC3\xA9 \xFF",
       u"caf\u00E9 \xDCFF", u"caf\u00E9s \xDCFF",
       "\xEF\xBB\xBF"
       "caf\xC3\xA9s \xFF"},
      // Cut off, overlong, a surrogate, past the end of Unicode; a control and a non-character.
      {"\xE2\x82 \xC0\x80 \xED\xA0\x80 \xF4\x90\x80\x80",
       u"\xDCE2\xDC82 \xDCC0\xDC80 \xDCED\xDCA0\xDC80 \xDCF4\xDC90\xDC80\xDC80", u"", ""},
      {"\x01\t\x7F\xEF\xB7\x90\xEF\xBF\xBD", u"\xDC01\t\xDC7F\xDCEF\xDCB7\xDC90\uFFFD",
       u"\uFFFD\xDC01\xD83D\xDE00\xD83D", "\xEF\xBF\xBD\x01\xF0\x9F\x98\x80\xEF\xBF\xBD"},
  };
  for (const auto& [given, shown, edited, bytes] : rows) {
    const EditedText text(given);
    EXPECT_EQ(text.Shown(), shown) << given;
    EXPECT_EQ(text.Bytes(text.Shown()), given);
    EXPECT_EQ(text.Bytes(edited), bytes) << given;
  }
  const EditedText nul(std::string_view("a\0b", 3));
  EXPECT_EQ(nul.Bytes(nul.Shown()), std::string_view("a\0b", 3));
}

}  // namespace
}  // namespace quill::host
