// Puts a manuscript together from the pieces that its parser meets, in the order
// of the text: titles begin pages, paragraphs go to the last column of the last
// page. It decides what a page can't have and says so, and goes on, so that one
// reading tells all that is wrong. It knows no parser and no content file.
//
// Made for one manuscript: `MoveToLine` and the pieces in order, then `Finish`.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/manuscript/manuscript.h"
#include "authoring/manuscript/paragraph.h"
#include "authoring/manuscript/term_index.h"

namespace quill::authoring {

class ManuscriptBuilder {
 public:
  // What comes next stands on that line of the manuscript, from 1.
  void MoveToLine(int line) { line_ = line; }

  // A heading of that level, from 1, and what stands in it. Level 1 is the title of
  // a page that begins there; a page has no others.
  void BeginTitle(int level);
  void EndTitle(int level, int line);

  // The next column of the page.
  void BeginColumn();

  // A list, whose items are numbered from `first_number` on, or have no numbers.
  // Each list inside another indents by one stop more.
  void BeginList(std::optional<int> first_number) { lists_.push_back(first_number); }
  void EndList() { lists_.pop_back(); }
  void BeginItem();
  void EndItem() { item_number_.clear(); }

  void BeginParagraph();
  void EndParagraph();

  void BeginItalic() { ++italic_; }
  void EndItalic() { --italic_; }
  void BeginBold() { ++bold_; }
  void EndBold() { --bold_; }

  // A link with its address as the author wrote it. Links don't nest.
  void BeginLink(std::string_view address);
  void EndLink();

  // Text of the paragraph or title that has begun, UTF-8. Verbatim text is what
  // stood in backticks: nothing in it has a meaning.
  void AddText(std::string_view text) { AddLetters(text, false); }
  void AddVerbatim(std::string_view text) { AddLetters(text, true); }

  // HTML between paragraphs, and inside one. Of it a page knows <br> and <u>;
  // comments are the author's own, but for the head before the first page and the
  // terms of a page.
  void AddHtmlBlock(std::string_view html);
  void AddHtmlInline(std::string_view html);

  // Something is wrong on the line that was moved to last.
  void Diagnose(std::string sentence) { manuscript_.diagnostics.push_back({line_, std::move(sentence)}); }

  // The manuscript, its index filled, its diagnostics by line and each of them once.
  Manuscript Finish();

 private:
  bool HasPage();
  void AddTerms(std::string_view comment);
  void AddIndexPlace(const Paragraph& paragraph);
  Column& CurrentColumn() { return manuscript_.pages.back().columns.back(); }
  void DiagnoseTitle(const Paragraph& title, const ManuscriptPage& page);
  void CloseUnderline();
  Mark CurrentMark();
  void AddLetters(std::string_view text, bool verbatim);

  Manuscript manuscript_;
  TermIndex index_;
  std::set<std::string> names_;  // of pages so far
  int line_ = 1;
  std::vector<std::optional<int>> lists_;  // that are open: the number of the next item
  std::string item_number_;                // of the item whose first paragraph comes next
  Paragraph paragraph_;                    // that has begun, or title
  int italic_ = 0;                         // how many are open
  int bold_ = 0;
  int underline_ = 0;
  std::int32_t link_ = -1;  // index of the open link's target, -1 for none
  std::size_t link_begin_ = 0;
};

}  // namespace quill::authoring
