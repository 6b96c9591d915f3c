#include "quillpress/targets.h"

#include <deque>
#include <memory>

#include "app/mode_table.h"
#include "host/desktop.h"
#include "host/numbers.h"
#include "host/text.h"
#include "host/text_converter.h"
#include "nav/text_button.h"
#include "quillpress/area.h"
#include "render/link_style.h"

namespace quill::quillpress {
namespace {

using nav::link_type::kDocument;
using nav::link_type::kGlossary;
using nav::link_type::kPage;
using nav::link_type::kPlain;

Lead LeadOfOpening(std::int32_t target) {
  if (target >= app::kBioPages) return {Lead::To::kBioPage, target - app::kBioPages};
  return {Lead::To::kMode, target};
}

}  // namespace

Lead LeadOf(const content::Link& link, std::int32_t mode) {
  const std::int32_t target = host::IntVal(link.GetLinkToPage());
  if (render::IsStyledRun(link.GetType())) return {};
  if (mode == app::kOpeningMode) return LeadOfOpening(target);
  switch (link.GetType()) {
    case kPage:
      if (mode == app::kScreenMode && host::EqualText(link.GetLinkToPage(), "0"))
        return {Lead::To::kNotes, 0};
      return {Lead::To::kPage, target};
    case kGlossary:
      return {Lead::To::kEntry, target};
    case kPlain:
      return {};
    case kDocument:
      return {Lead::To::kDocument, 0};
    default:
      return {Lead::To::kUnknown, 0};
  }
}

std::optional<std::size_t> PlaceOfPage(const content::Document& document, std::int32_t number) {
  const auto pages = PagesOf(document);
  for (std::size_t place = 0; place < pages.size(); ++place) {
    if (host::IntVal(pages[place]->GetPageID()) == number) return place;
  }
  return std::nullopt;
}

std::vector<std::int32_t> ClicksTo(const content::Document& document, std::int32_t mode,
                                   const Places& starts) {
  const auto pages = PagesOf(document);
  std::vector<std::int32_t> clicks(pages.size(), -1);
  std::deque<std::size_t> open;
  const auto reach = [&](std::size_t place, std::int32_t count) {
    if (clicks[place] >= 0) return;
    clicks[place] = count;
    open.push_back(place);
  };
  for (const std::size_t start : starts) reach(start, 0);
  for (; !open.empty(); open.pop_front()) {
    for (const auto& link : LinksOf(*pages[open.front()])) {
      const Lead lead = LeadOf(*link, mode);
      const auto place = lead.to == Lead::To::kPage ? PlaceOfPage(document, lead.number) : std::nullopt;
      if (place) reach(*place, clicks[open.front()] + 1);
    }
  }
  return clicks;
}

std::vector<bool> LinkedPages(const content::Document& source, std::int32_t mode, Lead::To kind,
                              const content::Document& target) {
  std::vector<bool> linked(PagesOf(target).size());
  const auto pages = PagesOf(source);
  for (std::size_t from = 0; from < pages.size(); ++from) {
    for (const auto& link : LinksOf(*pages[from])) {
      const Lead lead = LeadOf(*link, mode);
      const auto place = lead.to == kind ? PlaceOfPage(target, lead.number) : std::nullopt;
      const bool to_itself = &source == &target && place == from;
      if (place && !to_itself) linked[*place] = true;
    }
  }
  return linked;
}

bool DocumentExists(const std::string& name, std::int32_t mode) {
  std::shared_ptr<host::FolderItem> folder = host::GetFolderItem("");
  if (mode == app::kWgaMode && folder) {
    folder = folder->TrueChild("Quillmere.app");
    if (folder) folder = folder->TrueChild("Contents");
  }
  if (folder) folder = folder->TrueChild("Data");
  return folder && folder->TrueChild(host::MacRomanToUtf8(name));
}

}  // namespace quill::quillpress
