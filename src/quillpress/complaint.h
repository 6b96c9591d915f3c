// What a command says when it can't do what it was asked for: a sentence for an
// author, in UTF-8, which names the file and the thing that is wrong. Whoever
// throws it has written nothing.
#pragma once

#include <stdexcept>

namespace quill::quillpress {

class Complaint : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quill::quillpress
