#include "authoring/manuscript/paragraph.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "authoring/alphabet.h"
#include "base/numbers.h"
#include "base/text.h"
#include "content/link_types.h"

namespace quill::authoring {
namespace {

constexpr std::size_t kNoWord = static_cast<std::size_t>(-1);
constexpr std::size_t kMostStopDigits = 2;  // the widest column ends before stop 24

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// Letters and digits: what makes the rest of a word part of it and no punctuation.
// Beyond ASCII nearly all are letters; a no-break blank can't be seen.
bool IsWordLetter(char c) {
  return base::IsLetter(c) || base::IsDigit(c) ||
         (static_cast<unsigned char>(c) >= 0x80 && c != kNoBreakBlank);
}

// What stands between blanks in the manuscript: the letters from index `begin` to
// before `end`.
struct Field {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t word = kNoWord;  // its index in the column; none for a stop
};

// Typesets one paragraph. The words go into the column one by one; the fields that
// they came from are kept until the runs have found theirs.
class ParagraphTypesetter {
 public:
  ParagraphTypesetter(const Paragraph& paragraph, Column& column, Diagnostics& diagnostics)
      : letters_(paragraph.letters), paragraph_(paragraph), column_(column), diagnostics_(diagnostics) {}

  void Typeset();

 private:
  void TypesetIndent();
  void TypesetWords();
  void TypesetField(std::size_t begin, std::size_t end);
  std::optional<std::int32_t> StopOf(std::size_t begin, std::string_view word) const;
  void MoveTo(std::int32_t stop);
  void AppendWord(std::string_view word);
  void AppendField(std::string_view field);

  void LookForStars(std::size_t begin, std::string_view word);
  void LookForBrackets();

  void TypesetRuns();
  void TypesetRun(std::size_t begin, std::size_t end);
  bool MayFollow(std::size_t begin, std::size_t end, const Run& run) const;
  Target TargetOf(const Mark& mark) const;

  std::string NameOf(std::size_t begin, std::size_t end) const;
  std::string Letters(std::size_t begin, std::size_t end) const;
  void Diagnose(std::size_t letter, std::string sentence);

  const std::vector<Letter>& letters_;
  const Paragraph& paragraph_;
  Column& column_;
  Diagnostics& diagnostics_;
  std::vector<Field> fields_;  // in the order of the text
  std::int32_t stop_ = 0;      // on which lines of the paragraph begin by now
  std::int32_t tabs_ = 0;      // that lead there and aren't written yet
  bool begun_ = false;         // the paragraph has a field in the column's text
};

// A paragraph without words takes neither its number nor its tabs along: the
// layout would count them, and show nothing.
void ParagraphTypesetter::Typeset() {
  if (column_.paragraphs++ > 0) column_.text += '\n';
  if (std::all_of(letters_.begin(), letters_.end(), [](const Letter& l) { return IsBlank(l.code); })) return;
  TypesetIndent();
  TypesetWords();
  LookForBrackets();
  TypesetRuns();
}

void ParagraphTypesetter::TypesetIndent() {
  const Indent& indent = paragraph_.indent;
  const std::int32_t stop = indent.gutter + indent.stop;
  if (!indent.number.empty()) {
    MoveTo(stop - 1);
    AppendWord(indent.number);
  }
  MoveTo(stop);
}

// Cuts the letters into fields. A tab character of the manuscript is a field of its
// own and leads to the next stop, wherever it stands.
void ParagraphTypesetter::TypesetWords() {
  for (std::size_t begin = 0; begin < letters_.size();) {
    std::size_t end = begin + 1;
    if (letters_[begin].code == '\t') {
      MoveTo(stop_ + 1);
      fields_.push_back({begin, end});
    } else if (letters_[begin].code != ' ') {
      while (end < letters_.size() && !IsBlank(letters_[end].code)) ++end;
      TypesetField(begin, end);
    }
    begin = end;
  }
}

void ParagraphTypesetter::TypesetField(std::size_t begin, std::size_t end) {
  const std::string word = Letters(begin, end);
  if (const auto stop = StopOf(begin, word)) {
    fields_.push_back({begin, end});
    const std::int32_t column_stop = paragraph_.indent.gutter + *stop;
    if (column_stop <= stop_)
      Diagnose(begin, "the stop " + word + " isn't to the right of the one before it");
    MoveTo(column_stop);
    return;
  }
  LookForStars(begin, word);
  AppendWord(word);
  fields_.push_back({begin, end, column_.words - 1});
}

// The number of a stop; none if the field is a word.
std::optional<std::int32_t> ParagraphTypesetter::StopOf(std::size_t begin, std::string_view word) const {
  if (word.size() < 3 || word.front() != '{' || word.back() != '}' || letters_[begin].verbatim) return {};
  const std::string_view digits = word.substr(1, word.size() - 2);
  if (digits.size() > kMostStopDigits || !std::all_of(digits.begin(), digits.end(), base::IsDigit)) return {};
  return base::IntVal(digits);
}

// The layout's tabs only ever lead on, so that a stop to the left is passed over.
void ParagraphTypesetter::MoveTo(std::int32_t stop) {
  if (stop <= stop_) return;
  tabs_ += stop - stop_;
  stop_ = stop;
}

// Of several tabs the last stands at the word's head and the others alone: the
// layout takes but one off a word, and from a tab alone it moves on the same.
void ParagraphTypesetter::AppendWord(std::string_view word) {
  for (; tabs_ > 1; --tabs_) AppendField("\t");
  AppendField((tabs_ == 1 ? "\t" : "") + std::string(word));
  tabs_ = 0;
}

// Single blanks between words, whatever the manuscript has: the layout would show no
// wider gap, and a link's length counts every blank.
void ParagraphTypesetter::AppendField(std::string_view field) {
  if (begun_) column_.text += ' ';
  begun_ = true;
  column_.text += field;
  ++column_.words;
}

// A star that CommonMark left in the text found no partner, mostly because it
// stands in another paragraph. A word of nothing but stars is meant as it stands.
void ParagraphTypesetter::LookForStars(std::size_t begin, std::string_view word) {
  if (letters_[begin].verbatim || word.find_first_not_of('*') == std::string_view::npos) return;
  if (word.front() != '*' && word.back() != '*') return;
  Diagnose(begin, "the star at " + Quoted(word) +
                      " has no partner in its paragraph; if you mean a star, put `*` in backticks");
}

// The same for the parts of a link that CommonMark couldn't read as one: a "[" that
// no "]" closes, or "](". Brackets in a pair, as in "[sic]", are text.
void ParagraphTypesetter::LookForBrackets() {
  std::size_t broken = letters_.size();
  for (std::size_t i = 0; i < letters_.size(); ++i) {
    if (letters_[i].verbatim) continue;
    const char next = i + 1 < letters_.size() ? letters_[i + 1].code : ' ';
    if (letters_[i].code == '[') broken = i;
    if (letters_[i].code != ']') continue;
    broken = next == '(' ? i : letters_.size();
    if (next == '(') break;
  }
  if (broken < letters_.size())
    Diagnose(broken,
             "this link is not whole: [words](target) must stand in one paragraph, its target without "
             "blanks; if you mean a bracket, put it in backticks");
}

void ParagraphTypesetter::TypesetRuns() {
  for (std::size_t begin = 0; begin < letters_.size();) {
    std::size_t end = begin + 1;
    while (end < letters_.size() && letters_[end].mark == letters_[begin].mark) ++end;
    if (!letters_[begin].mark.IsPlain()) TypesetRun(begin, end);
    begin = end;
  }
}

// Lays a run on the words of the letters `begin` to before `end`. The layout starts
// a link at a word and takes whole words until their length reaches the link's:
// hence a run starts where a field starts and, but for `MayFollow`, ends where one
// ends. A stop inside it would be a tab on a button.
void ParagraphTypesetter::TypesetRun(std::size_t begin, std::size_t end) {
  while (begin < end && IsBlank(letters_[begin].code)) ++begin;
  while (begin < end && IsBlank(letters_[end - 1].code)) --end;
  if (begin == end) return;
  const auto first = std::find_if(fields_.begin(), fields_.end(),
                                  [begin](const Field& field) { return field.begin == begin; });
  if (first == fields_.end())
    return Diagnose(begin, NameOf(begin, end) +
                               " doesn't start at a word: put a blank before it, or take what stands "
                               "before it in");
  Run run = {first->word, 0, TargetOf(letters_[begin].mark), letters_[begin].line};
  for (auto field = first; field != fields_.end() && field->begin < end; ++field) {
    if (field->word == kNoWord) return Diagnose(begin, NameOf(begin, end) + " has a stop in it");
    run.length +=
        (field == first ? 0 : 1) + static_cast<std::int32_t>(std::min(field->end, end) - field->begin);
    if (field->end > end && !MayFollow(end, field->end, run))
      return Diagnose(begin, NameOf(begin, end) +
                                 " doesn't end with a word: " + Quoted(Letters(end, field->end)) +
                                 " hangs on to it; put a blank between them, or take it in");
  }
  column_.runs.push_back(std::move(run));
}

// Whether the rest of a word may be drawn with the run. The reader takes whole
// words: in a styled run a comma goes along, on a button it would be shown.
bool ParagraphTypesetter::MayFollow(std::size_t begin, std::size_t end, const Run& run) const {
  if (!content::IsStyledRun(run.target.type)) return false;
  return std::none_of(letters_.begin() + static_cast<std::ptrdiff_t>(begin),
                      letters_.begin() + static_cast<std::ptrdiff_t>(end),
                      [](const Letter& letter) { return IsWordLetter(letter.code); });
}

Target ParagraphTypesetter::TargetOf(const Mark& mark) const {
  if (mark.link >= 0) return paragraph_.targets[static_cast<std::size_t>(mark.link)];
  return {Target::Kind::kNone, mark.style, ""};
}

std::string ParagraphTypesetter::NameOf(std::size_t begin, std::size_t end) const {
  return (letters_[begin].mark.link >= 0 ? "the link " : "the styled text ") + Quoted(Letters(begin, end));
}

std::string ParagraphTypesetter::Letters(std::size_t begin, std::size_t end) const {
  std::string text;
  for (std::size_t i = begin; i < end; ++i) text += letters_[i].code;
  return text;
}

// On the line of the letter with that index.
void ParagraphTypesetter::Diagnose(std::size_t letter, std::string sentence) {
  diagnostics_.push_back({letters_[letter].line, std::move(sentence)});
}

}  // namespace

void TypesetParagraph(const Paragraph& paragraph, Column& column, Diagnostics& diagnostics) {
  ParagraphTypesetter(paragraph, column, diagnostics).Typeset();
}

}  // namespace quill::authoring
