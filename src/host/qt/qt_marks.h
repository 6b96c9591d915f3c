// Marks behind words: rectangles of a canvas whose ground turns to another colour,
// while the lighter letters in front of it stay as they are.
#pragma once

#include <QWidget>
#include <vector>

#include "base/geometry.h"
#include "host/qt/qt_scaled.h"

namespace quill::host {

// Covers its canvas with all that lies on it. The mouse goes through it.
class MarksWidget final : public QWidget, public ScaledWidget {
 public:
  MarksWidget(const QtLook& look, QWidget* canvas);

  void SetMarks(std::vector<base::Rect> marks);
  void Rescale() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<base::Rect> marks_;
};

}  // namespace quill::host
