#include "markup/end_tag_search.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <queue>

#include "base/text.h"

namespace quill::markup {
namespace {

constexpr std::string_view kEndTagOpening = "</";

// As `base::EqualText` takes letters.
constexpr char Fold(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool LessText(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Fold(x) < Fold(y); });
}

// Finds the last occurrence of each of many keys in one pass: a tree of the
// keys' beginnings, in which every node knows the longest other beginning that
// its own text ends in (its fallback), so that the text is never read twice.
//
// A key is "</" and a name. The nodes lie level by level, and so a node's
// children are those from its own first child up to the next node's.
class KeyTree {
 public:
  // Takes the names sorted by `LessText`.
  explicit KeyTree(const std::vector<std::string_view>& names);

  // Reads the text, of less than 4 GiB.
  void Read(std::string_view text);

  // Index behind the last occurrence of key number `i` from 0, 0 if there was none.
  std::size_t LastEnd(std::size_t i) const { return nodes_[ends_[i]].last_end; }

 private:
  using Index = std::uint32_t;

  // One for each character of a long name: small, lest a hostile text take a
  // hundred times its size.
  struct Node {
    Index first_child = 0;
    Index fallback = 0;
    Index last_end = 0;
    char character = 0;
  };

  // The keys that begin with a node's text.
  struct Keys {
    std::size_t first;
    std::size_t end;
    std::size_t length;  // of that text
  };

  void AddChildren(Index node, Keys keys, const std::vector<std::string_view>& names);
  Index Child(Index node, char character) const;
  Index Step(Index node, char character) const;

  std::vector<Node> nodes_ = {Node()};
  std::queue<Keys> to_come_;  // of the nodes whose children are still missing
  std::vector<Index> ends_;   // the keys' nodes
};

KeyTree::KeyTree(const std::vector<std::string_view>& names) : ends_(names.size()) {
  std::size_t most = 1 + kEndTagOpening.size() + 1;
  for (const std::string_view name : names) most += name.size();
  nodes_.reserve(most);
  to_come_.push({.first = 0, .end = names.size(), .length = 0});
  for (Index node = 0; !to_come_.empty(); ++node) {
    AddChildren(node, to_come_.front(), names);
    to_come_.pop();
  }
  // The last node's children, too, end before the next node's.
  nodes_.push_back({.first_child = static_cast<Index>(nodes_.size())});
}

void KeyTree::AddChildren(Index node, Keys keys, const std::vector<std::string_view>& names) {
  const std::size_t opening = kEndTagOpening.size();
  const auto next = [&](std::size_t key) {
    return keys.length < opening ? kEndTagOpening[keys.length] : Fold(names[key][keys.length - opening]);
  };
  nodes_[node].first_child = static_cast<Index>(nodes_.size());
  for (; keys.first < keys.end && names[keys.first].size() + opening == keys.length; ++keys.first) {
    ends_[keys.first] = node;
  }
  while (keys.first < keys.end) {
    const char character = next(keys.first);
    std::size_t end = keys.first + 1;
    while (end < keys.end && next(end) == character) ++end;
    const Index fallback = node == 0 ? 0 : Step(nodes_[node].fallback, character);
    nodes_.push_back({.fallback = fallback, .character = character});
    to_come_.push({.first = keys.first, .end = end, .length = keys.length + 1});
    keys.first = end;
  }
}

void KeyTree::Read(std::string_view text) {
  Index node = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    node = Step(node, Fold(text[i]));
    nodes_[node].last_end = static_cast<Index>(i + 1);
  }
  // Where a longer key ended, the shorter ones that it ends in did too. The deeper
  // nodes are the later ones.
  for (auto it = nodes_.rbegin(); it != nodes_.rend(); ++it) {
    Index& shorter = nodes_[it->fallback].last_end;
    shorter = std::max(shorter, it->last_end);
  }
}

KeyTree::Index KeyTree::Child(Index node, char character) const {
  const Index end = nodes_[node + 1].first_child;
  for (Index child = nodes_[node].first_child; child < end; ++child) {
    if (nodes_[child].character == character) return child;
  }
  return 0;
}

KeyTree::Index KeyTree::Step(Index node, char character) const {
  for (;;) {
    const Index child = Child(node, character);
    if (child != 0 || node == 0) return child;
    node = nodes_[node].fallback;
  }
}

// The longest text that a key tree's indices reach.
constexpr std::size_t kLongestText = std::numeric_limits<std::uint32_t>::max() - 1;

// The text from `begin` on, as far as a name could reach: none goes on over a
// blank, behind a ">", or over a "</" that it doesn't hold. Its last "<" may be
// the first character of one.
std::string_view Segment(std::string_view text, std::size_t begin) {
  std::size_t end = begin;
  while (end < text.size() && text[end] != ' ' && text[end] != '>' &&
         text.substr(end, kEndTagOpening.size()) != kEndTagOpening) {
    ++end;
  }
  if (end < text.size() && text[end] != ' ') ++end;
  return text.substr(begin, end - begin);
}

}  // namespace

// Index behind the first place that is late enough.
std::size_t EndTagSearch::Requirement::LeastEnd() const { return from + kEndTagOpening.size() + name.size(); }

bool EndTagSearch::AllFollow(std::string_view text) {
  if (required_.empty()) return true;
  if (text.size() > kLongestText) return false;
  for (const Requirement& required : required_) {
    if (required.LeastEnd() > text.size()) return false;
  }
  DropImplied();
  std::vector<std::string_view> names;
  for (const Requirement& required : required_) names.push_back(required.name);
  KeyTree tree(names);
  tree.Read(text);
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (tree.LastEnd(i) < required_[i].LeastEnd()) return false;
  }
  return true;
}

// Sorts by name, and of each name keeps the question that is hardest to meet.
void EndTagSearch::DropImplied() {
  std::sort(required_.begin(), required_.end(), [](const Requirement& a, const Requirement& b) {
    return base::EqualText(a.name, b.name) ? a.from > b.from : LessText(a.name, b.name);
  });
  const auto last = std::unique(required_.begin(), required_.end(),
                                [](const auto& a, const auto& b) { return base::EqualText(a.name, b.name); });
  required_.erase(last, required_.end());
}

EndTagIndex::EndTagIndex(std::string_view text) : text_(text) {
  for (std::size_t at = text.find(kEndTagOpening); at != std::string_view::npos;) {
    at += kEndTagOpening.size();
    segments_.push_back(Segment(text, at));
    at = text.find(kEndTagOpening, at);
  }
  std::sort(segments_.begin(), segments_.end(), LessText);
  latest_.resize(segments_.size());
  for (const std::string_view segment : segments_) {
    latest_.push_back(static_cast<std::size_t>(segment.data() - text.data()));
  }
  for (std::size_t i = segments_.size(); i-- > 1;) latest_[i] = std::max(latest_[2 * i], latest_[2 * i + 1]);
}

bool EndTagIndex::Follows(std::string_view name, std::size_t from) {
  const bool beyond = name.find(kEndTagOpening) != std::string_view::npos;
  return (beyond ? LastBeginByReading(name) : LastBegin(name)) >= from + kEndTagOpening.size();
}

// Index in the text of the last segment that begins with the name, 0 for none.
std::size_t EndTagIndex::LastBegin(std::string_view name) const {
  const auto less = [length = name.size()](std::string_view a, std::string_view b) {
    return LessText(a.substr(0, length), b.substr(0, length));
  };
  const auto found = std::equal_range(segments_.begin(), segments_.end(), name, less);
  // The range's largest entry, by way of the pairs that lie wholly within it.
  auto first = static_cast<std::size_t>(found.first - segments_.begin()) + segments_.size();
  auto end = static_cast<std::size_t>(found.second - segments_.begin()) + segments_.size();
  std::size_t last = 0;
  for (; first < end; first /= 2, end /= 2) {
    if (first % 2 == 1) last = std::max(last, latest_[first++]);
    if (end % 2 == 1) last = std::max(last, latest_[--end]);
  }
  return last;
}

std::size_t EndTagIndex::LastBeginByReading(std::string_view name) {
  const auto [known, is_new] = by_reading_.try_emplace(name, 0);
  if (is_new && name.size() < text_.size() && text_.size() <= kLongestText) {
    KeyTree tree({name});
    tree.Read(text_);
    if (tree.LastEnd(0) > 0) known->second = tree.LastEnd(0) - name.size();
  }
  return known->second;
}

}  // namespace quill::markup
