// Characters of a content file that don't reach the reader as the author meant
// them: the file is read as ISO 8859-1 and shown in Mac Roman, and what either of
// them lacks is replaced without a word.
//
// It looks at the bytes of the file, since the tree no longer tells what stood
// there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill::authoring {

struct LostCharacter {
  int page = -1;  // by its place in the file, from 0; -1 before the first
  std::string reason;
};

// Each character once for a page, in the order of the file.
std::vector<LostCharacter> FindLostCharacters(std::string_view bytes);

}  // namespace quill::authoring
