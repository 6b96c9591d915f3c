// Numeric references against the rule as it reads, with no thought of time.
#include "base/numbers.h"
#include "base/text.h"
#include "fuzz/attack.h"
#include "markup/numeric_references.h"

namespace quill::tests {

void AttackReferences(std::string_view bytes) {
  std::string replaced(bytes);
  markup::ReplaceNumericReferences(replaced);

  std::string text(bytes);
  std::size_t found = text.find("&#");
  for (std::size_t end = 0; found != std::string::npos; found = text.find("&#", found + 1)) {
    end = text.find(';', found + 2);
    if (end == std::string::npos) break;
    const std::int32_t number = base::IntVal(text.substr(found + 2, end - found - 2));
    if (number > 0) text = base::Replace(text, "&#" + base::Str(number) + ";", base::Chr(number));
  }
  RequireSame(replaced, text);
}

}  // namespace quill::tests
