// What the markup toolkit raises. The type is the whole information: no text,
// no line, no position.
#pragma once

#include "base/exceptions.h"

namespace quill::markup {

// Malformed markup.
class zkXMLParsingException : public base::RuntimeException {
 public:
  zkXMLParsingException() : base::RuntimeException("malformed markup") {}
};

// A chunk ran out inside a construct. Never leaves
// `zkXMLContainer::ParseIncrementally`.
class zkXMLIncrementEnd : public base::RuntimeException {
 public:
  zkXMLIncrementEnd() : base::RuntimeException("end of a chunk") {}
};

}  // namespace quill::markup
