#include "authoring/edit/editor.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

#include "authoring/alphabet.h"
#include "authoring/complaint.h"
#include "base/numbers.h"
#include "host/desktop.h"

namespace quill::authoring {
namespace {

using markup::zkXMLElement;

// The text of a child, as it stands in the file; empty if there is none.
std::string TextOf(const zkXMLElement& parent, const char* name) {
  const auto element = parent.GetElement(name);
  const auto section = element ? element->GetTextSection() : nullptr;
  return section ? section->GetText() : std::string();
}

// The store replaces texts that are there and passes over others: a child that is
// missing, or has nothing inside, as an empty title of a file has. Such a child is
// given an empty text.
void GiveText(zkXMLElement& parent, const char* name, std::int32_t number = 1) {
  auto element = parent.GetElement(name, number);
  if (!element) {
    element = std::make_shared<zkXMLElement>(name);
    parent.AddObject(element);
  }
  if (!element->GetTextSection()) element->AddObject(std::make_shared<markup::zkXMLTextSection>(""));
}

// As the loader takes it.
std::int32_t ColumnOf(const zkXMLElement& link) {
  const auto attribute = link.GetAttribute("Column");
  return attribute ? base::IntVal(attribute->GetValue()) : 1;
}

std::vector<PageWord> Words(const content::Page& page) {
  return WordsOf(page, host::Desktop::Current().Metrics());
}

bool IsSameLink(const std::shared_ptr<content::Link>& a, const std::shared_ptr<content::Link>& b) {
  const auto parts = [](const content::Link& link) {
    return std::tuple(link.GetOffset(), link.GetLength(), link.GetLinkToPage(), link.GetType(),
                      link.GetColumn(), link.GetFilename());
  };
  return parts(*a) == parts(*b);
}

bool IsSamePage(const content::Page& a, const content::Page& b) {
  const auto parts = [](const content::Page& page) {
    return std::tuple(page.GetPageID(), page.GetTitle(), page.Texts());
  };
  const auto links_a = content::LinksOf(a);
  const auto links_b = content::LinksOf(b);
  return parts(a) == parts(b) &&
         std::equal(links_a.begin(), links_a.end(), links_b.begin(), links_b.end(), IsSameLink);
}

// An anchor in the words of a complaint.
std::string NameOf(const Anchor& anchor) {
  if (!anchor.on.empty()) return "the words " + Quoted(anchor.on);
  return "offset " + base::Str(anchor.offset) + " of column " + base::Str(anchor.column);
}

// An offset without a column is one of the first.
Anchor WithColumn(Anchor anchor) {
  if (anchor.on.empty() && anchor.column == 0) anchor.column = 1;
  return anchor;
}

}  // namespace

Editor::Editor(std::filesystem::path path) : path_(std::move(path)) {
  const std::string name = path_.filename().string();
  auto opened = OpenFile(name);
  if (!opened) ComplainOfFile(name, path_.string() + " can't be opened as a content file.");
  file_ = std::move(*opened);
}

void Editor::Complain(const std::string& what) const { throw Complaint(path_.string() + ": " + what); }

void Editor::ComplainOf(std::int32_t id, const std::string& what) const {
  Complain("page " + base::Str(id) + ": " + what);
}

// The store finds a page by its id's number taken for an index, and would change
// another where the two differ.
const content::Page& Editor::PageOf(std::int32_t id) const {
  const auto page = file_.document->GetPageByOffset(id);
  if (!page) Complain("there is no page " + base::Str(id) + ".");
  if (base::IntVal(page->GetPageID()) != id)
    ComplainOf(id, "its id is " + Quoted(page->GetPageID()) + "; put the ids of the file in order first.");
  return *page;
}

std::shared_ptr<zkXMLElement> Editor::LinksOf(std::int32_t id) const {
  const auto page = file_.file->GetPage(base::Str(id));
  auto links = page ? page->GetElement("Links") : nullptr;
  if (!links) ComplainOf(id, "it has no list of links; \"page update\" gives it one.");
  return links;
}

// A new page's id is the one after `LastPageID`, and must be its index.
std::int32_t Editor::AddPage(const std::string& title, const content::TextList& texts) {
  content::zkXMLFileClass& file = *file_.file;
  if (file.GetLastPageID() == std::numeric_limits<std::int32_t>::max())
    Complain("LastPageID is the largest number there is, and no id is left for a page.");
  if (file.GetLastPageID() != file_.document->GetUbound())
    Complain("LastPageID is " + base::Str(file.GetLastPageID()) + ", and the last page " +
             base::Str(file_.document->GetUbound()) + "; put that right first.");
  // A new text is taken for file text and decoded, one that replaces another is
  // kept to the letter. So the page is made bare, and filled.
  file.AppendPage("", content::TextList(texts.size()));
  const std::int32_t id = file.GetLastPageID();
  file.ReplaceTexts(base::Str(id), title, texts);
  return id;
}

void Editor::UpdatePage(std::int32_t id, const std::optional<std::string>& title,
                        const content::TextList& texts) {
  changed_.insert(id);
  const content::Page& page = PageOf(id);
  if (static_cast<std::int32_t>(texts.size()) > page.GetColumns())
    ComplainOf(id, "it has " + base::Str(page.GetColumns()) +
                       " columns, and their number can't be changed; give no more texts than that.");
  content::TextList replaced = page.Texts();
  std::copy(texts.begin(), texts.end(), replaced.begin());
  zkXMLElement& element = *file_.file->GetPage(base::Str(id));
  GiveText(element, "Title");
  for (std::int32_t column = 1; column <= page.GetColumns(); ++column) GiveText(element, "Text", column);
  file_.file->ReplaceTexts(base::Str(id), title.value_or(page.GetTitle()), replaced);
}

const PageWord& Editor::WordFor(std::int32_t id, const std::vector<PageWord>& words,
                                const Anchor& anchor) const {
  const PageWord* const word = anchor.on.empty() ? WordAt(words, anchor.column, anchor.offset)
                                                 : FindPhrase(words, anchor.on, anchor.nth, anchor.column);
  if (word == nullptr && anchor.on.empty()) ComplainOf(id, "no word starts at " + NameOf(anchor) + ".");
  if (word == nullptr && anchor.nth > 1)
    ComplainOf(id, NameOf(anchor) + " don't stand there " + base::Str(anchor.nth) + " times.");
  if (word == nullptr) ComplainOf(id, NameOf(anchor) + " don't stand there.");
  return *word;
}

std::int32_t Editor::LinkNumber(std::int32_t id, std::int32_t column, std::int32_t offset) const {
  const auto links = LinksOf(id);
  const std::int32_t count = links->ElementCount("Link");
  for (std::int32_t number = 1; number <= count; ++number) {
    const zkXMLElement& link = *links->GetElement("Link", number);
    const bool deleted = !link.GetElement("Offset");
    if (!deleted && ColumnOf(link) == column && base::IntVal(TextOf(link, "Offset")) == offset) return number;
  }
  return 0;
}

// A link may be named by an offset at which no word starts: that is how a broken
// one is found.
std::int32_t Editor::LinkNumber(std::int32_t id, const Anchor& anchor) const {
  const std::vector<PageWord> words = Words(PageOf(id));
  Anchor start = WithColumn(anchor);
  if (!start.on.empty()) {
    const PageWord& word = WordFor(id, words, start);
    start.column = word.column;
    start.offset = word.offset;
  }
  const std::int32_t number = LinkNumber(id, start.column, start.offset);
  if (number == 0) ComplainOf(id, "no link starts at " + NameOf(start) + ".");
  return number;
}

// Of two links at one word the reader shows the first alone, so that a second is
// refused. The file's name goes in by a second step: a new text is taken for file
// text, and a name with "&" would be decoded.
void Editor::AddLink(std::int32_t id, const Anchor& anchor, const NewLink& link) {
  changed_.insert(id);
  const std::vector<PageWord> words = Words(PageOf(id));
  const Anchor start = WithColumn(anchor);
  const PageWord& word = WordFor(id, words, start);
  const std::size_t length = start.on.empty() ? static_cast<std::size_t>(link.length) : start.on.size();
  if (length > word.rest.size())
    ComplainOf(id, "the paragraph ends " + std::to_string(word.rest.size()) + " characters behind " +
                       NameOf(start) + ", before a length of " + std::to_string(length) + ".");
  if (LinkNumber(id, word.column, word.offset) > 0)
    ComplainOf(id, "a link starts at " + NameOf(start) + " already; \"link update\" changes it.");
  const std::string page_id = base::Str(id);
  const std::string offset = base::Str(word.offset);
  if (link.file_name.empty()) {
    file_.file->AddLink(page_id, offset, std::to_string(length), link.target, link.type, word.column);
    return;
  }
  file_.file->AddLink(page_id, offset, std::to_string(length), link.target, link.type, word.column, "");
  const auto links = LinksOf(id);
  const auto added = links->GetElement("Link", links->ElementCount("Link"));
  added->GetElement("Filename")->GetTextSection()->SetData(link.file_name);
}

// A link keeps its column, which the store can't change. Words of its own are no
// obstacle: it may be moved to where it starts already.
void Editor::UpdateLink(std::int32_t id, const Anchor& anchor, const LinkChange& change) {
  changed_.insert(id);
  const std::int32_t number = LinkNumber(id, anchor);
  zkXMLElement& link = *LinksOf(id)->GetElement("Link", number);
  std::string offset = TextOf(link, "Offset");
  std::string length = TextOf(link, "Length");
  if (change.on) {
    Anchor to;
    to.on = *change.on;
    to.column = ColumnOf(link);
    const std::vector<PageWord> words = Words(PageOf(id));
    const PageWord& word = WordFor(id, words, to);
    const std::int32_t there = LinkNumber(id, word.column, word.offset);
    if (there != 0 && there != number) ComplainOf(id, "a link starts at " + NameOf(to) + " already.");
    offset = base::Str(word.offset);
    length = std::to_string(to.on.size());
  }
  if (change.length) length = base::Str(*change.length);
  const std::string target = change.target.value_or(TextOf(link, "LinkToPage"));
  const std::int32_t type = change.type.value_or(base::IntVal(TextOf(link, "LinkType")));
  for (const char* const name : {"Length", "LinkToPage", "LinkType"}) GiveText(link, name);
  file_.file->UpdateLink(base::Str(id), number, offset, length, target, type);
}

// `zkXMLFileClass::DeleteLink` goes by the offset alone, and would take a link of
// an earlier column that has the same.
void Editor::DeleteLink(std::int32_t id, const Anchor& anchor) {
  changed_.insert(id);
  const std::int32_t number = LinkNumber(id, anchor);
  zkXMLElement& link = *LinksOf(id)->GetElement("Link", number);
  while (link.ContentCount() > 0) link.RemoveContent(link.ContentCount());
}

std::string Editor::BumpVersion() {
  file_.file->IncrementVersion();
  return file_.file->GetAppVersion();
}

// The loader gives a page or link that lacks an element the value of the one before it: a change there would
// reach it too.
void Editor::RequireOthersAsBefore() const {
  const auto document = std::make_shared<content::Document>();
  file_.file->GetDocument(document);
  for (std::int32_t id = 0; id <= file_.document->GetUbound(); ++id) {
    const auto page = document->GetPageByOffset(id);
    const bool same = page && IsSamePage(*page, *file_.document->GetPageByOffset(id));
    if (!same && !changed_.contains(id))
      ComplainOf(id,
                 "it would change too, for it lacks an element and takes it from what stands before; "
                 "put that right first.");
  }
}

void Editor::Save() {
  RequireOthersAsBefore();
  if (!file_.file->Save())
    throw FileComplaint(path_.string() + ": it can't be written; the old file is what it was.");
}

}  // namespace quill::authoring
