// The types of link: what the number in a content file stands for. Everything
// that depends on a type looks it up here; what pushing one opens is
// `app::DestinationOf`, its colours are the button's.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace quill::content {

namespace link_type {
inline constexpr std::int32_t kPage = 0;
inline constexpr std::int32_t kGlossary = 1;
inline constexpr std::int32_t kPlain = 2;
inline constexpr std::int32_t kFirstStyle = 3;  // of the styled runs
inline constexpr std::int32_t kLastStyle = 8;
inline constexpr std::int32_t kDocument = 9;
inline constexpr std::int32_t kTrail = 99;  // the program's own buttons; in no file
}  // namespace link_type

struct LinkType {
  std::int32_t type;
  bool italic;
  bool bold;
  bool underline;
  std::string_view word;  // for authors
};

// In the order of their numbers; the flags are those of a styled run.
inline constexpr std::array kLinkTypes = {
    LinkType{link_type::kPage, false, false, false, "page"},
    LinkType{link_type::kGlossary, false, false, false, "glossary"},
    LinkType{link_type::kPlain, false, false, false, "plain"},
    LinkType{3, true, false, false, "italic"},
    LinkType{4, false, true, false, "bold"},
    LinkType{5, true, true, false, "bold italic"},
    LinkType{6, false, false, true, "underlined"},
    LinkType{7, true, false, true, "underlined italic"},
    LinkType{8, false, true, true, "underlined bold"},
    LinkType{link_type::kDocument, false, false, false, "document"},
};

// Whether a link of that type is a run of styled words in the flow. Every other
// link is a button.
constexpr bool IsStyledRun(std::int32_t type) {
  return type >= link_type::kFirstStyle && type <= link_type::kLastStyle;
}

// Returns the row of a type; null if no file may hold it.
constexpr const LinkType* FindLinkType(std::int32_t type) {
  const auto* const found = std::find_if(kLinkTypes.begin(), kLinkTypes.end(),
                                         [type](const LinkType& row) { return row.type == type; });
  return found == kLinkTypes.end() ? nullptr : &*found;
}

}  // namespace quill::content
