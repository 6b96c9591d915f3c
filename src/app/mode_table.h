// The modes: a small integer selects one pair of content files, one look, and
// what links do there. All that sets one mode apart from another is a field of
// its row; code that needs to know asks the row and never for a number. A new
// area is a new row.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "base/geometry.h"
#include "content/bundle.h"

namespace quill::app {

// The pictures that belong to the program; the values are their resource ids.
enum class PictureId : std::int32_t { kStage = 168, kBlack, kTv, kBoard, kGreen, kQmr };

// Creator codes of the applications that open documents.
inline constexpr const char* kFileManager = "MACS";
inline constexpr const char* kCompanion = "QLD7";

struct Mode {
  std::string_view area;
  std::string_view content_file;
  std::string_view glossary_file;

  // The page on which the mode opens; without one it opens on the page that the
  // link into it chose.
  std::optional<std::int32_t> first_page;

  PictureId page_picture;
  PictureId glossary_picture = PictureId::kBlack;

  // Where the title moves when a page of the mode is drawn. Without a value it
  // stays where the mode before left it.
  std::optional<std::int32_t> title_top = std::nullopt;

  base::Color button_background = base::kBlack;
  bool green_buttons = false;  // the picture `green` lies under the button's ground

  // The mode is the way into the others: its links choose a mode, whatever their
  // type, it keeps no trail, and its last button ends the program.
  bool opening = false;

  // A link of the opening mode to this number plus n leads to page n of the mode.
  std::optional<std::int32_t> targets_from = std::nullopt;

  bool has_notes = false;  // a page link to "0" opens the notes pad

  content::DocumentPlace documents = content::DocumentPlace::kBesideBundle;

  // The page, by the text that asks for it, whose short lines are set closer;
  // empty for none.
  std::string_view close_set_page = {};
};

using Modes = std::span<const Mode>;

inline constexpr std::array kModes = {
    Mode{.area = "init",
         .content_file = "initQMR.xml",
         .glossary_file = "initglossary.xml",
         .first_page = 0,
         .page_picture = PictureId::kQmr,
         .title_top = 4,
         .button_background = base::RGB(127, 171, 146),
         .opening = true},
    Mode{.area = "Screen",
         .content_file = "ScreenQMR.xml",
         .glossary_file = "ScreenGlossary.xml",
         .first_page = 1,
         .page_picture = PictureId::kBoard,
         .glossary_picture = PictureId::kGreen,
         .title_top = 14,
         .button_background = base::RGB(70, 70, 70),
         .green_buttons = true,
         .has_notes = true,
         .close_set_page = "191"},
    Mode{.area = "Stage",
         .content_file = "StageQMR.xml",
         .glossary_file = "StageGlossary.xml",
         .first_page = 1,
         .page_picture = PictureId::kStage,
         .title_top = 4},
    Mode{.area = "TV",
         .content_file = "TVQMR.xml",
         .glossary_file = "TVGlossary.xml",
         .first_page = 1,
         .page_picture = PictureId::kTv},
    Mode{.area = "WGA",
         .content_file = "wgaqmr.xml",
         .glossary_file = "wgaGlossary.xml",
         .first_page = 1,
         .page_picture = PictureId::kBlack,
         .documents = content::DocumentPlace::kInBundle},
    Mode{.area = "Bio",
         .content_file = "BioQMR.xml",
         .glossary_file = "BioGlossary.xml",
         .first_page = std::nullopt,
         .page_picture = PictureId::kBlack,
         .targets_from = 100},
};

// The mode in which the program comes up.
inline constexpr std::int32_t kOpeningMode = 0;

constexpr bool IsMode(Modes modes, std::int32_t mode) {
  return mode >= 0 && mode < static_cast<std::int32_t>(modes.size());
}

// Returns the mode whose pages the opening page names one by one (`targets_from`),
// -1 if there is none.
constexpr std::int32_t ModeNamedByPage(Modes modes) {
  for (std::size_t mode = 0; mode < modes.size(); ++mode) {
    if (modes[mode].targets_from) return static_cast<std::int32_t>(mode);
  }
  return -1;
}

// Whether a link of the opening page chooses the mode by its number alone.
constexpr bool IsChosenByNumber(Modes modes, std::int32_t mode) {
  if (!IsMode(modes, mode)) return false;
  const Mode& row = modes[static_cast<std::size_t>(mode)];
  return !row.opening && !row.targets_from;
}

}  // namespace quill::app
