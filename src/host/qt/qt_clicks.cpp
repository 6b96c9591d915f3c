#include "host/qt/qt_clicks.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <chrono>
#include <utility>

namespace quill::host {
namespace {

// When the mouse was pressed, not when the program came to hear of it; a press
// that was made without a mouse has no time of its own.
std::int64_t TimeOf(const QMouseEvent& press) {
  if (press.timestamp() > 0) return static_cast<std::int64_t>(press.timestamp());
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

bool ClickGuard::IsFirst(const QMouseEvent& press) {
  const std::int64_t now = TimeOf(press);
  const QPoint place = press.globalPosition().toPoint();
  const std::int64_t pause = now - std::exchange(last_time_, now);
  const int distance = (place - std::exchange(last_place_, place)).manhattanLength();
  const int button = static_cast<int>(press.button());
  const bool same_button = std::exchange(last_button_, button) == button;
  const QStyleHints& habits = *QGuiApplication::styleHints();
  const bool goes_on = same_button && pause >= 0 && pause < habits.mouseDoubleClickInterval() &&
                       distance <= habits.mouseDoubleClickDistance();
  return !goes_on;
}

ClickGuard& Clicks() {
  static ClickGuard guard;
  return guard;
}

}  // namespace quill::host
