#include "authoring/manuscript/manuscript_parts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/mode_table.h"
#include "authoring/alphabet.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/utf8.h"
#include "content/link_types.h"
#include "host/files.h"

namespace quill::authoring {
namespace {

namespace link_type = content::link_type;

// The names that authors give to pages. They are no part of the reader's text, so
// that they may be kept to what is the same in every encoding.
bool IsName(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return base::IsLetter(c) || base::IsDigit(c) || c == '-' || c == '_';
  });
}

// A number with at most one decimal place: an edit raises it by 0.1, and more
// places would be lost. Three digits are what the content file's format has.
bool IsVersion(std::string_view text) {
  const std::size_t whole = std::min(text.find('.'), text.size());
  const std::string_view tenths = text.substr(whole);
  return whole >= 1 && whole <= 3 && std::all_of(text.begin(), text.begin() + whole, base::IsDigit) &&
         (tenths.empty() || (tenths.size() == 2 && base::IsDigit(tenths[1])));
}

// `text`, UTF-8, as program text; none, with a diagnostic, if a character can't be
// shown.
std::optional<std::string> Convert(std::string_view text, int line, Diagnostics& diagnostics) {
  std::string converted;
  while (!text.empty()) {
    const char32_t character = base::TakeUtf8(text);
    const std::optional<char> code = ToProgram(character);
    if (!code) {
      diagnostics.push_back({line, CannotShow(character)});
      return std::nullopt;
    }
    converted += *code;
  }
  return converted;
}

void ReadSetting(std::string_view key, std::string_view value, int line, Manuscript& manuscript) {
  Diagnostics& diagnostics = manuscript.diagnostics;
  if (key == "Application") {
    manuscript.application = Convert(value, line, diagnostics).value_or("");
  } else if (key == "Version") {
    manuscript.version = value;
    if (!IsVersion(value)) diagnostics.push_back({line, "a version is a number such as 1 or 1.2"});
  } else if (key == "Gutter") {
    manuscript.gutter = value == "yes";
    if (value != "yes" && value != "no") diagnostics.push_back({line, "the gutter is yes or no"});
  } else {
    diagnostics.push_back(
        {line, "before the first page a comment sets Application, Version or Gutter, not \"" +
                   std::string(key) + "\""});
  }
}

// How a link's address begins, by kind of target. The opening page goes by the
// target alone; its links have the type whose white reads best on its ground.
struct Prefix {
  std::string_view text;
  Target::Kind kind;
  std::int32_t type;
};
constexpr std::array kPrefixes = {
    Prefix{"#", Target::Kind::kPage, link_type::kPage},
    Prefix{"glossary:", Target::Kind::kEntry, link_type::kGlossary},
    Prefix{"doc:", Target::Kind::kDocument, link_type::kDocument},
    Prefix{"notes:", Target::Kind::kNotes, link_type::kPage},
    Prefix{"plain:", Target::Kind::kNone, link_type::kPlain},
    Prefix{"mode:", Target::Kind::kMode, link_type::kPlain},
    Prefix{"bio:", Target::Kind::kLife, link_type::kPlain},
};

// The number of a mode, which a link of the opening page chooses by it. One number
// has one spelling: without zeros before it.
bool IsModeNumber(std::string_view text) {
  const std::int32_t mode = base::IntVal(text);
  return text == base::Str(mode) && app::IsChosenByNumber(app::kModes, mode);
}

// Whether `name` may stand behind the prefix of that kind.
bool IsNameOf(Target::Kind kind, std::string_view name) {
  switch (kind) {
    case Target::Kind::kPage:
    case Target::Kind::kEntry:
    case Target::Kind::kLife:
      return IsName(name);
    case Target::Kind::kMode:
      return IsModeNumber(name);
    case Target::Kind::kDocument:
      return host::IsPlainName(std::string(name));
    case Target::Kind::kNotes:
    case Target::Kind::kNone:
      return name.empty();
  }
  return false;
}

// "mode:1 to mode:4": the modes that the opening page chooses by number follow each
// other in the table.
std::string ModeSpellings(const std::string& prefix) {
  std::vector<std::int32_t> modes;
  for (std::int32_t mode = 0; app::IsMode(app::kModes, mode); ++mode) {
    if (app::IsChosenByNumber(app::kModes, mode)) modes.push_back(mode);
  }
  return prefix + base::Str(modes.front()) + " to " + prefix + base::Str(modes.back());
}

std::string SpellingOf(const Prefix& prefix) {
  std::string text(prefix.text);
  switch (prefix.kind) {
    case Target::Kind::kPage:
    case Target::Kind::kEntry:
    case Target::Kind::kLife:
      return text + "name";
    case Target::Kind::kDocument:
      return text + "file";
    case Target::Kind::kMode:
      return ModeSpellings(text);
    case Target::Kind::kNotes:
    case Target::Kind::kNone:
      return text;
  }
  return text;
}

constexpr std::string_view kIndexPlace = "{index:";

// What stands in backticks is no spelling of ours.
std::string PlainText(const std::vector<Letter>& letters) {
  std::string text;
  for (const Letter& letter : letters) text += letter.verbatim ? '`' : letter.code;
  return text;
}

// The lines of a comment, without what encloses it.
std::vector<std::string_view> RowsOf(std::string_view comment) {
  comment = comment.substr(0, std::min(comment.find("-->"), comment.size()));
  comment.remove_prefix(std::min(comment.size(), std::string_view("<!--").size()));
  return base::Fields(comment, '\n');
}

void ReadTermRow(std::string_view row, int line, std::vector<Term>& terms, Diagnostics& diagnostics) {
  constexpr std::string_view kKey = "Index:";
  if (!row.starts_with(kKey)) return;
  for (const std::string_view field : base::Fields(row.substr(kKey.size()), ';')) {
    const auto text = Convert(base::Trim(field), line, diagnostics);
    if (text && !text->empty()) terms.push_back({*text, line, ""});
  }
}

}  // namespace

void ReadHead(std::string_view comment, int line, Manuscript& manuscript) {
  for (const std::string_view row : RowsOf(comment)) {
    const std::size_t colon = row.find(':');
    if (colon != std::string_view::npos)
      ReadSetting(base::Trim(row.substr(0, colon)), base::Trim(row.substr(colon + 1)), line, manuscript);
    ++line;
  }
}

// A title keeps no gap wider than a blank: CommonMark leaves those of the source in
// it, and the viewer would show them.
bool SplitTitle(const std::vector<Letter>& letters, std::string& title, std::string& name) {
  std::string text;
  for (const Letter& letter : letters) {
    const char code = letter.code == '\t' ? ' ' : letter.code;
    if (code != ' ' || (!text.empty() && text.back() != ' ')) text += code;
  }
  title = base::Trim(text);
  const std::size_t brace = title.find("{#");
  if (brace == std::string::npos) return true;
  const std::string_view tail = std::string_view(title).substr(brace + 2);
  const bool named = tail.ends_with('}') && IsName(tail.substr(0, tail.size() - 1));
  if (named) name = tail.substr(0, tail.size() - 1);
  title = base::Trim(title.substr(0, brace));
  return named;
}

std::optional<Target> ReadTarget(std::string_view address) {
  for (const Prefix& prefix : kPrefixes) {
    if (!address.starts_with(prefix.text)) continue;
    const std::string_view name = address.substr(prefix.text.size());
    if (!IsNameOf(prefix.kind, name)) return std::nullopt;
    return Target{prefix.kind, prefix.type, std::string(name)};
  }
  return std::nullopt;
}

std::string TargetSpellings() {
  std::string spellings;
  for (const Prefix& prefix : kPrefixes) {
    const bool last = &prefix == &kPrefixes.back();
    spellings += (spellings.empty() ? "" : last ? ", or " : ", ") + SpellingOf(prefix);
  }
  return spellings;
}

std::optional<std::int32_t> StyleOf(bool italic, bool bold, bool underline) {
  if (!italic && !bold && !underline) return 0;
  for (const content::LinkType& row : content::kLinkTypes) {
    if (row.italic == italic && row.bold == bold && row.underline == underline &&
        content::IsStyledRun(row.type))
      return row.type;
  }
  return std::nullopt;
}

std::vector<Term> ReadTerms(std::string_view comment, int line, Diagnostics& diagnostics) {
  std::vector<Term> terms;
  for (const std::string_view row : RowsOf(comment)) ReadTermRow(base::Trim(row), line++, terms, diagnostics);
  return terms;
}

bool IsIndexPlace(const std::vector<Letter>& letters) { return PlainText(letters).starts_with(kIndexPlace); }

std::optional<Initials> InitialsOf(const std::vector<Letter>& letters) {
  const std::string text(base::Trim(PlainText(letters).substr(kIndexPlace.size())));
  if (text.size() != 4 || text[1] != '-' || text[3] != '}') return std::nullopt;
  const Initials initials = {text[0], text[2]};
  const bool ordered = 'A' <= initials.first && initials.first <= initials.last && initials.last <= 'Z';
  return ordered ? std::optional(initials) : std::nullopt;
}

int CountBreaks(std::string_view html) {
  int count = 0;
  for (std::string_view row : base::Fields(html, '\n')) {
    row = base::Trim(row);
    if (row.empty()) continue;
    if (row != "<br>" && row != "<br/>" && row != "<br />") return 0;
    ++count;
  }
  return count;
}

}  // namespace quill::authoring
