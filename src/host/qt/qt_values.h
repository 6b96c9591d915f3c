// The values that cross the seam, as the toolkit has them.
#pragma once

#include <QColor>
#include <QRect>

#include "base/geometry.h"

namespace quill::host {

QColor ToQColor(base::Color color);

// `frame` brought into the range in which the toolkit can place a widget. What
// it cuts off lies far outside every window.
QRect ToQRect(const base::Rect& frame);

}  // namespace quill::host
