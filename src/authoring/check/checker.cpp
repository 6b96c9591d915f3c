#include "authoring/check/checker.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "authoring/area.h"
#include "authoring/check/character_check.h"
#include "authoring/check/page_check.h"
#include "authoring/check/reach.h"
#include "base/numbers.h"
#include "content/link_types.h"
#include "host/desktop.h"

namespace quill::authoring {
namespace {

using To = app::Destination::Kind;

// Where an area opens that is entered by page, if no link of the opening page
// leads into it.
constexpr std::int32_t kFirstPage = 1;

std::optional<std::vector<Area>> OpenAreas(const CheckOptions& options, std::ostream& notes) {
  std::vector<Area> areas;
  bool complete = true;
  const auto open = [&](std::string_view name, OpenedFile& file) {
    options.progress(std::string(name));
    if (auto opened = OpenFile(std::string(name))) {
      file = std::move(*opened);
    } else {
      notes << CannotOpen(std::string(name)) << ".\n";
      complete = false;
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

Location LocationOf(const OpenedFile& file, std::size_t page) {
  Location location;
  location.file = file.name;
  location.page = static_cast<std::int32_t>(page);
  const auto found = file.document->GetPageByOffset(location.page);
  location.title = found ? found->GetTitle() : "";
  return location;
}

Location LocationOf(const OpenedFile& file) {
  Location location;
  location.file = file.name;
  return location;
}

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

  void CheckLinks(const Area& area, std::size_t page, AreaSummary& summary);
  void CheckDestination(const Area& area, const app::Destination& destination, const content::Link& link,
                        const Location& location);
  void CheckPageNumber(const OpenedFile& file, std::int32_t number, const Location& location);
  void CheckDocument(const Area& area, const std::string& name, const Location& location);

  std::int32_t CheckReach(const Area& area);
  PageIndices WaysInto(const Area& area) const;
  std::vector<std::int32_t> PagesNamedByOpening(std::int32_t mode) const;

  const std::vector<Area>& areas_;
  const CheckOptions& options_;
  std::ostream& notes_;
  host::FontMetrics& metrics_;
  Findings file_findings_;
  Report report_;
  int documents_passed_over_ = 0;
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
    return std::tie(a.location.page, a.location.link) < std::tie(b.location.page, b.location.link);
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

// What holds for files of pages and of entries alike.
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
        lost.page < 0 ? LocationOf(file) : LocationOf(file, static_cast<std::size_t>(lost.page)),
        std::move(lost.reason));
  }
}

// Runs of styled words and plain buttons are no links to anybody.
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
      "it leads to page " + base::Str(number) + " of " + file.name + ", which there isn't");
}

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

// The pages on which an area may open.
PageIndices Checker::WaysInto(const Area& area) const {
  PageIndices ways;
  const auto add = [&](std::int32_t number) {
    if (const auto index = IndexOfPage(*area.pages.document, number)) ways.push_back(*index);
  };
  if (const auto first = ModeOf(area).first_page) {
    add(*first);
    return ways;
  }
  for (const std::int32_t number : PagesNamedByOpening(area.mode)) add(number);
  if (ways.empty()) add(kFirstPage);
  return ways;
}

// A link to the area itself opens it on the page on show, which is page 0.
std::vector<std::int32_t> Checker::PagesNamedByOpening(std::int32_t mode) const {
  std::vector<std::int32_t> numbers;
  for (const auto& page : PagesOf(*areas_.at(app::kOpeningMode).pages.document)) {
    for (const auto& link : LinksOf(*page)) {
      const app::Destination destination = PushedDestination(options_.modes, app::kOpeningMode, *link);
      if (destination.kind == To::kMode && destination.mode == mode)
        numbers.push_back(destination.page.value_or(0));
    }
  }
  return numbers;
}

}  // namespace

std::optional<Report> Check(const CheckOptions& options, std::ostream& notes) {
  const auto areas = OpenAreas(options, notes);
  if (!areas) return std::nullopt;
  return Checker(*areas, options, notes).Run();
}

}  // namespace quill::authoring
