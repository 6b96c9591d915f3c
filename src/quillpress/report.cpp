#include "quillpress/report.h"

#include <algorithm>
#include <cstdio>

#include "host/text_converter.h"

namespace quill::quillpress {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

// For a line of its own: what would break it is a blank.
std::string OneLine(std::string text) {
  std::replace_if(text.begin(), text.end(), IsControl, ' ');
  return host::MacRomanToUtf8(text);
}

std::string LineOf(const Place& place) {
  std::string line = place.file;
  if (place.page < 0) return line;
  line += ": page " + std::to_string(place.page) + " \"" + OneLine(place.title) + "\"";
  if (place.column > 0) line += ", column " + std::to_string(place.column);
  if (place.link > 0) line += ", link " + std::to_string(place.link);
  if (!place.words.empty()) line += " \"" + OneLine(place.words) + "\"";
  return line;
}

std::string Counted(std::int32_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string JsonText(const std::string& mac_roman) {
  std::string json = "\"";
  for (const char c : host::MacRomanToUtf8(mac_roman)) {
    if (c == '"' || c == '\\') {
      json += {'\\', c};
    } else if (IsControl(c)) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      json += escape;
    } else {
      json += c;
    }
  }
  return json + "\"";
}

std::string Member(const char* name, const std::string& json) {
  return std::string("\"") + name + "\": " + json;
}

std::string Member(const char* name, std::int32_t number) { return Member(name, std::to_string(number)); }

std::string JsonOf(const Finding& finding) {
  const Place& place = finding.place;
  std::string json = "{" + Member("kind", JsonText(std::string(NameOf(finding.kind)))) + ", " +
                     Member("file", JsonText(place.file));
  if (place.page >= 0)
    json += ", " + Member("page", place.page) + ", " + Member("title", JsonText(place.title));
  if (place.column > 0) json += ", " + Member("column", place.column);
  if (place.link > 0) json += ", " + Member("link", place.link);
  if (!place.words.empty()) json += ", " + Member("words", JsonText(place.words));
  return json + ", " + Member("reason", JsonText(finding.reason)) + "}";
}

std::string JsonOf(const AreaSummary& area) {
  return "{" + Member("area", JsonText(area.area)) + ", " + Member("file", JsonText(area.file)) + ", " +
         Member("pages", area.pages) + ", " + Member("words", area.words) + ", " +
         Member("links", area.links) + ", " + Member("clicks", area.clicks) + "}";
}

template <typename Entries>
void WriteArray(const char* name, const Entries& entries, std::ostream& out) {
  out << "  \"" << name << "\": [";
  const char* separator = "\n    ";
  for (const auto& entry : entries) {
    out << separator << JsonOf(entry);
    separator = ",\n    ";
  }
  out << (entries.empty() ? "]" : "\n  ]");
}

}  // namespace

std::string_view NameOf(Kind kind) {
  switch (kind) {
    case Kind::kPageId:
      return "page-id";
    case Kind::kLastPageId:
      return "last-page-id";
    case Kind::kNumber:
      return "number";
    case Kind::kTarget:
      return "target";
    case Kind::kOffset:
      return "offset";
    case Kind::kLength:
      return "length";
    case Kind::kSameWord:
      return "same-word";
    case Kind::kOverlap:
      return "overlap";
    case Kind::kPastEdge:
      return "past-edge";
    case Kind::kUncovered:
      return "uncovered";
    case Kind::kOverwritten:
      return "overwritten";
    case Kind::kExitButton:
      return "exit-button";
    case Kind::kTooManyLinks:
      return "too-many-links";
    case Kind::kBelowEdge:
      return "below-edge";
    case Kind::kOrphan:
      return "orphan";
    case Kind::kCharacter:
      return "character";
    case Kind::kDocument:
      return "document";
  }
  return "";
}

void WriteText(const Report& report, std::ostream& out) {
  for (const Finding& finding : report.findings) {
    out << LineOf(finding.place) << ": " << OneLine(finding.reason) << "\n";
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

}  // namespace quill::quillpress
