// A whole document: an element with an empty name whose content are the
// document's top-level objects, of any kind and number.
//
// Built from a text or a file it is complete, or it never comes into being.
// Built empty it may be fed in chunks; it then never becomes complete, and the
// tree shows elements that are still open. See `parser.h` for what is accepted.
//
// No program of ours feeds chunks: `ParseIncrementally`, `IsConsistent` and the empty
// container that they need are there for other users of the toolkit.
//
// A failed parse shows two message boxes and passes its
// `zkXMLParsingException` on.
#pragma once

#include <memory>
#include <string>

#include "host/files.h"
#include "markup/element.h"
#include "markup/parser.h"

namespace quill::markup {

class zkXMLContainer final : public zkXMLElement {
 public:
  // An empty document, ready for `ParseIncrementally`.
  zkXMLContainer() = default;

  // Parses a text in file form at once. Throws `zkXMLParsingException` after its
  // message boxes, and `StackOverflowException` with none.
  explicit zkXMLContainer(std::string text, bool relaxed = false);

  // The same for a whole file, relaxed if its name ends in ".htm" or ".html".
  // Throws `NilObjectException` for null and for a file that can't be opened.
  explicit zkXMLContainer(const std::shared_ptr<host::FolderItem>& file);

  // The whole document as markup. What stands at its top level, text excepted,
  // ends a line where `UseXMLFormatting` is set; nothing is written but the nodes.
  std::string GetXMLString() const override;

  // Nothing: inside an element a document has no form of its own.
  std::string GetXMLString(std::int32_t /*i*/) const override { return {}; }

  // Feeds one chunk; `relaxed` counts on the first call only. A construct that
  // the chunk cuts off is kept for the next. Does nothing on a container that was
  // built from a text. Throws as the constructor does; the tree built so far
  // stays.
  //
  // A chunk must not end in a single character of something unfinished, nor
  // exactly behind a construct while an element is open: what that does to the
  // element is not worth relying on.
  void ParseIncrementally(const std::string& chunk, bool relaxed = false);

  // Whether the document doesn't end in an open element. Looks at the last entry
  // alone.
  bool IsConsistent() const;

  // Ours, not the domain's:

  bool IsDocument() const override { return true; }

  // What the parse has not consumed; empty after a finished one.
  const std::string& UnreadText() const { return input_.text; }

 private:
  bool parseElementContent(zkXMLElement& element) { return Parser(input_).parseElementContent(element); }

  // Ours, not the domain's:

  ParserInput input_;
};

}  // namespace quill::markup
