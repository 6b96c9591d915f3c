#include "nav/history.h"

#include "base/text.h"

namespace quill::nav {

void History::ResetHistory(const std::string& page) {
  bool cut = false;
  while (!cut && !pages_.empty()) {
    cut = base::EqualText(pages_.back(), page);
    pages_.pop_back();
  }
}

std::vector<TrailButton> History::Row() const {
  if (pages_.empty()) return {};
  std::vector<TrailButton> row = {{0, 0, ""}};
  const std::size_t shown = pages_.size() - 1;  // the step of the page on show
  if (shown < 4) {
    for (std::size_t step = 1; step < shown; ++step) row.push_back({step, step, "> "});
    return row;
  }
  const bool beyond = shown - 1 >= kBackButtons;
  row.push_back({beyond ? kBackButtons - 2 : shown - 2, shown - 2, "...> "});
  row.push_back({beyond ? kBackButtons - 1 : shown - 1, shown - 1, "> "});
  return row;
}

}  // namespace quill::nav
