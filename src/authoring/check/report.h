// What a check has found, and how it is told: a line each for people, one object
// for programs. It finds nothing itself.
//
// All text is Mac Roman, as in the program, but for the names of areas and files,
// which are UTF-8; all of it is written in UTF-8.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quill::authoring {

enum class FindingKind {
  kPageId,
  kLastPageId,
  kNumber,
  kTarget,
  kOffset,
  kLength,
  kSameWord,
  kOverlap,
  kPastEdge,
  kUncovered,
  kOverwritten,
  kExitButton,
  kTooManyLinks,
  kBelowEdge,
  kOrphan,
  kCharacter,
  kDocument,
};

// The word for a kind in the object for programs. Once given it stays, so that what
// sorts findings by it goes on working.
std::string_view NameOf(FindingKind kind);

// Where in the content a finding lies. Each part is given with those above it, or
// not at all.
struct Location {
  std::string file;              // name, UTF-8
  std::int32_t page_index = -1;  // in the file; below 0: none
  std::string title;
  std::int32_t column = 0;       // from 1; 0: none
  std::int32_t link_number = 0;  // among the page's links, from 1; 0: none
  std::string words;             // that the link lies on; empty where it finds none
};

// What a check has found in built content. What is wrong with a manuscript is a
// `Diagnostic`.
struct Finding {
  FindingKind kind = FindingKind::kPageId;
  Location location;
  std::string reason;  // half a sentence, which follows the location
};

using Findings = std::vector<Finding>;

// An area in numbers.
struct AreaSummary {
  std::string area;  // UTF-8
  std::string file;  // of its pages; name, UTF-8
  std::int32_t pages = 0;
  std::int32_t words = 0;
  std::int32_t links = 0;   // that can be pushed
  std::int32_t clicks = 0;  // from the way in to the farthest page that can be reached
};

struct Report {
  Findings findings;               // by area and file, each file in the order of its pages and links
  std::vector<AreaSummary> areas;  // in the order of the modes
};

void WriteText(const Report& report, std::ostream& out);
void WriteJson(const Report& report, std::ostream& out);

}  // namespace quill::authoring
