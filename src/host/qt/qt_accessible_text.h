// The tree that a screen reader walks in a window: the title as a heading, each
// paragraph as text with its links in it, the trail as a list, the way out. The
// links are the canvases themselves; all else stands for no widget.
#pragma once

#include <QAccessible>
#include <memory>
#include <vector>

#include "host/qt/qt_reading.h"

namespace quill::host {

class AccessibleReading {
 public:
  // Both must outlive this.
  AccessibleReading(QWidget& window, const QtReading& reading);
  ~AccessibleReading();
  AccessibleReading(const AccessibleReading&) = delete;
  AccessibleReading& operator=(const AccessibleReading&) = delete;

  // Children of the window, in reading order: their number, the one at an index
  // (null outside), and the index of one (-1 for a stranger).
  int Count() const { return static_cast<int>(nodes_.size()) + (way_out_ ? 1 : 0); }
  QAccessibleInterface* Child(int index) const;
  int IndexOf(const QAccessibleInterface* child) const;

  // What a canvas lies in: a paragraph, the trail, null for the window itself.
  QAccessibleInterface* ParentOf(const CanvasWidget& canvas) const;

 private:
  void Add(QAccessibleInterface* node, std::vector<CanvasWidget*> links);

  struct Node {
    QAccessible::Id id;
    std::vector<CanvasWidget*> links;
  };
  std::vector<Node> nodes_;
  QPointer<CanvasWidget> way_out_;
};

}  // namespace quill::host
