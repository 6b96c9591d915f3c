// The small spellings of a manuscript, each read by a function of its own: the
// head, the name behind a title, the target of a link, a style, empty paragraphs, the
// terms of a page and the places where the index lists them.
// None of them knows what came before; `ManuscriptBuilder` puts them together.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/manuscript/manuscript.h"
#include "authoring/manuscript/paragraph.h"
#include "authoring/manuscript/term_index.h"

namespace quill::authoring {

// Reads a comment that stands before the first page and begins at `line`: a setting
// on each line, as in "Version: 1.2". Lines without a colon are the author's own.
// What it can't read goes to the manuscript's diagnostics.
void ReadHead(std::string_view comment, int line, Manuscript& manuscript);

// Parts the `letters` of a heading into the page's title and, where there is one,
// the name in {#name} behind it. False if what stands there is no name; `name` then
// stays as it was.
bool SplitTitle(const std::vector<Letter>& letters, std::string& title, std::string& name);

// What a link's address stands for; none if it has none of the spellings there are.
// Whether anything bears the name is for the press to find out.
std::optional<Target> ReadTarget(std::string_view address);

// Those spellings, for a message: "#name, glossary:name, ..., or bio:name".
std::string TargetSpellings();

// The link type under which a content file keeps a style, 0 for plain words; none
// if no type has it.
std::optional<std::int32_t> StyleOf(bool italic, bool bold, bool underline);

// How many empty paragraphs a block of HTML asks for, a <br> each; 0 if there is
// anything else in it.
int CountBreaks(std::string_view html);

// The terms in a comment on a page, which begins at `line`: what stands behind "Index:",
// parted by semicolons, on any of its lines. All else in a comment is the author's
// own. Their pages are left empty. A term that can't be shown goes to `diagnostics`.
std::vector<Term> ReadTerms(std::string_view comment, int line, Diagnostics& diagnostics);

// Whether a paragraph is meant to be a place of the index, and for which initials: A to
// F in {index:A-F}; none if that can't be read.
bool IsIndexPlace(const std::vector<Letter>& letters);
std::optional<Initials> InitialsOf(const std::vector<Letter>& letters);

}  // namespace quill::authoring
