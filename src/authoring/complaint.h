// What a command says when it can't do what it was asked for: a sentence for an
// author, in UTF-8, which names the file and the thing that is wrong. Whoever
// throws it has written nothing; the tool's `main` catches it.
//
// What is wrong with a manuscript is a `Diagnostic`, what a check finds in content a
// `Finding`: neither keeps a command from doing its work.
#pragma once

#include <stdexcept>

namespace quill::authoring {

// What the author has given is refused.
class Complaint : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A file or folder isn't there, or can't be read or written.
class FileComplaint : public Complaint {
 public:
  using Complaint::Complaint;
};

}  // namespace quill::authoring
