// The trail of pages followed in a mode, and the row of buttons that leads back
// along it.
//
// A step of it is a page number as it was asked for, the oldest first; a page that
// is visited twice stands in it twice. The last step is the page on show.
#pragma once

#include <string>
#include <vector>

namespace quill::nav {

// History buttons in the viewer's pool.
inline constexpr std::size_t kBackButtons = 20;

// One button of the row.
struct TrailButton {
  std::size_t pool;    // index of the button in the pool, below `kBackButtons`
  std::size_t step;    // index in the trail of the step that it leads to
  std::string prefix;  // what its label has before the page's title

  friend bool operator==(const TrailButton&, const TrailButton&) = default;
};

class History {
 public:
  // Cuts the trail back: everything behind the last step equal to `page`, and that
  // step too. Empties it if no step is.
  void ResetHistory(const std::string& page);

  // Ours, not the domain's:
  void Append(const std::string& page) { pages_.push_back(page); }
  void Clear() { pages_.clear(); }

  // Returns the row, from left to right: the first step, then those before the
  // last. It has never more than three buttons; where steps are left out between,
  // the second says so. Empty for an empty trail.
  //
  // A step and its button have the same index, but a step beyond the pool takes
  // one of the pool's last two places.
  std::vector<TrailButton> Row() const;

  const std::vector<std::string>& Pages() const { return pages_; }

 private:
  std::vector<std::string> pages_;
};

}  // namespace quill::nav
