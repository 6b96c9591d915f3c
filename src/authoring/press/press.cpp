#include "authoring/press/press.h"

#include <memory>
#include <utility>

#include "authoring/page_words.h"
#include "authoring/press/target_resolver.h"
#include "base/numbers.h"
#include "content/bundle.h"
#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "markup/nodes.h"
#include "render/page_layout.h"

namespace quill::authoring {
namespace {

constexpr const char* kFileName = "pressed.xml";

// Where the file lies in the desktop in memory, for the store to find it.
std::string Path() {
  return std::string(content::kBundleFolder) + "/" + content::kContentsFolder + "/" + content::kDataFolder +
         "/" + kFileName;
}

// `text` in the form in which the store takes that of a new page or link: as it
// would stand in a file. The tree's own serialiser gives it, so that both escape the
// same.
std::string FileText(const std::string& text) {
  markup::zkXMLTextSection section("");
  section.SetData(markup::Variant(text));
  return section.GetXMLString();
}

std::string Element(const std::string& name, const std::string& text) {
  return "<" + name + ">" + FileText(text) + "</" + name + ">\n";
}

// A file without pages. The store hands out the id after the last one: after -1,
// the first page has 0.
std::string EmptyFile(const Manuscript& manuscript) {
  return "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<Root>\n<AppInfo>\n" +
         Element("Application", manuscript.application) + Element("Version", manuscript.version) +
         Element("LastPageID", "-1") + "</AppInfo>\n<Document>\n</Document>\n</Root>\n";
}

content::TextList TextsOf(const ManuscriptPage& page) {
  content::TextList texts;
  for (const Column& column : page.columns) texts.push_back(column.text);
  return texts;
}

bool IsSame(const ManuscriptPage& page, const content::Page& loaded) {
  return loaded.GetTitle() == page.title && loaded.Texts() == TextsOf(page);
}

// One content file in the making. It grows on a desktop in memory, through the
// store that the reader uses: what that can't open or keep is found out here, and
// nothing half-made is ever on the disk.
class Presser {
 public:
  Presser(const Manuscript& manuscript, const Neighbours& neighbours, Diagnostics& diagnostics)
      : manuscript_(manuscript), diagnostics_(diagnostics), resolver_(manuscript, neighbours, diagnostics) {}

  std::optional<std::string> MakeFile();

 private:
  std::optional<std::string> Fail(std::string sentence);
  void AddPage(const ManuscriptPage& page);
  void AddLinks(const ManuscriptPage& page);
  void AddLink(const Run& run, const PageWord& word);
  void LookForLoss();

  const Manuscript& manuscript_;
  Diagnostics& diagnostics_;
  TargetResolver resolver_;
  host::MemoryDesktop desktop_;  // nobody watches its messages
  content::zkXMLFileClass file_{kFileName};
};

std::optional<std::string> Presser::MakeFile() {
  desktop_.files.AddFile(Path(), EmptyFile(manuscript_));
  const bool open = file_.Init() && file_.GetDocument(std::make_shared<content::Document>());
  if (!open) return Fail("the manuscript's settings can't be stored");
  for (const ManuscriptPage& page : manuscript_.pages) AddPage(page);
  if (!diagnostics_.empty()) return std::nullopt;
  if (!file_.Save()) return Fail("the file can't be made");
  LookForLoss();
  if (!diagnostics_.empty()) return std::nullopt;
  return desktop_.files.Bytes(Path());
}

// What no line of the manuscript is to blame for stands on its first.
std::optional<std::string> Presser::Fail(std::string sentence) {
  diagnostics_.push_back({1, std::move(sentence)});
  return std::nullopt;
}

void Presser::AddPage(const ManuscriptPage& page) {
  content::TextList texts = TextsOf(page);
  for (std::string& text : texts) text = FileText(text);
  file_.AppendPage(FileText(page.title), texts);
  AddLinks(page);
}

// Styled runs count among the page's links. Links don't move words, so that all
// offsets can be read off the page without them.
void Presser::AddLinks(const ManuscriptPage& page) {
  content::Page plain;
  plain.SetTexts(TextsOf(page));
  const std::vector<PageWord> words = WordsOf(plain, desktop_.Metrics());
  std::size_t column_begin = 0;
  std::size_t links = 0;
  for (const Column& column : page.columns) {
    for (const Run& run : column.runs) {
      if (links++ == render::kLinkButtons)
        diagnostics_.push_back({run.line, "a page has 61 links and styled runs at most: this is one more"});
      AddLink(run, words.at(column_begin + run.word));
    }
    column_begin += column.words;
  }
}

// A link without a document has no `Filename` at all: an empty element has no
// content, and readers of such files stumble over it.
void Presser::AddLink(const Run& run, const PageWord& word) {
  const std::string page_id = base::Str(file_.GetLastPageID());
  const std::string offset = base::Str(word.offset);
  const std::string length = base::Str(run.length);
  const std::string target = base::Str(resolver_.NumberFor(run));
  if (run.target.kind == Target::Kind::kDocument) {
    file_.AddLink(page_id, offset, length, target, run.target.type, word.column, FileText(run.target.name));
  } else {
    file_.AddLink(page_id, offset, length, target, run.target.type, word.column);
  }
}

// Few texts can't be kept: those that spell an escape of the file.
void Presser::LookForLoss() {
  content::zkXMLFileClass again(kFileName);
  const auto document = std::make_shared<content::Document>();
  if (!again.Init() || !again.GetDocument(document)) {
    Fail("the file that came out can't be read again");
    return;
  }
  std::int32_t id = 0;
  for (const ManuscriptPage& page : manuscript_.pages) {
    const auto loaded = document->GetPage(id++);
    if (!loaded || !IsSame(page, *loaded))
      diagnostics_.push_back({page.line,
                              "a content file can't keep this page's text to the letter: is there something "
                              "like &lt; or &#65; spelled out in it?"});
  }
}

}  // namespace

std::optional<std::string> Press(const Manuscript& manuscript, const Neighbours& neighbours,
                                 Diagnostics& diagnostics) {
  return Presser(manuscript, neighbours, diagnostics).MakeFile();
}

Diagnostics DiagnoseGlossary(const Manuscript& manuscript) {
  Diagnostics diagnostics;
  for (const ManuscriptPage& page : manuscript.pages) {
    if (page.columns.size() > 1) diagnostics.push_back({page.line, "a glossary entry has one column"});
    for (const Column& column : page.columns) {
      if (column.text.find('\t') != std::string::npos)
        diagnostics.push_back({page.line, "a glossary entry has no indents and no lists"});
      if (!column.runs.empty())
        diagnostics.push_back({column.runs.front().line, "a glossary entry has no links and no styles"});
    }
  }
  return diagnostics;
}

}  // namespace quill::authoring
