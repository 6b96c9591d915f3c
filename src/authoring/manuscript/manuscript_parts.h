// The small spellings of a manuscript, each read by a function of its own: the
// head, the name behind a title, the target of a link, a style.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/manuscript/manuscript.h"
#include "authoring/manuscript/paragraph.h"

namespace quill::authoring {

// Reads a comment that stands before the first page, at `line`: a setting on each
// line, as in "Version: 1.2". Lines without a colon are the author's own.
void ReadHead(std::string_view comment, int line, Manuscript& manuscript);

// Parts `letters` into a title and, where there is one, the name in {#name} behind
// it. False if what stands there is no name.
bool SplitTitle(const std::vector<Letter>& letters, std::string& title, std::string& name);

// What a link's address stands for; none if it has none of the forms we know.
std::optional<Target> ReadTarget(std::string_view address);

// The link type of a style, 0 for plain words; none if no type has it.
std::optional<std::int32_t> StyleOf(bool italic, bool bold, bool underline);

// How many empty paragraphs a block of HTML asks for, a <br> each; 0 if there is
// anything else in it.
int CountBreaks(std::string_view html);

}  // namespace quill::authoring
