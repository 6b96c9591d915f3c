// `quillpress build`: a manuscript in, a content file out. It knows which files
// lie beside a manuscript and how diagnostics are told; what they mean is the
// press's matter.
//
// Beside NAME.md lie NAME_glossary.md, whose pages `glossary:` links lead to, and
// bio.md, whose pages `bio:` links lead to. A manuscript whose name ends in
// "_glossary" is a glossary. The names of a neighbour are all that is used of it:
// what else is wrong with it shows when it is built itself. One that is there and
// can't be read keeps a manuscript from being built.
#pragma once

#include <filesystem>
#include <ostream>

#include "quillpress/commands.h"

namespace quill::quillpress {

// `kDone`: `output` is written. `kRefused`: something is wrong with the manuscript, a
// line each in `errors` ("file:line: sentence"). `kCannotRun`: a file can't be read or
// written, and `errors` says which. Unless it is done, what was at `output` before is
// there still.
ExitStatus Build(const std::filesystem::path& manuscript, const std::filesystem::path& output,
                 std::ostream& errors);

}  // namespace quill::quillpress
