// How a window shows what was drawn: at what scale, and in which colours. One for
// each window; everything in it looks here when it is placed or painted.
#pragma once

#include "base/geometry.h"

namespace quill::host {

struct QtLook {
  double scale = 1;            // of the program's pixels to the toolkit's
  double text_scale = 1;       // of the letters of an edit field, whose window keeps its size
  bool high_contrast = false;  // flat black grounds, light letters

  friend bool operator==(const QtLook&, const QtLook&) = default;
};

// The colour in which letters and lines are drawn that were meant to be `color`.
// In high contrast it is lightened towards white until it stands out from black
// by 7:1 at least, the ratio of WCAG 2.1, success criterion 1.4.6.
base::Color InkFor(const QtLook& look, base::Color color);

// The same for an area that is filled: black in high contrast.
base::Color GroundFor(const QtLook& look, base::Color color);

// The contrast of two colours by WCAG 2.1, from 1 to 21.
double ContrastOf(base::Color a, base::Color b);

}  // namespace quill::host
