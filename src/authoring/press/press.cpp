#include "authoring/press/press.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "app/mode_table.h"
#include "authoring/alphabet.h"
#include "authoring/page_words.h"
#include "base/numbers.h"
#include "base/text_converter.h"
#include "content/bundle.h"
#include "content/link_types.h"
#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "markup/nodes.h"
#include "render/page_layout.h"

namespace quill::authoring {
namespace {

constexpr const char* kFileName = "pressed.xml";
constexpr const char* kPath = "Quillmere.app/Contents/Data/pressed.xml";

// Text in the form in which the store takes that of a new page or link.
std::string FileText(const std::string& text) {
  markup::zkXMLTextSection section("");
  section.SetData(markup::Variant(text));
  return section.GetXMLString();
}

std::string Element(const std::string& name, const std::string& text) {
  return "<" + name + ">" + FileText(text) + "</" + name + ">\n";
}

// A file without pages. The first id handed out is the one after -1.
std::string EmptyFile(const Manuscript& manuscript) {
  return "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<Root>\n<AppInfo>\n" +
         Element("Application", manuscript.application) + Element("Version", manuscript.version) +
         Element("LastPageID", "-1") + "</AppInfo>\n<Document>\n</Document>\n</Root>\n";
}

// Pages by name.
class Names {
 public:
  explicit Names(const Manuscript* manuscript) : known_(manuscript != nullptr) {
    if (!known_) return;
    std::int32_t id = 0;
    for (const ManuscriptPage& page : manuscript->pages) ids_.emplace(page.name, id++);
    ids_.erase("");
  }

  bool Known() const { return known_; }
  std::optional<std::int32_t> IdOf(const std::string& name) const {
    const auto found = ids_.find(name);
    return found == ids_.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  bool known_;
  std::unordered_map<std::string, std::int32_t> ids_;
};

bool LeadsToArea(const Run& run) {
  return run.target.kind == Target::Kind::kMode || run.target.kind == Target::Kind::kLife;
}
// The target by which a link of the opening page names the first of the lives.
std::int32_t LivesFrom() {
  constexpr std::int32_t kLives = app::ModeNamedByPage(app::kModes);
  static_assert(kLives >= 0);
  return *app::kModes[kLives].targets_from;
}

bool LeadsToNotes(const Run& run) { return run.target.kind == Target::Kind::kNotes; }

template <typename Test>
bool AnyRun(const Manuscript& manuscript, const Test& test) {
  for (const ManuscriptPage& page : manuscript.pages) {
    for (const Column& column : page.columns) {
      if (std::any_of(column.runs.begin(), column.runs.end(), test)) return true;
    }
  }
  return false;
}

// What links lead to, as the numbers that a content file holds.
class Resolver {
 public:
  Resolver(const Manuscript& manuscript, const Neighbours& neighbours, Diagnostics& diagnostics)
      : diagnostics_(diagnostics),
        pages_(&manuscript),
        entries_(neighbours.glossary),
        lives_(neighbours.lives),
        opening_(AnyRun(manuscript, LeadsToArea)),
        has_notes_(AnyRun(manuscript, LeadsToNotes)) {}

  // 0 for what has no number, and where something is wrong.
  std::int32_t NumberFor(const Run& run) {
    if (opening_ && !LeadsToArea(run) && !content::IsStyledRun(run.target.type))
      Diagnose(run, "on the opening page, the one with mode: and bio: links, every link leads to an area");
    switch (run.target.kind) {
      case Target::Kind::kPage:
        return PageOf(run);
      case Target::Kind::kEntry:
        return Find(entries_, run, "glossary beside this manuscript", 0);
      case Target::Kind::kLife:
        return Find(lives_, run, "manuscript bio beside this one", LivesFrom());
      case Target::Kind::kMode:
        return base::IntVal(run.target.name);
      case Target::Kind::kDocument:
        LookAtFileName(run);
        return 0;
      case Target::Kind::kNotes:
      case Target::Kind::kNone:
        return 0;
    }
    return 0;
  }

 private:
  // In the area that has the notes pad, page 0 stands for it.
  std::int32_t PageOf(const Run& run) {
    const std::int32_t page = Find(pages_, run, "manuscript itself", 0);
    if (page == 0 && has_notes_ && pages_.IdOf(run.target.name))
      Diagnose(run,
               "where there is a notes: link, the first page can't be linked to: its number is the notes'");
    return page;
  }

  std::int32_t Find(const Names& names, const Run& run, const std::string& where, std::int32_t first) {
    if (const auto id = names.IdOf(run.target.name)) return first + *id;
    const std::string name = "\"" + run.target.name + "\"";
    Diagnose(run, names.Known() ? "the " + where + " has no page named " + name
                                : "there is no " + where + " to look for " + name);
    return 0;
  }

  // Names of files are told to other programs, whose encoding nobody knows.
  void LookAtFileName(const Run& run) {
    const std::string& name = run.target.name;
    if (std::any_of(name.begin(), name.end(), [](char c) { return c < 32 || c > 126; }))
      Diagnose(run, "the file name \"" + name + "\" must do without accents and other signs");
  }

  void Diagnose(const Run& run, std::string sentence) {
    diagnostics_.push_back({run.line, std::move(sentence)});
  }

  Diagnostics& diagnostics_;
  const Names pages_;
  const Names entries_;
  const Names lives_;
  const bool opening_;
  const bool has_notes_;
};

content::TextList TextsOf(const ManuscriptPage& page) {
  content::TextList texts;
  for (const Column& column : page.columns) texts.push_back(column.text);
  return texts;
}

bool IsSame(const ManuscriptPage& page, const content::Page& loaded) {
  return loaded.GetTitle() == page.title && loaded.Texts() == TextsOf(page);
}

// One content file in the making.
class Presser {
 public:
  Presser(const Manuscript& manuscript, const Neighbours& neighbours, Diagnostics& diagnostics)
      : manuscript_(manuscript), diagnostics_(diagnostics), resolver_(manuscript, neighbours, diagnostics) {}

  std::optional<std::string> MakeFile() {
    desktop_.files.AddFile(kPath, EmptyFile(manuscript_));
    const bool open = file_.Init() && file_.GetDocument(std::make_shared<content::Document>());
    if (!open) return Fail("the manuscript's settings can't be stored");
    for (const ManuscriptPage& page : manuscript_.pages) AddPage(page);
    if (!diagnostics_.empty()) return std::nullopt;
    if (!file_.Save()) return Fail("the file can't be made");
    LookForLoss();
    if (!diagnostics_.empty()) return std::nullopt;
    return desktop_.files.Bytes(kPath);
  }

 private:
  std::optional<std::string> Fail(std::string sentence) {
    diagnostics_.push_back({1, std::move(sentence)});
    return std::nullopt;
  }

  void AddPage(const ManuscriptPage& page) {
    content::TextList texts = TextsOf(page);
    for (std::string& text : texts) text = FileText(text);
    file_.AppendPage(FileText(page.title), texts);
    AddLinks(page);
  }

  // Styled runs take a place in the page's list as links do.
  void AddLinks(const ManuscriptPage& page) {
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

  void AddLink(const Run& run, const PageWord& word) {
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
  void LookForLoss() {
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
        diagnostics_.push_back(
            {page.line,
             "a content file can't keep this page's text to the letter: is there something "
             "like &lt; or &#65; spelled out in it?"});
    }
  }

  const Manuscript& manuscript_;
  Diagnostics& diagnostics_;
  Resolver resolver_;
  host::MemoryDesktop desktop_;  // where the file grows; nobody watches its messages
  content::zkXMLFileClass file_{kFileName};
};

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
