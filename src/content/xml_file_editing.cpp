// The authors' side of a content file: edits of its tree, and the way back to the
// disk. The reader's program calls none of this.
//
// What is made here is in the order that all files of ours have:
//
//   Page [Columns]    PageID, Title, Text (one to three), Links
//   Link [Column]     Offset, Length, LinkToPage, LinkType, Filename
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "base/exceptions.h"
#include "base/numbers.h"
#include "base/text.h"
#include "content/xml_file.h"
#include "host/desktop.h"
#include "markup/text_helpers.h"

namespace quill::content {
namespace {

using markup::zkXMLElement;
using markup::zkXMLTextSection;

void AddTextElement(zkXMLElement& parent, const char* name, std::string_view raw_text) {
  const auto element = std::make_shared<zkXMLElement>(name);
  element->AddObject(std::make_shared<zkXMLTextSection>(raw_text));
  parent.AddObject(element);
}

// The text of the first child of that name (number `i` of them), null if there is
// no such child or it has none.
std::shared_ptr<zkXMLTextSection> TextIn(const zkXMLElement& parent, const char* name, std::int32_t i = 1) {
  const std::shared_ptr<zkXMLElement> element = parent.GetElement(name, i);
  return element ? element->GetTextSection() : nullptr;
}

void SetTextIn(const zkXMLElement& parent, const char* name, std::string text, std::int32_t i = 1) {
  if (const auto section = TextIn(parent, name, i)) section->SetData(std::move(text));
}

std::shared_ptr<zkXMLElement> NewLink(const std::string& offset, const std::string& length,
                                      const std::string& link_to_page, std::int32_t type) {
  auto link = std::make_shared<zkXMLElement>("Link");
  AddTextElement(*link, "Offset", offset);
  AddTextElement(*link, "Length", length);
  AddTextElement(*link, "LinkToPage", link_to_page);
  AddTextElement(*link, "LinkType", base::Str(type));
  return link;
}

void SetColumn(zkXMLElement& link, std::int32_t column) {
  link.AddObject(std::make_shared<markup::zkXMLAttribute>("Column", base::Str(column)));
}

// A number by the pattern "###.#": rounded to one decimal place, which is left
// out with its point where it is 0. 2.0 gives "2", 1.44 "1.4", 0 "0".
std::string FormatToTenths(float value) {
  // The sum makes a 0 of a rounded -0.
  const double tenths = std::round(static_cast<double>(value) * 10) + 0.0;
  char digits[64];  // the largest float has 39 before the point
  const auto end = std::to_chars(digits, std::end(digits), tenths / 10, std::chars_format::fixed, 1).ptr;
  const std::string text(digits, end);
  return text.ends_with(".0") ? text.substr(0, text.size() - 2) : text;
}

// Markup is written as it stands for as long as this lives.
class WithoutFormatting {
 public:
  WithoutFormatting() { markup::zkXMLToolkitGlobals::UseXMLFormatting = false; }
  ~WithoutFormatting() { markup::zkXMLToolkitGlobals::UseXMLFormatting = before_; }
  WithoutFormatting(const WithoutFormatting&) = delete;
  WithoutFormatting& operator=(const WithoutFormatting&) = delete;

 private:
  bool before_ = markup::zkXMLToolkitGlobals::UseXMLFormatting;
};

}  // namespace

void zkXMLFileClass::AddPage(const std::string& title, const std::string& text) { AppendPage(title, {text}); }

void zkXMLFileClass::AddPage(const std::string& title, const std::string& text1, const std::string& text2) {
  AppendPage(title, {text1, text2});
}

void zkXMLFileClass::AddPage(const std::string& title, const std::string& text1, const std::string& text2,
                             const std::string& text3) {
  AppendPage(title, {text1, text2, text3});
}

void zkXMLFileClass::AppendPage(const std::string& title, const TextList& texts) {
  if (!TheDocument) throw base::NilObjectException();
  if (LastPageID == std::numeric_limits<std::int32_t>::max()) throw base::OutOfBoundsException();
  IncrementPageID();
  const auto page = std::make_shared<zkXMLElement>("Page");
  page->SetAttribute("Columns", base::Str(static_cast<std::int32_t>(texts.size())));
  AddTextElement(*page, "PageID", base::Str(LastPageID));
  AddTextElement(*page, "Title", title);
  for (const std::string& text : texts) AddTextElement(*page, "Text", text);
  page->AddObject(std::make_shared<zkXMLElement>("Links"));
  TheDocument->AddObject(page);
}

void zkXMLFileClass::UpdatePage(const std::string& page_id, const std::string& title,
                                const std::string& text) {
  ReplaceTexts(page_id, title, {text});
}

void zkXMLFileClass::UpdatePage(const std::string& page_id, const std::string& title,
                                const std::string& text1, const std::string& text2) {
  ReplaceTexts(page_id, title, {text1, text2});
}

void zkXMLFileClass::UpdatePage(const std::string& page_id, const std::string& title,
                                const std::string& text1, const std::string& text2,
                                const std::string& text3) {
  ReplaceTexts(page_id, title, {text1, text2, text3});
}

void zkXMLFileClass::ReplaceTexts(const std::string& page_id, const std::string& title,
                                  const TextList& texts) {
  const std::shared_ptr<zkXMLElement> page = GetPage(page_id);
  if (!page) return;
  SetTextIn(*page, "Title", title);
  std::int32_t column = 0;
  for (const std::string& text : texts) SetTextIn(*page, "Text", text, ++column);
  if (!page->GetElement("Links")) page->AddObject(std::make_shared<zkXMLElement>("Links"));
}

void zkXMLFileClass::AddLink(const std::string& page_id, const std::string& offset, const std::string& length,
                             const std::string& link_to_page, std::int32_t type) {
  const std::shared_ptr<zkXMLElement> links = LinksOf(page_id);
  if (links) links->AddObject(NewLink(offset, length, link_to_page, type));
}

void zkXMLFileClass::AddLink(const std::string& page_id, const std::string& offset, const std::string& length,
                             const std::string& link_to_page, std::int32_t type, std::int32_t column) {
  const std::shared_ptr<zkXMLElement> links = LinksOf(page_id);
  if (!links) return;
  const std::shared_ptr<zkXMLElement> link = NewLink(offset, length, link_to_page, type);
  SetColumn(*link, column);
  links->AddObject(link);
}

void zkXMLFileClass::AddLink(const std::string& page_id, const std::string& offset, const std::string& length,
                             const std::string& link_to_page, std::int32_t type, std::int32_t column,
                             const std::string& file_name) {
  const std::shared_ptr<zkXMLElement> links = LinksOf(page_id);
  if (!links) return;
  const std::shared_ptr<zkXMLElement> link = NewLink(offset, length, link_to_page, type);
  SetColumn(*link, column);
  AddTextElement(*link, "Filename", file_name);
  links->AddObject(link);
}

void zkXMLFileClass::UpdateLink(const std::string& page_id, std::int32_t link_number,
                                const std::string& offset, const std::string& length,
                                const std::string& link_to_page, std::int32_t type) {
  const std::shared_ptr<zkXMLElement> links = LinksOf(page_id);
  const std::shared_ptr<zkXMLElement> link = links ? links->GetElement("Link", link_number) : nullptr;
  if (!link) return;
  if (!link->GetElement("Offset")) {
    host::MsgBox("Unable to locate link " + base::Str(link_number));
    return;
  }
  SetTextIn(*link, "Offset", offset);
  SetTextIn(*link, "Length", length);
  SetTextIn(*link, "LinkToPage", link_to_page);
  SetTextIn(*link, "LinkType", base::Str(type));
}

void zkXMLFileClass::DeleteLink(const std::string& page_id, const std::string& offset) {
  const std::shared_ptr<zkXMLElement> links = LinksOf(page_id);
  if (!links) return;
  for (std::int32_t i = 1; i <= links->ContentCount(); ++i) {
    zkXMLElement* const link = links->GetContent(i)->asElement();
    const auto section = link != nullptr ? TextIn(*link, "Offset") : nullptr;
    if (!section || !base::EqualText(section->GetText(), offset)) continue;
    while (link->ContentCount() > 0) link->RemoveContent(link->ContentCount());
    return;
  }
}

void zkXMLFileClass::IncrementPageID() {
  if (!AppInfo) throw base::NilObjectException();
  LastPageID = base::AddSaturating(LastPageID, 1);
  SetTextIn(*AppInfo, "LastPageID", base::Str(LastPageID));
}

void zkXMLFileClass::IncrementVersion() {
  if (!AppInfo) throw base::NilObjectException();
  const auto version = base::ToFloat(base::Val(AppVersion));
  AppVersion = FormatToTenths(static_cast<float>(version + 0.1));
  SetTextIn(*AppInfo, "Version", AppVersion);
}

std::shared_ptr<zkXMLElement> zkXMLFileClass::GetPage(const std::string& page_id) const {
  if (!TheDocument) throw base::NilObjectException();
  return TheDocument->GetElement("Page", base::ToInt32(base::Val(page_id) + 1));
}

std::shared_ptr<zkXMLElement> zkXMLFileClass::LinksOf(const std::string& page_id) const {
  const std::shared_ptr<zkXMLElement> page = GetPage(page_id);
  return page ? page->GetElement("Links") : nullptr;
}

bool zkXMLFileClass::Save() const {
  if (!AppInfo) return false;
  const std::unique_ptr<host::TextOutputStream> stream = TheFile->CreateSharedFile();
  if (!stream) return false;
  const WithoutFormatting as_it_stands;
  stream->Write(TheContainer->GetXMLString());
  return stream->Close();
}

}  // namespace quill::content
