// What a window says, apart from how it looks: the text in the order in which it
// is read, and which of its canvases are links. The program tells it to the
// window; the desktop makes of it what it owes to those who don't use a mouse or
// don't see (the way of the keyboard, the tree of a screen reader) and to those who
// want the text elsewhere (copy, print).
//
// All text is Mac Roman. Canvases belong to the window that was told.
#pragma once

#include <string>
#include <vector>

namespace quill::host {

class Canvas;

// What pressing a canvas does, as far as a desktop cares.
struct Purpose {
  enum class Kind { kNone, kButton, kPage, kGlossary, kDocument, kNotes, kTrail };

  Kind kind = Kind::kNone;
  std::string leads_to;  // "page The scene", "document form.pdf"; empty if the label says it all
};

struct Reading {
  // Words of a paragraph that have one look, or are one link.
  struct Run {
    std::string text;  // as it stands in the text, with its tabs and blanks
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Canvas* link = nullptr;  // null for words that can't be pressed
  };
  using Paragraph = std::vector<Run>;
  using Column = std::vector<Paragraph>;

  std::string title;
  std::string source;  // where the text is found: "Screen, page 12"
  std::vector<Column> columns;

  // What stands around the text, in the order in which it is read.
  std::vector<Canvas*> trail;
  Canvas* way_out = nullptr;

  // What a desktop's own commands press; null where there is nothing to do.
  Canvas* back = nullptr;  // one step back
  Canvas* home = nullptr;  // to where everything begins

  // The link by which the reader went on from here the last time; null if there is
  // none, or the text is shown for the first time.
  Canvas* left_by = nullptr;
};

}  // namespace quill::host
