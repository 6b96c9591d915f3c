#include "render/entry_layout.h"

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "host/memory/memory_graphics.h"

namespace quill::render {
namespace {

// Every character is 10 wide and a line 15 high; the text may run from 10 to
// 110, so that a line holds 10 characters with their blanks.
std::string LayOut(const std::string& text) {
  host::FixedMetrics metrics;
  std::string dump;
  for (const EntryWord& word : LayOutEntry(text, {10, 30, 110}, {}, metrics)) {
    dump += word.text + " " + base::Str(word.x) + "," + base::Str(word.y) + "\n";
  }
  return dump;
}

TEST(EntryLayoutTest, PlacesWords) {
  struct Case {
    std::string story, text, expected;
  };
  for (const Case& row : {
           Case{"an empty entry", "", ""},
           Case{"words stand a blank apart, after a sentence too", "a. b", "a. 10,45\nb 40,45\n"},
           Case{"two blanks leave a gap as wide as the word before", "abc  d", "abc 10,45\nd 90,45\n"},
           Case{"leading blanks take the last width, at first none", " a\n b", "a 10,45\nb 30,75\n"},
           Case{"a line holds what ends at the margin, blank included", "abcd efgh i",
                "abcd 10,45\nefgh 60,45\ni 10,67\n"},
           Case{"a word too wide moves to a new line once", "abcdefghijkl m",
                "abcdefghijkl 10,67\nm 10,89\n"},
           Case{"a tab is a character like any other", "\ta", "\ta 10,45\n"},
           Case{"an empty paragraph moves the pen by two lines", "a\n\nb", "a 10,45\nb 10,105\n"},
       }) {
    EXPECT_EQ(LayOut(row.text), row.expected) << row.story;
  }
}

}  // namespace
}  // namespace quill::render
