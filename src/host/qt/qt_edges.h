// Keeps a widget's distances from the four edges of its parent, as the parent's size
// changes.
#pragma once

#include <QMargins>
#include <QObject>

#include "base/geometry.h"

class QWidget;

namespace quill::host {

class EdgeKeeper final : public QObject {
 public:
  // Puts `widget` there in its parent as it is now. One widget for each keeper, which it
  // holds.
  void Place(QWidget& widget, const base::Rect& frame);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* widget_ = nullptr;
  QMargins margins_;
};

}  // namespace quill::host
