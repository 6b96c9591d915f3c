// What is wrong with a manuscript: the line it is wrong on, and a sentence for its
// author. The reader of manuscripts and the press find diagnostics; telling them,
// with the file's name before them, is the command's business.
#pragma once

#include <string>
#include <vector>

namespace quill::authoring {

struct Diagnostic {
  int line = 1;          // of the manuscript, from 1
  std::string sentence;  // UTF-8, without a point at its end

  friend bool operator==(const Diagnostic&, const Diagnostic&) = default;
};

using Diagnostics = std::vector<Diagnostic>;

}  // namespace quill::authoring
