// `quillpress build`: a manuscript in, a content file out. It knows which files
// lie beside a manuscript and how problems are told; what they mean is the
// press's matter.
//
// Beside NAME.md lie NAME_glossary.md, whose pages `glossary:` links lead to, and
// bio.md, whose pages `bio:` links lead to. A manuscript whose name ends in
// "_glossary" is a glossary. The names of a neighbour are all that is used of it:
// what else is wrong with it shows when it is built itself.
#pragma once

#include <filesystem>
#include <ostream>

namespace quill::quillpress {

// 0: `output` is written. 1: the manuscript has errors, a line each in `errors`
// ("file:line: sentence"). 2: a file can't be read or written. Unless it gives 0,
// what was at `output` before is there still.
int Build(const std::filesystem::path& manuscript, const std::filesystem::path& output, std::ostream& errors);

}  // namespace quill::quillpress
