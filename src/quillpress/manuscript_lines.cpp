#include "quillpress/manuscript_lines.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "app/mode_table.h"
#include "authoring/complaint.h"
#include "authoring/manuscript/manuscript_reader.h"
#include "base/text.h"
#include "base/text_converter.h"
#include "host/qt/qt_files.h"

namespace quill::quillpress {
namespace {

std::string NameOf(const search::Hit& hit) {
  std::string name(app::kModes.at(static_cast<std::size_t>(hit.mode)).area);
  for (char& c : name) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return name + (hit.kind == search::Kind::kEntry ? "_glossary.md" : ".md");
}

}  // namespace

ManuscriptLine ManuscriptLines::LineOf(const search::Hit& hit, const search::Query& query) {
  const std::string name = NameOf(hit);
  const Manuscript& manuscript = Read(name);
  ManuscriptLine place{(folder_ / name).string(), 0};
  const auto page = static_cast<std::size_t>(std::strtoul(hit.page.c_str(), nullptr, 10));
  if (page >= manuscript.pages.size() || manuscript.pages[page].title != hit.title) return place;
  place.line = manuscript.pages[page].line;
  const bool last = page + 1 == manuscript.pages.size();
  const std::size_t end =
      last ? manuscript.lines.size() : static_cast<std::size_t>(manuscript.pages[page + 1].line) - 1;
  for (auto line = static_cast<std::size_t>(place.line); line <= end; ++line) {
    if (search::MarkedIn(manuscript.lines.at(line - 1), query).empty()) continue;
    place.line = static_cast<int>(line);
    break;
  }
  return place;
}

const ManuscriptLines::Manuscript& ManuscriptLines::Read(const std::string& name) {
  const auto known = manuscripts_.find(name);
  if (known != manuscripts_.end()) return known->second;
  const auto text = host::ReadWhole(*host::DiskItem(folder_ / name));
  if (!text) throw authoring::FileComplaint((folder_ / name).string() + " can't be read.");
  Manuscript& manuscript = manuscripts_[name];
  for (const std::string_view line : base::Fields(*text, '\n')) manuscript.lines.emplace_back(line);
  for (const authoring::ManuscriptPage& page : authoring::ReadManuscript(*text).pages)
    manuscript.pages.push_back({base::MacRomanToUtf8(page.title), page.line});
  return manuscript;
}

}  // namespace quill::quillpress
