#include "authoring/check/link_check.h"

#include <algorithm>
#include <set>
#include <utility>

#include "authoring/area.h"
#include "base/numbers.h"
#include "render/page_layout.h"

namespace quill::authoring {
namespace {

// The column and offset of words at which a link starts.
using Taken = std::set<std::pair<std::int32_t, std::int32_t>>;

// The store reads a text that is no number as 0, so that the link would lie on the
// column's first word.
bool CheckNumbers(const content::Link& link, const Location& location, Findings& findings) {
  const std::size_t before = findings.size();
  for (const auto& [name, text] : {std::pair("offset", link.GetOffset()), {"length", link.GetLength()}}) {
    if (IsWholeNumber(text)) continue;
    findings.push_back({FindingKind::kNumber, location,
                        std::string("its ") + name + " \"" + text + "\" is no whole number"});
  }
  return findings.size() == before;
}

// Whether the link finds a word of its own, with enough text behind it. Of two links
// at one word the earlier in the list takes it.
void CheckWord(const content::Link& link, const std::vector<PageWord>& words, const Location& location,
               Taken& taken, Findings& findings) {
  const std::int32_t column = link.GetColumn();
  const std::int32_t offset = base::IntVal(link.GetOffset());
  const PageWord* const word = WordAt(words, column, offset);
  if (word == nullptr) {
    findings.push_back({FindingKind::kOffset, location, "no word starts at its offset " + link.GetOffset()});
  } else if (!taken.insert({column, offset}).second) {
    findings.push_back(
        {FindingKind::kSameWord, location, "an earlier link starts at the same word, and hides it"});
  } else if (base::Val(link.GetLength()) > static_cast<double>(word->rest.size())) {
    findings.push_back({FindingKind::kLength, location,
                        "its length " + link.GetLength() + " runs past the end of the paragraph, which is " +
                            std::to_string(word->rest.size()) + " characters away"});
  }
}

}  // namespace

// The words are whole ones, as the reader takes them: a length that ends inside a
// word reaches to that word's end.
Location LocationOfLink(Location page_location, const content::Page& page, const std::vector<PageWord>& words,
                        std::size_t index) {
  Location location = std::move(page_location);
  const content::Link& link = *LinksOf(page)[index];
  location.column = link.GetColumn();
  location.link_number = static_cast<std::int32_t>(index) + 1;
  const PageWord* const word = WordAt(words, location.column, base::IntVal(link.GetOffset()));
  if (word == nullptr) return location;
  const std::int32_t last = std::max(base::IntVal(link.GetLength()) - 1, 0);
  location.words = word->rest.substr(0, word->rest.find(' ', static_cast<std::size_t>(last)));
  return location;
}

void CheckLinkWords(const content::Page& page, const std::vector<PageWord>& words,
                    const Location& page_location, Findings& findings) {
  const auto links = LinksOf(page);
  if (links.size() > render::kLinkButtons)
    findings.push_back({FindingKind::kTooManyLinks, page_location,
                        "it has " + std::to_string(links.size()) + " links, and the reader shows the first " +
                            std::to_string(render::kLinkButtons)});
  Taken taken;
  for (std::size_t i = 0; i < links.size(); ++i) {
    const content::Link& link = *links[i];
    const Location location = LocationOfLink(page_location, page, words, i);
    const std::int32_t column = link.GetColumn();
    if (column < 1 || column > page.GetColumns()) {
      findings.push_back(
          {FindingKind::kOffset, location,
           "it lies in column " + base::Str(column) + ", and the page has " + base::Str(page.GetColumns())});
    } else if (CheckNumbers(link, location, findings)) {
      CheckWord(link, words, location, taken, findings);
    }
  }
}

}  // namespace quill::authoring
