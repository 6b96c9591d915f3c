// What stands around a page's text: the button that leads out and the row of the
// trail. One place for the viewer, which puts them there, and for the tools that
// must know beforehand what they cover.
#pragma once

#include <cstdint>

#include "app/mode_table.h"
#include "base/geometry.h"

namespace quill::render {

// The window's content, and the page's canvas, which fills it.
inline constexpr base::Rect kPageCanvas = {0, 0, 640, 480};

inline constexpr std::int32_t kLabelHeight = 24;  // of every button in use

// The pool's buttons as they are made. A page gives them other places.
inline constexpr base::Rect kLinkFrame = {53, 51, 541, 22};
inline constexpr base::Rect kTrailFrame = {23, 438, 342, 22};

// The button that leads out, as it is made; on a page its top is the row's.
inline constexpr base::Rect kExitFrame = {587, 432, 49, 25};

// The row at the foot of a page, in which the trail and the way out stand.
inline constexpr std::int32_t kRowLeft = 20;
inline constexpr std::int32_t kRowTop = 437;
inline constexpr std::int32_t kRowFontSize = 10;  // points

constexpr const char* ExitLabel(const app::Mode& mode) { return mode.opening ? "Exit" : "Back"; }

}  // namespace quill::render
