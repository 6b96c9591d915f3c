#include "search/library.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "app/destination.h"
#include "base/hash.h"
#include "base/numbers.h"
#include "base/text_converter.h"
#include "content/bundle.h"
#include "content/document_reader.h"
#include "content/link_types.h"

namespace quill::search {
namespace {

using DocumentPointer = std::shared_ptr<content::Document>;

// The document of a content file, null if it can't be opened.
DocumentPointer ReadSource(std::string_view name, std::vector<Source>& sources) {
  Source& source = sources.emplace_back(Source{std::string(name)});
  const auto item = content::ContentFile(source.name);
  auto bytes = item ? host::ReadWhole(*item) : std::nullopt;
  if (!bytes) return nullptr;
  source.hash = base::Hash64(*bytes);
  return content::ReadDocument(std::move(*bytes));
}

// All columns that are laid out, as one text. An entry's window shows the first alone.
std::string BodyOf(const content::Page& page, Kind kind) {
  std::string body = page.GetText();
  const std::int32_t columns = kind == Kind::kEntry ? 1 : std::min(page.GetColumns(), 3);
  for (std::int32_t column = 2; column <= columns; ++column) body += "\n" + page.GetText(column);
  return base::MacRomanToUtf8(body);
}

// Whether the words of links to pages are more than half of the text.
bool OnlyLeadsOn(const content::Page& page, const std::string& body) {
  double linked = 0;
  for (const auto& link : LinksOf(page))
    if (link->GetType() == content::link_type::kPage) linked += base::Val(link->GetLength());
  return linked * 2 > static_cast<double>(body.size());
}

// A title stands on one line.
bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

// Whether a link on a page of the mode shows the text of that number.
bool IsShownByLink(app::Modes modes, const Text& text) {
  const bool page = text.kind == Kind::kPage;
  const auto type = page ? content::link_type::kPage : content::link_type::kGlossary;
  const auto& mode = modes[static_cast<std::size_t>(text.mode)];
  const auto opens = app::DestinationOf(modes, mode, type, text.page, "").kind;
  return opens == (page ? app::Destination::Kind::kPage : app::Destination::Kind::kEntry);
}

// Of pages with one number only the first can be shown.
void AddTexts(const content::Document& document, app::Modes modes, Text text, std::vector<Text>& texts) {
  std::set<std::int32_t> numbers;
  for (std::int32_t i = 0; i <= document.GetUbound(); ++i) {
    const content::Page& page = *document.GetPageByOffset(i);
    const std::int32_t number = base::IntVal(page.GetPageID());
    text.page = base::Str(number);
    if (!numbers.insert(number).second || !IsShownByLink(modes, text)) continue;
    text.title = base::MacRomanToUtf8(page.GetTitle());
    std::replace_if(text.title.begin(), text.title.end(), IsControl, ' ');
    text.body = BodyOf(page, text.kind);
    text.only_leads_on = text.kind == Kind::kPage && OnlyLeadsOn(page, text.body);
    texts.push_back(text);
  }
}

}  // namespace

Library ReadLibrary(app::Modes modes) {
  Library library;
  for (const app::Mode& mode : modes) {
    const auto index = static_cast<std::int32_t>(library.areas.size());
    library.areas.emplace_back(mode.area);
    const DocumentPointer pages = ReadSource(mode.content_file, library.sources);
    const DocumentPointer entries = ReadSource(mode.glossary_file, library.sources);
    if (!pages || !entries) continue;
    AddTexts(*pages, modes, {.mode = index, .kind = Kind::kPage}, library.texts);
    AddTexts(*entries, modes, {.mode = index, .kind = Kind::kEntry}, library.texts);
  }
  return library;
}

}  // namespace quill::search
