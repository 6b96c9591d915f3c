// The modes: a small integer selects one pair of content files and one look.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "host/geometry.h"

namespace quill::app {

// The pictures that belong to the program; the values are their resource ids.
enum class PictureId : std::int32_t { kStage = 168, kBlack, kTv, kBoard, kGreen, kQmr };

struct Mode {
  std::string_view area;
  std::string_view content_file;
  std::string_view glossary_file;
  // The page on which the mode opens; without one it opens on the page that the
  // link into it chose.
  std::optional<std::int32_t> first_page;
  PictureId page_picture;
  PictureId glossary_picture;
  // Where the title moves when a page of the mode is drawn. Without a value it
  // stays where the mode before left it.
  std::optional<std::int32_t> title_top;
  host::Color button_background;
  bool green_buttons;  // the picture `green` lies under the button's ground
};

inline constexpr std::array<Mode, 6> kModes = {{
    {"init", "initQMR.xml", "initglossary.xml", 0, PictureId::kQmr, PictureId::kBlack, 4,
     host::RGB(127, 171, 146), false},
    {"Screen", "ScreenQMR.xml", "ScreenGlossary.xml", 1, PictureId::kBoard, PictureId::kGreen, 14,
     host::RGB(70, 70, 70), true},
    {"Stage", "StageQMR.xml", "StageGlossary.xml", 1, PictureId::kStage, PictureId::kBlack, 4, host::kBlack,
     false},
    {"TV", "TVQMR.xml", "TVGlossary.xml", 1, PictureId::kTv, PictureId::kBlack, std::nullopt, host::kBlack,
     false},
    {"WGA", "wgaqmr.xml", "wgaGlossary.xml", 1, PictureId::kBlack, PictureId::kBlack, std::nullopt,
     host::kBlack, false},
    {"Bio", "BioQMR.xml", "BioGlossary.xml", std::nullopt, PictureId::kBlack, PictureId::kBlack, std::nullopt,
     host::kBlack, false},
}};

// The opening page, the one mode whose links are ways into the others.
inline constexpr std::int32_t kOpeningMode = 0;
inline constexpr std::int32_t kScreenMode = 1;
inline constexpr std::int32_t kWgaMode = 4;
inline constexpr std::int32_t kBioMode = 5;

// A link of the opening page to 100 + n leads to page n of Bio.
inline constexpr std::int32_t kBioPages = 100;

constexpr bool IsMode(std::int32_t mode) {
  return mode >= 0 && mode < static_cast<std::int32_t>(kModes.size());
}

}  // namespace quill::app
