#include "quillpress/manuscript_parts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/files.h"
#include "host/text.h"
#include "quillpress/alphabet.h"

namespace quill::quillpress {
namespace {

constexpr std::int32_t kPageLink = 0;
constexpr std::int32_t kGlossaryLink = 1;
constexpr std::int32_t kPlainButton = 2;
constexpr std::int32_t kDocumentLink = 9;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsName(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c) || c == '-' || c == '_';
  });
}

// A number with at most one decimal place, which is all that the reader counts.
bool IsVersion(std::string_view text) {
  const std::size_t whole = std::min(text.find('.'), text.size());
  const std::string_view tenths = text.substr(whole);
  return whole >= 1 && whole <= 3 && std::all_of(text.begin(), text.begin() + whole, IsDigit) &&
         (tenths.empty() || (tenths.size() == 2 && IsDigit(tenths[1])));
}

// UTF-8 to program text; none, with a problem, if a character can't be shown.
std::optional<std::string> Convert(std::string_view text, int line, Problems& problems) {
  std::string converted;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    const std::optional<char> code = ToProgram(character);
    if (!code) {
      problems.push_back({line, CannotShow(character)});
      return std::nullopt;
    }
    converted += *code;
  }
  return converted;
}

void ReadSetting(std::string_view key, std::string_view value, int line, Manuscript& manuscript) {
  Problems& problems = manuscript.problems;
  if (key == "Application") {
    manuscript.application = Convert(value, line, problems).value_or("");
  } else if (key == "Version") {
    manuscript.version = value;
    if (!IsVersion(value)) problems.push_back({line, "a version is a number such as 1 or 1.2"});
  } else if (key == "Gutter") {
    manuscript.gutter = value == "yes";
    if (value != "yes" && value != "no") problems.push_back({line, "the gutter is yes or no"});
  } else {
    problems.push_back({line, "before the first page a comment sets Application, Version or Gutter, not \"" +
                                  std::string(key) + "\""});
  }
}

struct Prefix {
  std::string_view text;
  Goal goal;
  std::int32_t type;
};
constexpr std::array kPrefixes = {
    Prefix{"#", Goal::kPage, kPageLink},
    Prefix{"glossary:", Goal::kEntry, kGlossaryLink},
    Prefix{"doc:", Goal::kDocument, kDocumentLink},
    Prefix{"notes:", Goal::kNotes, kPageLink},
    Prefix{"plain:", Goal::kNone, kPlainButton},
    Prefix{"mode:", Goal::kMode, kPlainButton},
    Prefix{"bio:", Goal::kLife, kPlainButton},
};

bool IsNameOf(Goal goal, std::string_view name) {
  switch (goal) {
    case Goal::kPage:
    case Goal::kEntry:
    case Goal::kLife:
      return IsName(name);
    case Goal::kMode:
      return name.size() == 1 && name[0] >= '1' && name[0] <= '4';
    case Goal::kDocument:
      return host::IsPlainName(std::string(name));
    case Goal::kNotes:
    case Goal::kNone:
      return name.empty();
  }
  return false;
}

}  // namespace

void ReadHead(std::string_view comment, int line, Manuscript& manuscript) {
  comment = comment.substr(0, std::min(comment.find("-->"), comment.size()));
  comment.remove_prefix(std::min(comment.size(), std::string_view("<!--").size()));
  for (const std::string_view row : host::Fields(comment, '\n')) {
    const std::size_t colon = row.find(':');
    if (colon != std::string_view::npos)
      ReadSetting(host::Trim(row.substr(0, colon)), host::Trim(row.substr(colon + 1)), line, manuscript);
    ++line;
  }
}

bool SplitTitle(const std::vector<Letter>& letters, std::string& title, std::string& name) {
  std::string text;
  for (const Letter& letter : letters) {
    const char code = letter.code == '\t' ? ' ' : letter.code;
    if (code != ' ' || (!text.empty() && text.back() != ' ')) text += code;
  }
  title = host::Trim(text);
  const std::size_t brace = title.find("{#");
  if (brace == std::string::npos) return true;
  const std::string_view tail = std::string_view(title).substr(brace + 2);
  const bool named = tail.ends_with('}') && IsName(tail.substr(0, tail.size() - 1));
  if (named) name = tail.substr(0, tail.size() - 1);
  title = host::Trim(title.substr(0, brace));
  return named;
}

std::optional<Target> ReadTarget(std::string_view address) {
  for (const Prefix& prefix : kPrefixes) {
    if (!address.starts_with(prefix.text)) continue;
    const std::string_view name = address.substr(prefix.text.size());
    if (!IsNameOf(prefix.goal, name)) return std::nullopt;
    return Target{prefix.goal, prefix.type, std::string(name)};
  }
  return std::nullopt;
}

std::optional<std::int32_t> StyleOf(bool italic, bool bold, bool underline) {
  if (underline && bold && italic) return std::nullopt;
  if (underline) return bold ? 8 : italic ? 7 : 6;
  if (bold) return italic ? 5 : 4;
  return italic ? 3 : 0;
}

int CountBreaks(std::string_view html) {
  int count = 0;
  for (std::string_view row : host::Fields(html, '\n')) {
    row = host::Trim(row);
    if (row.empty()) continue;
    if (row != "<br>" && row != "<br/>" && row != "<br />") return 0;
    ++count;
  }
  return count;
}

}  // namespace quill::quillpress
