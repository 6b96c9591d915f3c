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

std::optional<std::size_t> IndexOfPage(const content::Document& document, std::int32_t number) {
  const auto pages = PagesOf(document);
  for (std::size_t index = 0; index < pages.size(); ++index) {
    if (base::IntVal(pages[index]->GetPageID()) == number) return index;
  }
  return std::nullopt;
}

std::vector<std::int32_t> ClicksTo(const content::Document& document, app::Modes modes, std::int32_t mode,
                                   const PageIndices& starts) {
  const auto pages = PagesOf(document);
  std::vector<std::int32_t> clicks(pages.size(), -1);
  std::deque<std::size_t> open;
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

std::vector<bool> LinkedPages(const content::Document& source, app::Modes modes, std::int32_t mode, Kind kind,
                              const content::Document& target) {
  std::vector<bool> linked(PagesOf(target).size());
  const auto pages = PagesOf(source);
  for (std::size_t from = 0; from < pages.size(); ++from) {
    for (const auto& link : LinksOf(*pages[from])) {
      const app::Destination destination = PushedDestination(modes, mode, *link);
      if (destination.kind != kind) continue;
      const auto index = IndexOf(target, destination);
      const bool to_itself = &source == &target && index == from;
      if (index && !to_itself) linked[*index] = true;
    }
  }
  return linked;
}

}  // namespace quill::authoring
