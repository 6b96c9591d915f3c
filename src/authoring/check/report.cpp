#include "authoring/check/report.h"

#include <algorithm>

#include "authoring/json.h"
#include "base/text_converter.h"

namespace quill::authoring {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

// Program text as UTF-8 on one line: line feeds and tabs of a page, which would break
// it, become blanks.
std::string OneLine(std::string text) {
  std::replace_if(text.begin(), text.end(), IsControl, ' ');
  return base::MacRomanToUtf8(text);
}

std::string LineOf(const Location& location) {
  std::string line = location.file;
  if (location.page_index < 0) return line;
  line += ": page " + std::to_string(location.page_index) + " \"" + OneLine(location.title) + "\"";
  if (location.column > 0) line += ", column " + std::to_string(location.column);
  if (location.link_number > 0) line += ", link " + std::to_string(location.link_number);
  if (!location.words.empty()) line += " \"" + OneLine(location.words) + "\"";
  return line;
}

std::string Counted(std::int32_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string JsonText(std::string_view mac_roman) { return JsonString(base::MacRomanToUtf8(mac_roman)); }

// Parts of the location that aren't given are left out.
std::string JsonOf(const Finding& finding) {
  const Location& location = finding.location;
  std::string json = "{" + Member("kind", JsonString(NameOf(finding.kind))) + ", " +
                     Member("file", JsonString(location.file));
  if (location.page_index >= 0)
    json += ", " + Member("page", location.page_index) + ", " + Member("title", JsonText(location.title));
  if (location.column > 0) json += ", " + Member("column", location.column);
  if (location.link_number > 0) json += ", " + Member("link", location.link_number);
  if (!location.words.empty()) json += ", " + Member("words", JsonText(location.words));
  return json + ", " + Member("reason", JsonText(finding.reason)) + "}";
}

std::string JsonOf(const AreaSummary& area) {
  return "{" + Member("area", JsonString(area.area)) + ", " + Member("file", JsonString(area.file)) + ", " +
         Member("pages", area.pages) + ", " + Member("words", area.words) + ", " +
         Member("links", area.links) + ", " + Member("clicks", area.clicks) + "}";
}

// An item a line, so that two reports can be compared line by line.
template <typename Items>
void WriteArray(const char* name, const Items& items, std::ostream& out) {
  out << "  \"" << name << "\": [";
  const char* separator = "\n    ";
  for (const auto& item : items) {
    out << separator << JsonOf(item);
    separator = ",\n    ";
  }
  out << (items.empty() ? "]" : "\n  ]");
}

}  // namespace

std::string_view NameOf(FindingKind kind) {
  switch (kind) {
    case FindingKind::kPageId:
      return "page-id";
    case FindingKind::kLastPageId:
      return "last-page-id";
    case FindingKind::kNumber:
      return "number";
    case FindingKind::kTarget:
      return "target";
    case FindingKind::kOffset:
      return "offset";
    case FindingKind::kLength:
      return "length";
    case FindingKind::kSameWord:
      return "same-word";
    case FindingKind::kOverlap:
      return "overlap";
    case FindingKind::kPastEdge:
      return "past-edge";
    case FindingKind::kUncovered:
      return "uncovered";
    case FindingKind::kOverwritten:
      return "overwritten";
    case FindingKind::kExitButton:
      return "exit-button";
    case FindingKind::kTooManyLinks:
      return "too-many-links";
    case FindingKind::kBelowEdge:
      return "below-edge";
    case FindingKind::kOrphan:
      return "orphan";
    case FindingKind::kCharacter:
      return "character";
    case FindingKind::kDocument:
      return "document";
  }
  return "";
}

void WriteText(const Report& report, std::ostream& out) {
  for (const Finding& finding : report.findings) {
    out << LineOf(finding.location) << ": " << OneLine(finding.reason) << "\n";
  }
  for (const AreaSummary& area : report.areas) {
    out << area.area << ": " << Counted(area.pages, "page") << ", " << Counted(area.words, "word") << ", "
        << Counted(area.links, "link") << ", " << Counted(area.clicks, "click") << " to the farthest page\n";
  }
}

void WriteJson(const Report& report, std::ostream& out) {
  out << "{\n";
  WriteArray("findings", report.findings, out);
  out << ",\n";
  WriteArray("areas", report.areas, out);
  out << "\n}\n";
}

}  // namespace quill::authoring
