// The trail of pages followed in a mode, and the row of buttons that leads back
// along it.
//
// An entry is a page number as it was asked for, the oldest first; a page that
// is visited twice stands in it twice. The last entry is the page on show.
#pragma once

#include <string>
#include <vector>

namespace quill::nav {

// History buttons in the viewer's pool.
inline constexpr std::size_t kBackButtons = 20;

// One button of the row.
struct TrailButton {
  std::size_t pool;    // which button of the pool, below `kBackButtons`
  std::size_t entry;   // which entry of the trail it leads to
  std::string prefix;  // what its label has before the page's title

  friend bool operator==(const TrailButton&, const TrailButton&) = default;
};

class History {
 public:
  void Append(const std::string& page) { pages_.push_back(page); }
  void Clear() { pages_.clear(); }

  // Cuts the trail back: everything behind the last entry equal to `page`, and
  // that entry too. Empties it if no entry is.
  void ResetHistory(const std::string& page);

  // The row, from left to right: the first entry, then those before the last.
  // It has never more than three buttons; where entries are left out between,
  // the second says so. Empty for an empty trail.
  //
  // An entry and its button have the same number, but an entry beyond the pool
  // takes one of the pool's last two places.
  std::vector<TrailButton> Row() const;

  const std::vector<std::string>& Pages() const { return pages_; }

 private:
  std::vector<std::string> pages_;
};

}  // namespace quill::nav
