// What a list of things found shows of each, for a desktop to draw.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quill::host {

// Text is UTF-8.
struct FoundRow {
  std::string title = {};
  std::string place = {};  // where it was found, in few words
  std::string line = {};   // the line around it

  // The words in it that were asked for: characters from and up to, counted from 0.
  std::vector<std::pair<std::size_t, std::size_t>> marked = {};

  bool can_be_chosen = true;  // else it only says something
};

}  // namespace quill::host
