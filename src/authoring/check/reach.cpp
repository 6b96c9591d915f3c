#include "authoring/check/reach.h"

#include <deque>
#include <memory>

#include "authoring/area.h"
#include "base/numbers.h"
#include "content/link_types.h"

namespace quill::authoring {
namespace {

using Kind = app::Destination::Kind;

std::optional<std::size_t> IndexOf(const content::Document& document, const app::Destination& destination) {
  return IndexOfPage(document, base::IntVal(destination.name));
}

}  // namespace

app::Destination PushedDestination(app::Modes modes, std::int32_t mode, const content::Link& link) {
  if (content::IsStyledRun(link.GetType())) return {};
  return app::DestinationOf(modes, modes[static_cast<std::size_t>(mode)], link.GetType(),
                            link.GetLinkToPage(), link.GetFilename());
}

// Ids are compared as numbers, as the reader does: "07" is found under 7.
std::optional<std::size_t> IndexOfPage(const content::Document& document, std::int32_t number) {
  const auto pages = PagesOf(document);
  for (std::size_t index = 0; index < pages.size(); ++index) {
    if (base::IntVal(pages[index]->GetPageID()) == number) return index;
  }
  return std::nullopt;
}

// Breadth first: the first way that reaches a page is among the shortest.
std::vector<std::int32_t> ClicksTo(const content::Document& document, app::Modes modes, std::int32_t mode,
                                   const PageIndices& starts) {
  const auto pages = PagesOf(document);
  std::vector<std::int32_t> clicks(pages.size(), -1);
  std::deque<std::size_t> open;  // reached, their links not yet followed
  const auto reach = [&](std::size_t index, std::int32_t count) {
    if (clicks[index] >= 0) return;
    clicks[index] = count;
    open.push_back(index);
  };
  for (const std::size_t start : starts) reach(start, 0);
  for (; !open.empty(); open.pop_front()) {
    for (const auto& link : LinksOf(*pages[open.front()])) {
      const app::Destination destination = PushedDestination(modes, mode, *link);
      if (destination.kind != Kind::kPage) continue;
      if (const auto index = IndexOf(document, destination)) reach(*index, clicks[open.front()] + 1);
    }
  }
  return clicks;
}

std::vector<bool> LinkedPages(const content::Document& from, app::Modes modes, std::int32_t mode, Kind kind,
                              const content::Document& to) {
  std::vector<bool> linked(PagesOf(to).size());
  const auto pages = PagesOf(from);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    for (const auto& link : LinksOf(*pages[i])) {
      const app::Destination destination = PushedDestination(modes, mode, *link);
      if (destination.kind != kind) continue;
      const auto index = IndexOf(to, destination);
      const bool to_itself = &from == &to && index == i;
      if (index && !to_itself) linked[*index] = true;
    }
  }
  return linked;
}

// A link to an area that names no page of it leaves the page on show, which is the
// opening page's own 0.
std::vector<std::int32_t> PagesEntered(const content::Document& opening, app::Modes modes,
                                       std::int32_t mode) {
  std::vector<std::int32_t> numbers;
  for (const auto& page : PagesOf(opening)) {
    for (const auto& link : LinksOf(*page)) {
      const app::Destination destination = PushedDestination(modes, app::kOpeningMode, *link);
      if (destination.kind == Kind::kMode && destination.mode == mode)
        numbers.push_back(destination.page.value_or(0));
    }
  }
  return numbers;
}

}  // namespace quill::authoring
