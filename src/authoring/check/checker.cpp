#include "authoring/check/checker.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "authoring/area.h"
#include "authoring/check/character_check.h"
#include "authoring/check/link_check.h"
#include "authoring/check/page_check.h"
#include "authoring/check/reach.h"
#include "base/numbers.h"
#include "base/text_converter.h"
#include "content/link_types.h"
#include "host/desktop.h"

namespace quill::authoring {
namespace {

using To = app::Destination::Kind;

// Where an area opens that is entered by page, if no link of the opening page
// leads into it.
constexpr std::int32_t kFirstPage = 1;

// All areas, or none if a file can't be opened. It goes on to the last file, so that
// one run tells of all.
std::optional<std::vector<Area>> OpenAreas(const CheckOptions& options, std::ostream& notes,
                                           bool& unreadable) {
  std::vector<Area> areas;
  bool complete = true;
  const auto open = [&](std::string_view name, OpenedFile& file) {
    const std::string file_name(name);
    options.progress(file_name);
    if (auto opened = OpenFile(file_name)) {
      file = std::move(*opened);
    } else {
      notes << CannotOpen(file_name) << ".\n";
      complete = false;
      unreadable = unreadable || !IsReadable(file_name);
    }
  };
  for (const app::Mode& mode : options.modes) {
    Area& area = areas.emplace_back();
    area.mode = static_cast<std::int32_t>(areas.size()) - 1;
    open(mode.content_file, area.pages);
    open(mode.glossary_file, area.glossary);
  }
  if (!complete) return std::nullopt;
  return areas;
}

Location LocationOf(const OpenedFile& file) {
  Location location;
  location.file = file.name;
  return location;
}

// Bytes of a file may hold page tags where the document has no page, as in a comment.
Location LocationOf(const OpenedFile& file, std::size_t page_index) {
  Location location = LocationOf(file);
  location.page_index = static_cast<std::int32_t>(page_index);
  const auto page = file.document->GetPageByOffset(location.page_index);
  location.title = page ? page->GetTitle() : "";
  return location;
}

// The check of all areas. It needs them all open at a time: links of the opening page
// lead into the others.
class Checker {
 public:
  Checker(const std::vector<Area>& areas, const CheckOptions& options, std::ostream& notes)
      : areas_(areas), options_(options), notes_(notes), metrics_(host::Desktop::Current().Metrics()) {}

  Report Run();

 private:
  const app::Mode& ModeOf(const Area& area) const;
  void Add(FindingKind kind, Location location, std::string reason);
  void EndFile();

  void CheckPages(const Area& area);
  void CheckGlossary(const Area& area);
  void CheckFile(const OpenedFile& file);

  void CheckLinks(const Area& area, std::size_t page_index, AreaSummary& summary);
  void CheckDestination(const Area& area, const app::Destination& destination, const content::Link& link,
                        const Location& location);
  void CheckPageNumber(const OpenedFile& file, std::int32_t number, const Location& location);
  void CheckDocument(const Area& area, const std::string& name, const Location& location);

  std::int32_t CheckReach(const Area& area);
  PageIndices WaysInto(const Area& area) const;

  const std::vector<Area>& areas_;
  const CheckOptions& options_;
  std::ostream& notes_;
  host::FontMetrics& metrics_;
  Findings file_findings_;  // of the file under way
  Report report_;
  int documents_passed_over_ = 0;  // links to them
};

Report Checker::Run() {
  for (const Area& area : areas_) {
    CheckPages(area);
    CheckGlossary(area);
  }
  if (documents_passed_over_ > 0) {
    notes_ << "Links to documents outside the bundle were passed over (" << documents_passed_over_
           << "): name the folder of the documents with --documents.\n";
  }
  return std::move(report_);
}

const app::Mode& Checker::ModeOf(const Area& area) const {
  return options_.modes[static_cast<std::size_t>(area.mode)];
}

void Checker::Add(FindingKind kind, Location location, std::string reason) {
  file_findings_.push_back({kind, std::move(location), std::move(reason)});
}

// Puts the findings of a file into the order of its pages and links.
void Checker::EndFile() {
  std::stable_sort(file_findings_.begin(), file_findings_.end(), [](const Finding& a, const Finding& b) {
    return std::tie(a.location.page_index, a.location.link_number) <
           std::tie(b.location.page_index, b.location.link_number);
  });
  std::move(file_findings_.begin(), file_findings_.end(), std::back_inserter(report_.findings));
  file_findings_.clear();
}

void Checker::CheckPages(const Area& area) {
  options_.progress(area.pages.name);
  CheckFile(area.pages);
  const auto pages = PagesOf(*area.pages.document);
  AreaSummary summary;
  summary.area = ModeOf(area).area;
  summary.file = area.pages.name;
  summary.pages = static_cast<std::int32_t>(pages.size());
  for (std::size_t i = 0; i < pages.size(); ++i) {
    CheckPage(*pages[i], ModeOf(area), LocationOf(area.pages, i), metrics_, file_findings_);
    CheckLinks(area, i, summary);
  }
  summary.clicks = CheckReach(area);
  report_.areas.push_back(std::move(summary));
  EndFile();
}

void Checker::CheckGlossary(const Area& area) {
  options_.progress(area.glossary.name);
  CheckFile(area.glossary);
  const auto entries = PagesOf(*area.glossary.document);
  const auto linked =
      LinkedPages(*area.pages.document, options_.modes, area.mode, To::kEntry, *area.glossary.document);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Location location = LocationOf(area.glossary, i);
    CheckEntry(*entries[i], location, metrics_, file_findings_);
    // Entry 0 is there because ids start at 0; the opening page has no links to
    // entries.
    if (i > 0 && !linked[i]) Add(FindingKind::kOrphan, location, "no page links to this entry");
  }
  EndFile();
}

// What holds for files of pages and of entries alike: an id is its page's index,
// since the store takes the one for the other; and no character is lost.
void Checker::CheckFile(const OpenedFile& file) {
  const auto pages = PagesOf(*file.document);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::string id = std::to_string(i);
    if (pages[i]->GetPageID() == id) continue;
    Add(FindingKind::kPageId, LocationOf(file, i),
        "its id is \"" + pages[i]->GetPageID() + "\", and its place " + id);
  }
  const std::int32_t last = file.document->GetUbound();
  if (file.file->GetLastPageID() != last) {
    Add(FindingKind::kLastPageId, LocationOf(file),
        "LastPageID is " + base::Str(file.file->GetLastPageID()) + ", and the last page " + base::Str(last));
  }
  for (LostCharacter& lost : FindLostCharacters(file.bytes)) {
    Add(FindingKind::kCharacter,
        lost.page_index < 0 ? LocationOf(file) : LocationOf(file, static_cast<std::size_t>(lost.page_index)),
        std::move(lost.reason));
  }
}

// Runs of styled words and plain buttons lead nowhere on purpose, and don't count as
// links.
void Checker::CheckLinks(const Area& area, std::size_t page_index, AreaSummary& summary) {
  const content::Page& page = *area.pages.document->GetPageByOffset(static_cast<std::int32_t>(page_index));
  const std::vector<PageWord> words = WordsOf(page, metrics_);
  summary.words += static_cast<std::int32_t>(words.size());
  const auto links = LinksOf(page);
  for (std::size_t i = 0; i < links.size(); ++i) {
    const app::Destination destination = PushedDestination(options_.modes, area.mode, *links[i]);
    const std::int32_t type = links[i]->GetType();
    const bool plain = content::IsStyledRun(type) || type == content::link_type::kPlain;
    if (destination.kind == To::kNothing && plain) continue;
    ++summary.links;
    CheckDestination(area, destination, *links[i],
                     LocationOfLink(LocationOf(area.pages, page_index), page, words, i));
  }
}

// Whether what a link leads to is there. A target is looked up by its number, so that
// one that is no number comes first: it would count as 0.
void Checker::CheckDestination(const Area& area, const app::Destination& destination,
                               const content::Link& link, const Location& location) {
  if (destination.kind == To::kDocument) return CheckDocument(area, destination.name, location);
  if (destination.kind == To::kNothing) {
    Add(FindingKind::kTarget, location, "its type " + base::Str(link.GetType()) + " leads nowhere");
  } else if (!IsWholeNumber(link.GetLinkToPage())) {
    Add(FindingKind::kNumber, location, "its target \"" + link.GetLinkToPage() + "\" is no whole number");
  } else if (destination.kind == To::kPage) {
    CheckPageNumber(area.pages, base::IntVal(destination.name), location);
  } else if (destination.kind == To::kEntry) {
    CheckPageNumber(area.glossary, base::IntVal(destination.name), location);
  } else if (destination.kind == To::kMode && !app::IsMode(options_.modes, destination.mode)) {
    Add(FindingKind::kTarget, location,
        "it leads to area " + base::Str(destination.mode) + ", which there isn't");
  } else if (destination.page) {
    CheckPageNumber(areas_[static_cast<std::size_t>(destination.mode)].pages, *destination.page, location);
  }
}

void Checker::CheckPageNumber(const OpenedFile& file, std::int32_t number, const Location& location) {
  if (IndexOfPage(*file.document, number)) return;
  Add(FindingKind::kTarget, location,
      "it leads to page " + base::Str(number) + " of " + base::Utf8ToMacRoman(file.name) +
          ", which there isn't");
}

// A document outside the bundle can't be missed where its folder isn't known.
void Checker::CheckDocument(const Area& area, const std::string& name, const Location& location) {
  const content::DocumentPlace place = ModeOf(area).documents;
  if (name.empty()) {
    Add(FindingKind::kDocument, location, "it names no document");
  } else if (place == content::DocumentPlace::kBesideBundle && !options_.documents_known) {
    ++documents_passed_over_;
  } else if (!content::FindDocument(place, name)) {
    Add(FindingKind::kDocument, location, "the document \"" + name + "\" isn't there");
  }
}

// Tells which pages can't be reached; returns the clicks to the farthest of the
// others.
std::int32_t Checker::CheckReach(const Area& area) {
  const content::Document& document = *area.pages.document;
  const PageIndices starts = WaysInto(area);
  if (starts.empty())
    Add(FindingKind::kTarget, LocationOf(area.pages), "it lacks the page on which its area opens");
  const std::vector<std::int32_t> clicks = ClicksTo(document, options_.modes, area.mode, starts);
  const std::vector<bool> linked = LinkedPages(document, options_.modes, area.mode, To::kPage, document);
  // Page 0 is there because ids start at 0; an area opens on a later one.
  for (std::size_t i = 1; i < clicks.size(); ++i) {
    if (clicks[i] >= 0) continue;
    Add(FindingKind::kOrphan, LocationOf(area.pages, i),
        linked[i] ? "only pages that can't be reached link to it" : "no page links to it");
  }
  return clicks.empty() ? 0 : std::max(0, *std::max_element(clicks.begin(), clicks.end()));
}

// The pages on which an area may open: its row's first page, or all those that links
// of the opening page choose.
PageIndices Checker::WaysInto(const Area& area) const {
  PageIndices ways;
  const auto add = [&](std::int32_t number) {
    if (const auto index = IndexOfPage(*area.pages.document, number)) ways.push_back(*index);
  };
  if (const auto first = ModeOf(area).first_page) {
    add(*first);
    return ways;
  }
  const content::Document& opening = *areas_.at(app::kOpeningMode).pages.document;
  for (const std::int32_t number : PagesEntered(opening, options_.modes, area.mode)) add(number);
  if (ways.empty()) add(kFirstPage);
  return ways;
}

}  // namespace

CheckResult Check(const CheckOptions& options, std::ostream& notes) {
  CheckResult result;
  if (const auto areas = OpenAreas(options, notes, result.unreadable))
    result.report = Checker(*areas, options, notes).Run();
  return result;
}

}  // namespace quill::authoring
