#include "markup/parser.h"

#include <algorithm>

#include "base/exceptions.h"
#include "base/text.h"
#include "markup/exceptions.h"
#include "markup/nodes.h"

namespace quill::markup {
namespace {

constexpr std::string_view kCDataOpening = "![CDATA[";
constexpr std::string_view kCommentOpening = "!--";

bool OpensWith(std::string_view text, std::string_view opening) {
  return base::EqualText(text.substr(0, opening.size()), opening);
}

}  // namespace

bool Parser::parseElementContent(zkXMLElement& element) {
  try {
    Resume(element);
    while (!open_.empty()) Advance();
  } catch (...) {
    for (; !open_.empty(); open_.pop_back()) HandOver(open_.back());
    throw;
  }
  return left_over_;
}

std::string_view Parser::Text(std::size_t begin, std::size_t end) const {
  return std::string_view(in_.text).substr(begin, end - begin);
}

// Index of the construct's closing delimiter. Without one the construct is cut
// off, which a further chunk may mend; the position is still at its start.
std::size_t Parser::Find(std::string_view delimiter, std::size_t from) const {
  const std::size_t found =
      delimiter.size() == 1 ? in_.text.find(delimiter[0], from) : in_.text.find(delimiter, from);
  if (found != std::string::npos) return found;
  if (in_.incremental) throw zkXMLIncrementEnd();
  throw zkXMLParsingException();
}

void Parser::Open(const Frame& frame) {
  open_.push_back(frame);
  open_.back().text_length = in_.text.size();
  open_.back().first_node = nodes_.size();
  if (open_.size() - 1 <= kMaxOpenElements) return;
  // A missing end tag on the way down comes first.
  if (Strict()) RequireEndTags();
  throw base::StackOverflowException();
}

// Opens `element` and, in incremental use, the elements that an earlier chunk
// left open in it: at each level the last entry, if that isn't complete.
void Parser::Resume(zkXMLElement& element) {
  Open({.element = &element, .resumed = true});
  if (!in_.incremental) return;
  for (;;) {
    const zkXMLElement& parent = *open_.back().element;
    const std::shared_ptr<zkXMLObject>& last = parent.GetContent(parent.ContentCount());
    zkXMLElement* const child = last ? last->asElement() : nullptr;
    if (child == nullptr || child->IsComplete()) return;
    Open({.element = child, .resumed = true});
  }
}

void Parser::Advance() {
  // A last single character is never looked at.
  if (in_.position + 1 >= open_.back().text_length) return EndOfText();
  // When an inner element has come to the end of the text, the text is empty and
  // the position at its start again, but this element still compares with the old
  // length. So it doesn't notice the end before it has added an empty text section.
  if (in_.text.empty() || in_.text[in_.position] != '<') return TextRun();
  Construct();
}

void Parser::TextRun() {
  const std::size_t next = in_.text.find('<', in_.position + 1);
  const bool open_end = next == std::string::npos;
  const std::size_t end = open_end ? in_.text.size() : next;
  nodes_.push_back(std::make_shared<zkXMLTextSection>(Text(in_.position, end)));
  in_.position = open_end ? open_.back().text_length : next;
  if (open_end && in_.incremental) throw zkXMLIncrementEnd();
}

void Parser::Construct() {
  const std::string_view behind = std::string_view(in_.text).substr(in_.position + 1);
  if (behind[0] == '?') return Instruction();
  if (behind[0] != '!') return Tag();
  if (OpensWith(behind, kCDataOpening)) return CDataSection();
  if (OpensWith(behind, kCommentOpening)) return Comment();
  Declaration();
}

void Parser::CDataSection() {
  const std::size_t begin = in_.position + 1 + kCDataOpening.size();
  const std::size_t end = Find("]]>", begin);
  nodes_.push_back(std::make_shared<zkXMLCDataSection>(Text(begin, end)));
  in_.position = end + 3;
}

void Parser::Comment() {
  const std::size_t begin = in_.position + 1 + kCommentOpening.size();
  const std::size_t end = Find("-->", begin);
  nodes_.push_back(std::make_shared<zkXMLComment>(Text(begin, end)));
  in_.position = end + 3;
}

void Parser::Instruction() {
  const std::size_t begin = in_.position + 2;
  const std::size_t end = Find("?>", begin);
  nodes_.push_back(std::make_shared<zkXMLPInstruction>(Text(begin, end)));
  in_.position = end + 2;
}

// Ends at the first ">" before which as many brackets have closed as opened, so
// that an internal subset stays inside, unread.
void Parser::Declaration() {
  const std::size_t begin = in_.position + 2;
  std::size_t counted = begin;
  std::ptrdiff_t open_brackets = 0;
  for (std::size_t end = Find(">", begin);; end = Find(">", end + 1)) {
    const std::string_view part = Text(counted, end);
    open_brackets += std::count(part.begin(), part.end(), '[') - std::count(part.begin(), part.end(), ']');
    counted = end;
    if (open_brackets != 0) continue;
    nodes_.push_back(std::make_shared<zkXMLDeclaration>(Text(begin, end)));
    in_.position = end + 1;
    return;
  }
}

void Parser::Tag() {
  const std::size_t begin = in_.position;
  // A ">" inside an attribute's value ends the tag like any other.
  const std::size_t end = Find(">", begin + 1);
  in_.position = end + 1;
  if (in_.text[begin + 1] == '/') {
    EndTag(begin, end);
  } else if (in_.text[end - 1] == '/') {
    nodes_.push_back(std::make_shared<zkXMLElement>(Text(begin + 1, end - 1), in_.syntaxRelaxed, true));
  } else {
    StartTag(begin + 1, end);
  }
}

void Parser::StartTag(std::size_t begin, std::size_t end) {
  auto child = std::make_shared<zkXMLElement>(Text(begin, end), in_.syntaxRelaxed, false);
  const Frame frame = {.element = child.get(), .tag_begin = begin, .tag_end = end};
  nodes_.push_back(std::move(child));
  Open(frame);
}

void Parser::EndTag(std::size_t begin, std::size_t end) {
  // Blanks before the ">" don't count; one right behind the "/" does.
  const std::string_view name = trimRight(Text(begin + 2, end));
  if (open_.back().element->IsNamed(name)) return OwnEndTag(begin);
  if (!in_.syntaxRelaxed) throw zkXMLParsingException();
  in_.position = begin;
  ForeignEndTag(name);
}

void Parser::OwnEndTag(std::size_t begin) {
  // "</>" has the document's own name and ends it.
  if (Strict() && open_.size() == 1) RequireEndTags();
  Frame& frame = open_.back();
  if (!frame.resumed && !AnswersLookAhead(begin, frame)) {
    if (Strict()) end_tags_.Require(LookAheadKey(frame), frame.tag_end + 1);
    frame.ends_chunk = EndsChunk(frame);
  }
  Leave();
}

// An end tag closes open elements that aren't its own until one takes it. They
// stay as empty elements, and what they had swallowed follows them.
void Parser::ForeignEndTag(std::string_view name) {
  std::size_t keeper = open_.size() - 1;
  bool taken = false;
  bool ends_chunk = false;
  while (keeper > 0 && !taken && !ends_chunk) {
    ends_chunk = EndsChunk(open_[keeper]);
    --keeper;
    taken = open_[keeper].element->IsNamed(name);
  }
  GiveUpTo(keeper);
  if (ends_chunk) throw zkXMLIncrementEnd();
  if (taken) return;
  left_over_ = true;
  Leave();
}

void Parser::EndOfText() {
  if (Strict() && !in_.text.empty()) RequireEndTags();
  // To be asked while there is a text to look into.
  open_.back().ends_chunk = EndsChunk(open_.back());
  std::string().swap(in_.text);
  in_.position = 0;
  Leave();
}

void Parser::Leave() {
  const Frame left = open_.back();
  HandOver(left);
  open_.pop_back();
  if (open_.empty()) return;
  left.element->SetComplete();
  ReturnFrom(left);
}

// What the parent of an element does when that has been left.
void Parser::ReturnFrom(const Frame& left) {
  if (left.resumed) open_.back().text_length = in_.text.size();
  if (left.ends_chunk) throw zkXMLIncrementEnd();
}

// Whether the chunk counts as used up when this element is left. It does if the
// chunk holds no end tag for it: the real one must then be in a later chunk, and
// what closed the element here was another's, or the end of the text.
bool Parser::EndsChunk(const Frame& frame) {
  if (!in_.incremental || frame.resumed) return false;
  if (!look_up_) look_up_.emplace(in_.text);
  return !look_up_->Follows(LookAheadKey(frame), frame.tag_end + 1);
}

// Gives up the open elements above index `keeper`, which gets their content.
// That lies in order already; only what earlier chunks left is to be moved.
void Parser::GiveUpTo(std::size_t keeper) {
  if (keeper + 1 == open_.size()) return;
  for (std::size_t i = keeper + 1; i < open_.size(); ++i) {
    open_[i].element->SetComplete();
    if (open_[i].resumed) open_[keeper].element->TakeContentOf(*open_[i].element);
  }
  open_.resize(keeper + 1);
}

void Parser::HandOver(const Frame& frame) {
  frame.element->TakeContent(nodes_.data() + frame.first_node, nodes_.data() + nodes_.size());
  nodes_.resize(frame.first_node);
}

// What must follow "</" somewhere behind the start tag: the tag with its ">" up
// to the first blank. Only the blank separates; a tab or a line end stays in.
std::string_view Parser::LookAheadKey(const Frame& frame) const {
  const std::string_view tag = base::Trim(Text(frame.tag_begin, frame.tag_end + 1));
  return tag.substr(0, tag.find(' '));
}

// Whether the end tag at index `end_tag` is what the element's look-ahead looks
// for. An end tag of the right name may not be, say for blanks before its ">".
bool Parser::AnswersLookAhead(std::size_t end_tag, const Frame& frame) const {
  const std::string_view key = LookAheadKey(frame);
  const std::size_t begin = end_tag + 2;
  const std::string_view found = Text(begin, begin + key.size());
  return found == key || base::EqualText(found, key);
}

// Settles the look-ahead of all elements so far, those still open included.
void Parser::RequireEndTags() {
  for (std::size_t i = 1; i < open_.size(); ++i) {
    end_tags_.Require(LookAheadKey(open_[i]), open_[i].tag_end + 1);
  }
  if (!end_tags_.AllFollow(in_.text)) throw zkXMLParsingException();
}

std::string_view trimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(" \t\n\r");
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

}  // namespace quill::markup
