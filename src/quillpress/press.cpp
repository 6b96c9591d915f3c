#include "quillpress/press.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "app/mode_table.h"
#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "host/numbers.h"
#include "host/text_converter.h"
#include "markup/nodes.h"
#include "quillpress/alphabet.h"
#include "quillpress/page_words.h"
#include "render/link_style.h"

namespace quill::quillpress {
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

bool LeadsToArea(const Run& run) { return run.target.goal == Goal::kMode || run.target.goal == Goal::kLife; }
bool LeadsToNotes(const Run& run) { return run.target.goal == Goal::kNotes; }

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
  Resolver(const Manuscript& manuscript, const Neighbours& neighbours, Problems& problems)
      : problems_(problems),
        pages_(&manuscript),
        entries_(neighbours.glossary),
        lives_(neighbours.lives),
        opening_(AnyRun(manuscript, LeadsToArea)),
        has_notes_(AnyRun(manuscript, LeadsToNotes)) {}

  // 0 where there is a problem, too.
  std::int32_t NumberFor(const Run& run) {
    if (opening_ && !LeadsToArea(run) && !render::IsStyledRun(run.target.type))
      Report(run, "on the opening page, the one with mode: and bio: links, every link leads to an area");
    switch (run.target.goal) {
      case Goal::kPage:
        return PageOf(run);
      case Goal::kEntry:
        return Find(entries_, run, "glossary beside this manuscript", 0);
      case Goal::kLife:
        return Find(lives_, run, "manuscript bio beside this one", app::kBioPages);
      case Goal::kMode:
        return host::IntVal(run.target.name);
      case Goal::kDocument:
        LookAtFileName(run);
        return 0;
      case Goal::kNotes:
      case Goal::kNone:
        return 0;
    }
    return 0;
  }

 private:
  // In the area that has the notes pad, page 0 stands for it.
  std::int32_t PageOf(const Run& run) {
    const std::int32_t page = Find(pages_, run, "manuscript itself", 0);
    if (page == 0 && has_notes_ && pages_.IdOf(run.target.name))
      Report(run,
             "where there is a notes: link, the first page can't be linked to: its number is the notes'");
    return page;
  }

  std::int32_t Find(const Names& names, const Run& run, const std::string& where, std::int32_t first) {
    if (const auto id = names.IdOf(run.target.name)) return first + *id;
    const std::string name = "\"" + run.target.name + "\"";
    Report(run, names.Known() ? "the " + where + " has no page named " + name
                              : "there is no " + where + " to look for " + name);
    return 0;
  }

  // Names of files are told to other programs, whose encoding nobody knows.
  void LookAtFileName(const Run& run) {
    const std::string& name = run.target.name;
    if (std::any_of(name.begin(), name.end(), [](char c) { return c < 32 || c > 126; }))
      Report(run, "the file name \"" + name + "\" must do without accents and other signs");
  }

  void Report(const Run& run, std::string sentence) { problems_.push_back({run.line, std::move(sentence)}); }

  Problems& problems_;
  const Names pages_;
  const Names entries_;
  const Names lives_;
  const bool opening_;
  const bool has_notes_;
};

content::Page Plain(const ManuscriptPage& page) {
  const std::vector<Column>& columns = page.columns;
  if (columns.size() == 1) return {"", page.title, columns[0].text};
  if (columns.size() == 2) return {"", page.title, columns[0].text, columns[1].text};
  return {"", page.title, columns[0].text, columns[1].text, columns[2].text};
}

bool IsSame(const ManuscriptPage& page, const content::Page& loaded) {
  if (loaded.GetTitle() != page.title) return false;
  for (std::size_t i = 0; i < page.columns.size(); ++i) {
    if (loaded.GetText(static_cast<std::int32_t>(i) + 1) != page.columns[i].text) return false;
  }
  return loaded.GetColumns() == static_cast<std::int32_t>(page.columns.size());
}

// One content file in the making.
class Presser {
 public:
  Presser(const Manuscript& manuscript, const Neighbours& neighbours, Problems& problems)
      : manuscript_(manuscript), problems_(problems), resolver_(manuscript, neighbours, problems) {}

  std::optional<std::string> MakeFile() {
    desktop_.files.AddFile(kPath, EmptyFile(manuscript_));
    const bool open = file_.Init() && file_.GetDocument(std::make_shared<content::Document>());
    if (!open) return Fail("the manuscript's settings can't be stored");
    for (const ManuscriptPage& page : manuscript_.pages) AddPage(page);
    if (!problems_.empty()) return std::nullopt;
    if (!file_.Save()) return Fail("the file can't be made");
    LookForLoss();
    if (!problems_.empty()) return std::nullopt;
    return desktop_.files.Bytes(kPath);
  }

 private:
  std::optional<std::string> Fail(std::string sentence) {
    problems_.push_back({1, std::move(sentence)});
    return std::nullopt;
  }

  void AddPage(const ManuscriptPage& page) {
    const std::string title = FileText(page.title);
    const auto text = [&page](std::size_t i) { return FileText(page.columns[i].text); };
    if (page.columns.size() == 1) file_.AddPage(title, text(0));
    if (page.columns.size() == 2) file_.AddPage(title, text(0), text(1));
    if (page.columns.size() == 3) file_.AddPage(title, text(0), text(1), text(2));
    AddLinks(page);
  }

  // Styled runs take a place in the page's list as links do.
  void AddLinks(const ManuscriptPage& page) {
    const content::Page plain = Plain(page);
    const std::vector<PageWord> words = WordsOf(plain, desktop_.Metrics());
    std::size_t column_begin = 0;
    std::size_t links = 0;
    for (const Column& column : page.columns) {
      for (const Run& run : column.runs) {
        if (links++ == render::kLinkButtons)
          problems_.push_back({run.line, "a page has 61 links and styled runs at most: this is one more"});
        AddLink(run, words.at(column_begin + run.word));
      }
      column_begin += column.words;
    }
  }

  void AddLink(const Run& run, const PageWord& word) {
    const std::string page_id = host::Str(file_.GetLastPageID());
    const std::string offset = host::Str(word.offset);
    const std::string length = host::Str(run.length);
    const std::string target = host::Str(resolver_.NumberFor(run));
    if (run.target.goal == Goal::kDocument) {
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
        problems_.push_back({page.line,
                             "a content file can't keep this page's text to the letter: is there something "
                             "like &lt; or &#65; spelled out in it?"});
    }
  }

  const Manuscript& manuscript_;
  Problems& problems_;
  Resolver resolver_;
  host::MemoryDesktop desktop_;  // where the file grows; nobody watches its messages
  content::zkXMLFileClass file_{kFileName};
};

}  // namespace

std::optional<std::string> Press(const Manuscript& manuscript, const Neighbours& neighbours,
                                 Problems& problems) {
  return Presser(manuscript, neighbours, problems).MakeFile();
}

Problems FindGlossaryProblems(const Manuscript& manuscript) {
  Problems problems;
  for (const ManuscriptPage& page : manuscript.pages) {
    if (page.columns.size() > 1) problems.push_back({page.line, "a glossary entry has one column"});
    for (const Column& column : page.columns) {
      if (column.text.find('\t') != std::string::npos)
        problems.push_back({page.line, "a glossary entry has no indents and no lists"});
      if (!column.runs.empty())
        problems.push_back({column.runs.front().line, "a glossary entry has no links and no styles"});
    }
  }
  return problems;
}

}  // namespace quill::quillpress
