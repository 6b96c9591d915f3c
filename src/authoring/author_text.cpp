#include "authoring/author_text.h"

#include "authoring/alphabet.h"
#include "authoring/complaint.h"
#include "base/utf8.h"

namespace quill::authoring {
namespace {

// What stands for a backslash and that letter.
char Escaped(char letter) { return letter == 'n' ? '\n' : letter == 't' ? '\t' : letter; }

// Whether `text` begins with an escape. A backslash before any other letter is meant
// as it stands.
bool IsEscape(std::string_view text) {
  return text.size() > 1 && text[0] == '\\' && (text[1] == 'n' || text[1] == 't' || text[1] == '\\');
}

}  // namespace

std::string ProgramText(std::string_view utf8) {
  std::string text;
  for (std::string_view rest = utf8; !rest.empty();) {
    const char32_t character = base::TakeUtf8(rest);
    const std::optional<char> byte = ToProgram(character);
    if (!byte) throw Complaint("In \"" + std::string(utf8) + "\": " + CannotShow(character) + ".");
    text += *byte;
  }
  return text;
}

std::string ProgramParagraphs(std::string_view utf8) {
  const std::string text = ProgramText(utf8);
  std::string paragraphs;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsEscape(std::string_view(text).substr(i))) {
      paragraphs += Escaped(text[++i]);
    } else {
      paragraphs += text[i];
    }
  }
  return paragraphs;
}

}  // namespace quill::authoring
