// Whether end tags follow somewhere behind their start tags: many such questions
// about one text, without reading it once for each of them.
//
// A question is a plain search that knows nothing of nesting: does "</" with a
// given name occur at or behind a place, in whatever case of letters? A name is
// what a start tag makes of it: it isn't empty, and a ">" stands at its end or
// nowhere.
//
// `EndTagSearch` takes all questions first and answers them together;
// `EndTagIndex` answers each on the spot, for who can't go on without. Both only
// look at the text, and at names in it: the caller keeps them alive and unchanged.
#pragma once

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace quill::markup {

// Takes time with the length of the text and of the names, and memory with the
// names: 16 bytes a character, where no two begin alike.
class EndTagSearch {
 public:
  // Asks for "</" and `name` at or behind index `from` of the text.
  void Require(std::string_view name, std::size_t from) { required_.push_back({name, from}); }

  // Whether all that was asked for occurs in `text`. Nothing does in a text of
  // 4 GiB and more.
  bool AllFollow(std::string_view text);

 private:
  struct Requirement {
    std::string_view name;
    std::size_t from;

    std::size_t LeastEnd() const;
  };

  void DropImplied();

  std::vector<Requirement> required_;
};

// Sorts a text's end tags when it is made, and then finds each name by halving.
// Names that hold "</" are beyond it: each of them costs a pass over the text,
// though only once.
class EndTagIndex {
 public:
  explicit EndTagIndex(std::string_view text);

  // Whether "</" and `name`, which holds no blank, occur at or behind index `from`
  // of the text.
  bool Follows(std::string_view name, std::size_t from);

 private:
  std::size_t LastBegin(std::string_view name) const;
  std::size_t LastBeginByReading(std::string_view name);

  std::string_view text_;

  // What stands behind each "</", as far as a name could reach.
  std::vector<std::string_view> segments_;

  // Where the segments begin in the text, in the second half; each entry of the
  // first is the larger of the two at twice its own index.
  std::vector<std::size_t> latest_;

  // Where names with "</" in them begin for the last time, 0 for nowhere.
  std::map<std::string_view, std::size_t> by_reading_;
};

}  // namespace quill::markup
