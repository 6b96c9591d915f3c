// What stands between the bytes of a text file and a field in which it is edited.
// A field knows Unicode and one kind of line end, and a file may hold anything:
// whatever the field can't hold as it is comes back unharmed, wherever else the
// text was edited.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quill::host {

class EditedText {
 public:
  explicit EditedText(std::string_view bytes);

  // The text for the field: UTF-16, its lines parted by U+000A. Every byte that is
  // no part of UTF-8, or part of a character that a field takes for a sign of its
  // own, is the lone surrogate U+DC00 plus the byte, as Python's PEP 383 has it,
  // which shows as a replacement character.
  const std::u16string& Shown() const { return shown_; }

  // The bytes of what the field holds now. Lines as before keep their line ends, of
  // five kinds (LF, CR LF, CR, U+2028, U+2029); new ones end as all others do, or in
  // LF where they differ. A byte-order mark stays. In `edited` U+2028 and U+2029
  // part lines too.
  std::string Bytes(std::u16string_view edited) const;

 private:
  std::u16string shown_;
  std::vector<std::uint8_t> ends_;  // of each line but the last: which of the five
  bool has_mark_ = false;           // begins with a byte-order mark
};

}  // namespace quill::host
