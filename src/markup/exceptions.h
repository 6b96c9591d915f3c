// What the markup toolkit raises. The type is the whole information: no text,
// no line, no position.
#pragma once

#include "host/exceptions.h"

namespace quill::markup {

// Malformed markup.
class zkXMLParsingException : public host::RuntimeException {
 public:
  zkXMLParsingException() : host::RuntimeException("malformed markup") {}
};

// A chunk ran out inside a construct. Never leaves
// `zkXMLContainer::ParseIncrementally`.
class zkXMLIncrementEnd : public host::RuntimeException {
 public:
  zkXMLIncrementEnd() : host::RuntimeException("end of a chunk") {}
};

}  // namespace quill::markup
