// The exceptions that the host raises, by the names the rest of the program
// knows. The type carries the meaning; `what()` is for a developer's console.
#pragma once

#include <stdexcept>

namespace quill::base {

// Base of every exception that the host or the program raises on purpose.
class RuntimeException : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  RuntimeException() : std::runtime_error("runtime exception") {}
};

// Something was asked of an object that isn't there.
class NilObjectException : public RuntimeException {
 public:
  NilObjectException() : RuntimeException("nil object") {}
};

// An object was taken for a class that it does not belong to.
class IllegalCastException : public RuntimeException {
 public:
  IllegalCastException() : RuntimeException("illegal cast") {}
};

// Nesting went deeper than the program is willing to follow.
class StackOverflowException : public RuntimeException {
 public:
  StackOverflowException() : RuntimeException("stack overflow") {}
};

// An index lies outside its list.
class OutOfBoundsException : public RuntimeException {
 public:
  OutOfBoundsException() : RuntimeException("out of bounds") {}
};

}  // namespace quill::base
