#include "host/qt/qt_marks.h"

#include <QPainter>
#include <utility>

#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

// Against white letters 6.7:1, by WCAG 2.1.
constexpr base::Color kMark = base::RGB(122, 84, 0);

}  // namespace

MarksWidget::MarksWidget(const QtLook& look, QWidget* canvas) : QWidget(canvas), ScaledWidget(look) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void MarksWidget::SetMarks(std::vector<base::Rect> marks) {
  marks_ = std::move(marks);
  setVisible(!marks_.empty());
  Rescale();
  raise();
  update();
}

void MarksWidget::Rescale() { setGeometry(parentWidget()->rect()); }

// Of each part of a colour the lighter one stays. Grounds are darker than the mark, and
// letters lighter, so that it seems to lie behind them.
void MarksWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setCompositionMode(QPainter::CompositionMode_Lighten);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(kMark));
  for (const base::Rect& mark : marks_) {
    const QRectF exact(mark.left * Look().scale, mark.top * Look().scale, mark.width * Look().scale,
                       mark.height * Look().scale);
    painter.drawRoundedRect(exact, 3, 3);
  }
}

}  // namespace quill::host
