#include "authoring/manuscript/paragraph.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "authoring/alphabet.h"
#include "base/numbers.h"
#include "content/link_types.h"

namespace quill::authoring {
namespace {

constexpr std::size_t kNoWord = static_cast<std::size_t>(-1);
constexpr std::size_t kMostStopDigits = 2;
constexpr char kNoBreakBlank = static_cast<char>(0xCA);

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Letters and digits, of which a word that is left half linked would show.
bool IsWordLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c) ||
         (static_cast<unsigned char>(c) >= 0x80 && c != kNoBreakBlank);
}

// A blank-separated field of the manuscript: letters `begin` to before `end`.
struct Field {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t word = kNoWord;  // place in the column; none for a stop
};

class ParagraphTypesetter {
 public:
  ParagraphTypesetter(const Paragraph& paragraph, Column& column, Diagnostics& diagnostics)
      : letters_(paragraph.letters), paragraph_(paragraph), column_(column), diagnostics_(diagnostics) {}

  void Typeset() {
    if (column_.paragraphs++ > 0) column_.text += '\n';
    if (std::all_of(letters_.begin(), letters_.end(), [](const Letter& l) { return IsBlank(l.code); }))
      return;
    TypesetIndent();
    TypesetWords();
    LookForBrackets();
    TypesetRuns();
  }

 private:
  void TypesetIndent() {
    const Indent& indent = paragraph_.indent;
    const std::int32_t stop = indent.gutter + indent.stop;
    if (indent.number.empty()) {
      MoveTo(stop);
    } else {
      MoveTo(stop - 1);
      AppendWord(indent.number);
      MoveTo(stop);
    }
  }

  void TypesetWords() {
    for (std::size_t at = 0; at < letters_.size();) {
      if (letters_[at].code == '\t') {
        MoveTo(stop_ + 1);
        fields_.push_back({at, at + 1});
        ++at;
      } else if (letters_[at].code == ' ') {
        ++at;
      } else {
        std::size_t end = at;
        while (end < letters_.size() && !IsBlank(letters_[end].code)) ++end;
        TypesetField(at, end);
        at = end;
      }
    }
  }

  void TypesetField(std::size_t begin, std::size_t end) {
    const std::string word = Letters(begin, end);
    if (const auto stop = StopOf(begin, word)) {
      fields_.push_back({begin, end});
      const std::int32_t place = paragraph_.indent.gutter + *stop;
      if (place <= stop_) Diagnose(begin, "the stop " + word + " isn't to the right of the one before it");
      MoveTo(place);
      return;
    }
    LookForStars(begin, word);
    AppendWord(word);
    fields_.push_back({begin, end, column_.words - 1});
  }

  // The number of a stop; none if the field is a word.
  std::optional<std::int32_t> StopOf(std::size_t begin, std::string_view word) const {
    if (word.size() < 3 || word.front() != '{' || word.back() != '}' || letters_[begin].verbatim) return {};
    const std::string_view digits = word.substr(1, word.size() - 2);
    if (digits.size() > kMostStopDigits || !std::all_of(digits.begin(), digits.end(), IsDigit)) return {};
    return base::IntVal(digits);
  }

  void MoveTo(std::int32_t stop) {
    if (stop <= stop_) return;
    tabs_ += stop - stop_;
    stop_ = stop;
  }

  // Of several tabs the last stands at the word's head and the others alone: the
  // layout takes but one off a word, and from a tab alone it moves on the same.
  void AppendWord(std::string_view word) {
    for (; tabs_ > 1; --tabs_) AppendField("\t");
    AppendField((tabs_ == 1 ? "\t" : "") + std::string(word));
    tabs_ = 0;
  }

  void AppendField(std::string_view field) {
    if (begun_) column_.text += ' ';
    begun_ = true;
    column_.text += field;
    ++column_.words;
  }

  // A star that CommonMark left in the text found no partner, mostly because it
  // stands in another paragraph.
  void LookForStars(std::size_t begin, std::string_view word) {
    if (letters_[begin].verbatim || word.find_first_not_of('*') == std::string_view::npos) return;
    if (word.front() != '*' && word.back() != '*') return;
    Diagnose(begin, "the star at " + Quoted(word) +
                        " has no partner in its paragraph; if you mean a star, put `*` in backticks");
  }

  // The same for the parts of a link.
  void LookForBrackets() {
    std::size_t open = letters_.size();
    for (std::size_t i = 0; i < letters_.size(); ++i) {
      if (letters_[i].verbatim) continue;
      const char next = i + 1 < letters_.size() ? letters_[i + 1].code : ' ';
      if (letters_[i].code == '[') open = i;
      if (letters_[i].code != ']') continue;
      open = next == '(' ? i : letters_.size();
      if (next == '(') break;
    }
    if (open < letters_.size())
      Diagnose(
          open,
          "this link is not whole: [words](target) must stand in one paragraph, its target without blanks; "
          "if you mean a bracket, put it in backticks");
  }

  void TypesetRuns() {
    for (std::size_t begin = 0; begin < letters_.size();) {
      std::size_t end = begin + 1;
      while (end < letters_.size() && letters_[end].mark == letters_[begin].mark) ++end;
      if (!letters_[begin].mark.IsPlain()) TypesetRun(begin, end);
      begin = end;
    }
  }

  void TypesetRun(std::size_t begin, std::size_t end) {
    while (begin < end && IsBlank(letters_[begin].code)) ++begin;
    while (begin < end && IsBlank(letters_[end - 1].code)) --end;
    if (begin == end) return;
    const auto first = std::find_if(fields_.begin(), fields_.end(),
                                    [begin](const Field& field) { return field.begin == begin; });
    if (first == fields_.end()) {
      Diagnose(begin, Name(begin, end) +
                          " doesn't start at a word: put a blank before it, or take what stands "
                          "before it in");
      return;
    }
    Run run = {first->word, 0, TargetOf(letters_[begin].mark), letters_[begin].line};
    for (auto field = first; field != fields_.end() && field->begin < end; ++field) {
      if (field->word == kNoWord) {
        Diagnose(begin, Name(begin, end) + " has a stop in it");
        return;
      }
      run.length +=
          (field == first ? 0 : 1) + static_cast<std::int32_t>(std::min(field->end, end) - field->begin);
      if (field->end > end && !MayFollow(end, field->end, run)) {
        Diagnose(begin, Name(begin, end) + " doesn't end with a word: " + Quoted(Letters(end, field->end)) +
                            " hangs on to it; put a blank between them, or take it in");
        return;
      }
    }
    column_.runs.push_back(std::move(run));
  }

  // Whether the rest of a word may be drawn with the run. The reader takes whole
  // words: in a styled run a comma goes along, on a button it would be shown.
  bool MayFollow(std::size_t begin, std::size_t end, const Run& run) const {
    if (!content::IsStyledRun(run.target.type)) return false;
    return std::none_of(letters_.begin() + static_cast<std::ptrdiff_t>(begin),
                        letters_.begin() + static_cast<std::ptrdiff_t>(end),
                        [](const Letter& letter) { return IsWordLetter(letter.code); });
  }

  Target TargetOf(const Mark& mark) const {
    if (mark.link >= 0) return paragraph_.targets[static_cast<std::size_t>(mark.link)];
    return {Target::Kind::kNone, mark.style, ""};
  }

  std::string Name(std::size_t begin, std::size_t end) const {
    return (letters_[begin].mark.link >= 0 ? "the link " : "the styled text ") + Quoted(Letters(begin, end));
  }

  std::string Letters(std::size_t begin, std::size_t end) const {
    std::string text;
    for (std::size_t i = begin; i < end; ++i) text += letters_[i].code;
    return text;
  }

  void Diagnose(std::size_t at, std::string sentence) {
    diagnostics_.push_back({letters_[at].line, std::move(sentence)});
  }

  const std::vector<Letter>& letters_;
  const Paragraph& paragraph_;
  Column& column_;
  Diagnostics& diagnostics_;
  std::vector<Field> fields_;
  std::int32_t stop_ = 0;  // where the pen's margin stands
  std::int32_t tabs_ = 0;  // not yet written, before the next word
  bool begun_ = false;     // the paragraph has a field
};

}  // namespace

void TypesetParagraph(const Paragraph& paragraph, Column& column, Diagnostics& diagnostics) {
  ParagraphTypesetter(paragraph, column, diagnostics).Typeset();
}

}  // namespace quill::authoring
