// Which presses of the mouse count. The second press of a double click, and all
// that follow without a pause, belong to the first: what lies under them by then
// was not meant.
#pragma once

#include <QPoint>
#include <cstdint>

class QMouseEvent;

namespace quill::host {

class ClickGuard {
 public:
  // Whether a press is one, or goes on with the one before: the same button, near
  // the same place on the screen, within the desktop's double-click time. Every
  // press is to be told, once.
  bool IsFirst(const QMouseEvent& press);

 private:
  std::int64_t last_time_ = -1000000;  // milliseconds; at first long ago
  QPoint last_place_;
  int last_button_ = 0;
};

// The one of the desktop.
ClickGuard& Clicks();

}  // namespace quill::host
