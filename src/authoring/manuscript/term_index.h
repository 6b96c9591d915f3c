// The index of a manuscript: the terms that its pages are to be found by, and the
// places on its pages where they are listed, a line and a link for each. Terms and
// places are met in any order, so that the lines are made once all are known.
//
// It makes lines and no pages: a page that lists terms stands in the manuscript like
// any other, so that no page ever gets another number by a new term. Authors say which
// letters go where, and titles and links may name them; whether the lines fit below
// each other is for the check to find out.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "authoring/manuscript/manuscript.h"
#include "authoring/manuscript/paragraph.h"

namespace quill::authoring {

struct Term {
  std::string text;  // Mac Roman
  int line = 1;      // of the manuscript
  std::string page;  // the name of the page that it leads to
};

// The initials of terms that are listed together, A to Z; both ends in.
struct Initials {
  char first = 'A';
  char last = 'Z';

  bool Has(char letter) const { return first <= letter && letter <= last; }
  friend bool operator<(const Initials& a, const Initials& b) {
    return std::pair(a.first, a.last) < std::pair(b.first, b.last);
  }
};

class TermIndex {
 public:
  void AddTerm(Term term);

  // Keeps a place for the terms with these initials at the end of the last column of
  // the last page of `manuscript`, on that line of it. Until it is filled, an empty
  // paragraph stands there.
  void AddPlace(Initials initials, Indent indent, int line, Manuscript& manuscript);

  // Fills the places of `manuscript` with the terms in alphabetical order; case, accents
  // and signs don't count. Places for the same initials share their terms evenly, in the
  // order of the places. A second equal term, one that no place is for, and places that
  // would list a term twice go to the manuscript's diagnostics.
  void Fill(Manuscript& manuscript);

 private:
  struct Entry {
    std::string key;  // what it is sorted by
    Term term;
  };

  // How much of a column stands before it.
  struct Spot {
    std::size_t text = 0;
    std::size_t words = 0;
    std::size_t runs = 0;
  };

  struct Place {
    Initials initials;
    Indent indent;
    int line;
    std::size_t page;       // index of it in the manuscript
    std::size_t column;     // index of it on the page
    Spot spot;              // where the empty paragraph stands in it
    std::size_t begin = 0;  // index of its first entry, and that behind its last
    std::size_t end = 0;

    bool StandsBeside(const Place& other) const { return page == other.page && column == other.column; }
  };

  void Sort(Diagnostics& diagnostics);
  void Share(Diagnostics& diagnostics);
  void ShareAmong(const std::vector<Place*>& places) const;
  void FillColumn(std::span<const Place> places, Column& column, Diagnostics& diagnostics) const;
  static void Copy(const Column& from, Spot& begin, const Spot& end, Column& to);

  std::vector<Entry> entries_;
  std::vector<Place> places_;
};

}  // namespace quill::authoring
