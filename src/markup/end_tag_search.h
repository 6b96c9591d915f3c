// Whether end tags follow somewhere behind their start tags: any number of such
// questions about one text, answered together in one pass over it.
//
// A question is a plain search that knows nothing of nesting: does "</" with a
// given name occur at or behind a place, in whatever case of letters? Asked one
// by one, each could read the text to its end.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quill::markup {

class EndTagSearch {
 public:
  // Asks for "</" and `name` at or behind index `from` of the text. `name` must
  // live until the last call of `AllFollow`.
  void Require(std::string_view name, std::size_t from) { required_.push_back({name, from}); }

  // Whether all that was asked for occurs in `text`.
  bool AllFollow(std::string_view text) const;

 private:
  struct Requirement {
    std::string_view name;
    std::size_t from;
  };

  std::vector<Requirement> required_;
};

}  // namespace quill::markup
