// Characters of a content file that don't reach the reader as the author meant
// them: the file is read as ISO 8859-1 and shown in Mac Roman, and what either of
// them lacks is replaced without a word.
//
// It looks at the bytes of the file, since the tree no longer tells what stood
// there. What a page can't show at all is refused before, by the press and the
// editor; files from elsewhere are why this looks again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill::authoring {

struct LostCharacter {
  int page_index = -1;  // in the file; -1 before the first page
  std::string reason;   // Mac Roman, as that of a `Finding`
};

// Each character once for a page, in the order of the file. One finding, without a
// page, stands for a file that is all UTF-8. `bytes` is the whole file.
std::vector<LostCharacter> FindLostCharacters(std::string_view bytes);

}  // namespace quill::authoring
