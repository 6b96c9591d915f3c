#include "quillpress/checker.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "app/mode_table.h"
#include "host/desktop.h"
#include "host/numbers.h"
#include "quillpress/area.h"
#include "quillpress/character_check.h"
#include "quillpress/page_check.h"
#include "quillpress/targets.h"

namespace quill::quillpress {
namespace {

constexpr std::int32_t kFirstPage = 1;  // of Bio, where the opening page leads nowhere in it

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
  for (std::size_t mode = 0; mode < app::kModes.size(); ++mode) {
    Area& area = areas.emplace_back();
    area.mode = static_cast<std::int32_t>(mode);
    open(app::kModes[mode].content_file, area.pages);
    open(app::kModes[mode].glossary_file, area.glossary);
  }
  if (!complete) return std::nullopt;
  return areas;
}

Place PlaceOf(const OpenedFile& file, std::size_t page) {
  Place place;
  place.file = file.name;
  place.page = static_cast<std::int32_t>(page);
  const auto found = file.document->GetPageByOffset(place.page);
  place.title = found ? found->GetTitle() : "";
  return place;
}

Place PlaceOf(const OpenedFile& file) {
  Place place;
  place.file = file.name;
  return place;
}

class Checker {
 public:
  Checker(const std::vector<Area>& areas, const CheckOptions& options, std::ostream& notes)
      : areas_(areas), options_(options), notes_(notes), metrics_(host::Desktop::Current().Metrics()) {}

  Report Run() {
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

 private:
  void Add(Kind kind, Place place, std::string reason) {
    file_findings_.push_back({kind, std::move(place), std::move(reason)});
  }

  // Puts the findings of a file into the order of its pages and links.
  void EndFile() {
    std::stable_sort(file_findings_.begin(), file_findings_.end(), [](const Finding& a, const Finding& b) {
      return std::tie(a.place.page, a.place.link) < std::tie(b.place.page, b.place.link);
    });
    std::move(file_findings_.begin(), file_findings_.end(), std::back_inserter(report_.findings));
    file_findings_.clear();
  }

  void CheckPages(const Area& area) {
    options_.progress(area.pages.name);
    CheckFile(area.pages);
    const auto pages = PagesOf(*area.pages.document);
    AreaSummary summary;
    summary.area = app::kModes[static_cast<std::size_t>(area.mode)].area;
    summary.file = area.pages.name;
    summary.pages = static_cast<std::int32_t>(pages.size());
    for (std::size_t i = 0; i < pages.size(); ++i) {
      CheckPage(*pages[i], area.mode, PlaceOf(area.pages, i), metrics_, file_findings_);
      CheckLinks(area, i, summary);
    }
    summary.clicks = CheckReach(area);
    report_.areas.push_back(std::move(summary));
    EndFile();
  }

  void CheckGlossary(const Area& area) {
    options_.progress(area.glossary.name);
    CheckFile(area.glossary);
    const auto entries = PagesOf(*area.glossary.document);
    const auto linked =
        LinkedPages(*area.pages.document, area.mode, Lead::To::kEntry, *area.glossary.document);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const Place place = PlaceOf(area.glossary, i);
      CheckEntry(*entries[i], place, metrics_, file_findings_);
      // Entry 0 is there because ids start at 0; the opening page has no links to
      // entries.
      if (i > 0 && !linked[i]) Add(Kind::kOrphan, place, "no page links to this entry");
    }
    EndFile();
  }

  // What holds for files of pages and of entries alike.
  void CheckFile(const OpenedFile& file) {
    const auto pages = PagesOf(*file.document);
    for (std::size_t i = 0; i < pages.size(); ++i) {
      const std::string id = std::to_string(i);
      if (pages[i]->GetPageID() == id) continue;
      Add(Kind::kPageId, PlaceOf(file, i),
          "its id is \"" + pages[i]->GetPageID() + "\", and its place " + id);
    }
    const std::int32_t last = file.document->GetUbound();
    if (file.file->GetLastPageID() != last) {
      Add(Kind::kLastPageId, PlaceOf(file),
          "LastPageID is " + host::Str(file.file->GetLastPageID()) + ", and the last page " +
              host::Str(last));
    }
    for (LostCharacter& lost : FindLostCharacters(file.bytes)) {
      Add(Kind::kCharacter,
          lost.page < 0 ? PlaceOf(file) : PlaceOf(file, static_cast<std::size_t>(lost.page)),
          std::move(lost.reason));
    }
  }

  void CheckLinks(const Area& area, std::size_t place, AreaSummary& summary) {
    const content::Page& page = *area.pages.document->GetPageByOffset(static_cast<std::int32_t>(place));
    const std::vector<PageWord> words = WordsOf(page, metrics_);
    summary.words += static_cast<std::int32_t>(words.size());
    const auto links = LinksOf(page);
    for (std::size_t i = 0; i < links.size(); ++i) {
      const Lead lead = LeadOf(*links[i], area.mode);
      if (lead.to == Lead::To::kNothing) continue;
      ++summary.links;
      CheckTarget(area, lead, *links[i], PlaceOfLink(PlaceOf(area.pages, place), page, words, i));
    }
  }

  void CheckTarget(const Area& area, const Lead& lead, const content::Link& link, const Place& place) {
    if (lead.to == Lead::To::kDocument) {
      CheckDocument(area.mode, link.GetFilename(), place);
    } else if (lead.to == Lead::To::kUnknown) {
      Add(Kind::kTarget, place, "its type " + host::Str(link.GetType()) + " leads nowhere");
    } else if (!IsWholeNumber(link.GetLinkToPage())) {
      Add(Kind::kNumber, place, "its target \"" + link.GetLinkToPage() + "\" is no whole number");
    } else if (lead.to == Lead::To::kMode && !app::IsMode(lead.number)) {
      Add(Kind::kTarget, place, "it leads to area " + host::Str(lead.number) + ", which there isn't");
    } else if (const OpenedFile* const file = FileOf(area, lead.to)) {
      if (PlaceOfPage(*file->document, lead.number)) return;
      Add(Kind::kTarget, place,
          "it leads to page " + host::Str(lead.number) + " of " + file->name + ", which there isn't");
    }
  }

  // The file that a link of that kind leads into, null if into none.
  const OpenedFile* FileOf(const Area& area, Lead::To to) const {
    if (to == Lead::To::kPage) return &area.pages;
    if (to == Lead::To::kEntry) return &area.glossary;
    return to == Lead::To::kBioPage ? &areas_.at(app::kBioMode).pages : nullptr;
  }

  void CheckDocument(std::int32_t mode, const std::string& name, const Place& place) {
    if (name.empty()) {
      Add(Kind::kDocument, place, "it names no document");
    } else if (mode != app::kWgaMode && !options_.documents_known) {
      ++documents_passed_over_;
    } else if (!DocumentExists(name, mode)) {
      Add(Kind::kDocument, place, "the document \"" + name + "\" isn't there");
    }
  }

  // Tells which pages can't be reached; gives the clicks to the farthest of the
  // others.
  std::int32_t CheckReach(const Area& area) {
    const content::Document& document = *area.pages.document;
    const Places starts = WaysInto(area);
    if (starts.empty()) Add(Kind::kTarget, PlaceOf(area.pages), "it lacks the page on which its area opens");
    const std::vector<std::int32_t> clicks = ClicksTo(document, area.mode, starts);
    const std::vector<bool> linked = LinkedPages(document, area.mode, Lead::To::kPage, document);
    // Page 0 is there because ids start at 0; an area opens on a later one.
    for (std::size_t i = 1; i < clicks.size(); ++i) {
      if (clicks[i] >= 0) continue;
      Add(Kind::kOrphan, PlaceOf(area.pages, i),
          linked[i] ? "only pages that can't be reached link to it" : "no page links to it");
    }
    return clicks.empty() ? 0 : std::max(0, *std::max_element(clicks.begin(), clicks.end()));
  }

  // The pages on which an area may open.
  Places WaysInto(const Area& area) const {
    const content::Document& document = *area.pages.document;
    const auto first = app::kModes[static_cast<std::size_t>(area.mode)].first_page;
    Places ways;
    const auto add = [&](std::int32_t number) {
      if (const auto place = PlaceOfPage(document, number)) ways.push_back(*place);
    };
    if (first) add(*first);
    if (area.mode == app::kBioMode) {
      for (const std::int32_t number : BioPagesFromOpening()) add(number);
      if (ways.empty()) add(kFirstPage);
    }
    return ways;
  }

  // A link to the area itself opens it on the page on show, which is page 0.
  std::vector<std::int32_t> BioPagesFromOpening() const {
    std::vector<std::int32_t> numbers;
    for (const auto& page : PagesOf(*areas_.at(app::kOpeningMode).pages.document)) {
      for (const auto& link : LinksOf(*page)) {
        const Lead lead = LeadOf(*link, app::kOpeningMode);
        if (lead.to == Lead::To::kBioPage) numbers.push_back(lead.number);
        if (lead.to == Lead::To::kMode && lead.number == app::kBioMode) numbers.push_back(0);
      }
    }
    return numbers;
  }

  const std::vector<Area>& areas_;
  const CheckOptions& options_;
  std::ostream& notes_;
  host::FontMetrics& metrics_;
  Findings file_findings_;
  Report report_;
  int documents_passed_over_ = 0;
};

}  // namespace

std::optional<Report> Check(const CheckOptions& options, std::ostream& notes) {
  const auto areas = OpenAreas(options, notes);
  if (!areas) return std::nullopt;
  return Checker(*areas, options, notes).Run();
}

}  // namespace quill::quillpress
