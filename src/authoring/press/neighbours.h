// The manuscripts beside one, to whose pages its links may lead. Only the names of
// their pages are used: what else is in them, and whether they could be pressed, is no
// matter. The press borrows them; the command that found them beside a manuscript owns
// them.
#pragma once

#include "authoring/manuscript/manuscript.h"

namespace quill::authoring {

// Null: there is none.
struct Neighbours {
  const Manuscript* glossary = nullptr;
  const Manuscript* lives = nullptr;
};

}  // namespace quill::authoring
