#include "authoring/press/target_resolver.h"

#include <algorithm>
#include <utility>

#include "app/mode_table.h"
#include "base/numbers.h"
#include "content/link_types.h"

namespace quill::authoring {
namespace {

bool LeadsToArea(const Run& run) {
  return run.target.kind == Target::Kind::kMode || run.target.kind == Target::Kind::kLife;
}

bool LeadsToNotes(const Run& run) { return run.target.kind == Target::Kind::kNotes; }

// The target by which a link of the opening page names the first of the lives.
std::int32_t LivesFrom() {
  constexpr std::int32_t kLives = app::ModeNamedByPage(app::kModes);
  static_assert(kLives >= 0);
  return *app::kModes[kLives].targets_from;
}

// A manuscript doesn't say which area it is for; its links tell as much as matters.
template <typename Test>
bool AnyRun(const Manuscript& manuscript, const Test& test) {
  for (const ManuscriptPage& page : manuscript.pages) {
    for (const Column& column : page.columns) {
      if (std::any_of(column.runs.begin(), column.runs.end(), test)) return true;
    }
  }
  return false;
}

}  // namespace

PageNames::PageNames(const Manuscript* manuscript) : has_manuscript_(manuscript != nullptr) {
  if (!has_manuscript_) return;
  std::int32_t id = 0;
  for (const ManuscriptPage& page : manuscript->pages) ids_.emplace(page.name, id++);
  ids_.erase("");  // pages that nobody can link to
}

std::optional<std::int32_t> PageNames::IdOf(const std::string& name) const {
  const auto found = ids_.find(name);
  return found == ids_.end() ? std::nullopt : std::optional(found->second);
}

TargetResolver::TargetResolver(const Manuscript& manuscript, const Neighbours& neighbours,
                               Diagnostics& diagnostics)
    : diagnostics_(diagnostics),
      pages_(&manuscript),
      entries_(neighbours.glossary),
      lives_(neighbours.lives),
      opening_(AnyRun(manuscript, LeadsToArea)),
      has_notes_(AnyRun(manuscript, LeadsToNotes)) {}

// On the opening page the viewer takes every target for an area, whatever the
// link's type, so that no other link can work there.
std::int32_t TargetResolver::NumberFor(const Run& run) {
  if (opening_ && !LeadsToArea(run) && !content::IsStyledRun(run.target.type))
    Diagnose(run, "on the opening page, the one with mode: and bio: links, every link leads to an area");
  switch (run.target.kind) {
    case Target::Kind::kPage:
      return PageNumber(run);
    case Target::Kind::kEntry:
      return Find(entries_, run, "glossary beside this manuscript", 0);
    case Target::Kind::kLife:
      return Find(lives_, run, "manuscript bio beside this one", LivesFrom());
    case Target::Kind::kMode:
      return base::IntVal(run.target.name);
    case Target::Kind::kDocument:
      CheckFileName(run);
      return 0;
    case Target::Kind::kNotes:
    case Target::Kind::kNone:
      return 0;
  }
  return 0;
}

// In the area that has the notes pad, page 0 stands for it.
std::int32_t TargetResolver::PageNumber(const Run& run) {
  const std::int32_t page = Find(pages_, run, "manuscript itself", 0);
  if (page == 0 && has_notes_ && pages_.IdOf(run.target.name))
    Diagnose(run,
             "where there is a notes: link, the first page can't be linked to: its number is the notes'");
  return page;
}

// The id of the page that the run names, counted from `first`.
std::int32_t TargetResolver::Find(const PageNames& names, const Run& run, const std::string& where,
                                  std::int32_t first) {
  if (const auto id = names.IdOf(run.target.name)) return first + *id;
  const std::string name = "\"" + run.target.name + "\"";
  Diagnose(run, names.HasManuscript() ? "the " + where + " has no page named " + name
                                      : "there is no " + where + " to look for " + name);
  return 0;
}

// Names of files are told to other programs, whose encoding nobody knows.
void TargetResolver::CheckFileName(const Run& run) {
  const std::string& name = run.target.name;
  if (std::any_of(name.begin(), name.end(), [](char c) { return c < 32 || c > 126; }))
    Diagnose(run, "the file name \"" + name + "\" must do without accents and other signs");
}

void TargetResolver::Diagnose(const Run& run, std::string sentence) {
  diagnostics_.push_back({run.line, std::move(sentence)});
}

}  // namespace quill::authoring
