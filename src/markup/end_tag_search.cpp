#include "markup/end_tag_search.h"

#include <algorithm>
#include <string>

#include "base/text.h"

namespace quill::markup {
namespace {

constexpr std::string_view kEndTagOpening = "</";

// Finds the last occurrence of each of many keys in one pass: a tree of the
// keys' beginnings, in which every node knows the longest other beginning that
// its own text ends in (its fallback), so that the text is never read twice.
class KeyTree {
 public:
  // Gives the key's node.
  std::size_t Add(std::string_view key);

  // Reads the text. All keys must be there.
  void Read(std::string_view text);

  // Index behind the last occurrence of the node's key, 0 if there was none.
  std::size_t LastEnd(std::size_t node) const { return nodes_[node].last_end; }

 private:
  struct Node {
    char character = 0;
    std::size_t first_child = 0;  // 0, the root, stands for none
    std::size_t sibling = 0;
    std::size_t fallback = 0;
    std::size_t last_end = 0;
  };

  std::size_t Child(std::size_t node, char character) const;
  std::size_t Step(std::size_t node, char character) const;
  std::vector<std::size_t> LinkFallbacks();

  std::vector<Node> nodes_ = {Node()};
};

std::size_t KeyTree::Add(std::string_view key) {
  std::size_t node = 0;
  for (const char character : key) {
    std::size_t child = Child(node, character);
    if (child == 0) {
      child = nodes_.size();
      nodes_.push_back({.character = character, .sibling = nodes_[node].first_child});
      nodes_[node].first_child = child;
    }
    node = child;
  }
  return node;
}

void KeyTree::Read(std::string_view text) {
  const std::vector<std::size_t> outward = LinkFallbacks();
  std::size_t node = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    node = Step(node, text[i]);
    nodes_[node].last_end = i + 1;
  }
  // Where a longer key ended, the shorter ones that it ends in did too.
  for (auto it = outward.rbegin(); it != outward.rend(); ++it) {
    std::size_t& shorter = nodes_[nodes_[*it].fallback].last_end;
    shorter = std::max(shorter, nodes_[*it].last_end);
  }
}

std::size_t KeyTree::Child(std::size_t node, char character) const {
  std::size_t child = nodes_[node].first_child;
  while (child != 0 && nodes_[child].character != character) child = nodes_[child].sibling;
  return child;
}

std::size_t KeyTree::Step(std::size_t node, char character) const {
  for (;;) {
    const std::size_t child = Child(node, character);
    if (child != 0 || node == 0) return child;
    node = nodes_[node].fallback;
  }
}

// Gives all nodes but the root, shorter beginnings before longer ones.
std::vector<std::size_t> KeyTree::LinkFallbacks() {
  std::vector<std::size_t> outward;
  std::size_t node = 0;
  for (std::size_t done = 0;; ++done) {
    for (std::size_t child = nodes_[node].first_child; child != 0; child = nodes_[child].sibling) {
      nodes_[child].fallback = node == 0 ? 0 : Step(nodes_[node].fallback, nodes_[child].character);
      outward.push_back(child);
    }
    if (done == outward.size()) return outward;
    node = outward[done];
  }
}

}  // namespace

bool EndTagSearch::AllFollow(std::string_view text) const {
  if (required_.empty()) return true;
  KeyTree tree;
  std::vector<std::size_t> nodes;
  for (const Requirement& required : required_) {
    nodes.push_back(tree.Add(std::string(kEndTagOpening) + base::Uppercase(required.name)));
  }
  tree.Read(base::Uppercase(text));
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    const std::size_t least = required_[i].from + kEndTagOpening.size() + required_[i].name.size();
    if (tree.LastEnd(nodes[i]) < least) return false;
  }
  return true;
}

}  // namespace quill::markup
