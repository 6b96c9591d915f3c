// Any bytes as notes: in the field and back they are the same, and what is typed leaves the other lines
// alone.
#include "fuzz/attack.h"
#include "host/edited_text.h"

namespace quill::tests {

void AttackNotes(std::string_view bytes) {
  const std::string before = TakeText(bytes) + "x";
  const std::string behind = "\n" + std::string(bytes);
  const host::EditedText text(before + behind);
  RequireSame(text.Bytes(text.Shown()), before + behind);

  const std::size_t at = host::EditedText(before).Shown().size();
  RequireSame(text.Bytes(std::u16string(text.Shown()).insert(at, u"typed")), before + "typed" + behind);
  const std::string parted = text.Bytes(std::u16string(text.Shown()).insert(at, u"typed\nin"));
  Require(parted.starts_with(before + "typed") && parted.ends_with("in" + behind), parted);
}

}  // namespace quill::tests
