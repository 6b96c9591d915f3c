// What a window says (`Reading`), with the toolkit's text and widgets. One for the
// way of the keyboard, the screen reader's tree, copy and print, so that all of
// them read the same.
#pragma once

#include <QPointer>
#include <QString>
#include <functional>
#include <vector>

#include "host/qt/qt_canvas.h"
#include "host/reading.h"

namespace quill::host {

struct QtReading {
  struct Run {
    QString text;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    QPointer<CanvasWidget> link;
  };
  using Paragraph = std::vector<Run>;
  using Column = std::vector<Paragraph>;

  QString title;
  QString source;
  std::vector<Column> columns;
  std::vector<QPointer<CanvasWidget>> trail;
  QPointer<CanvasWidget> way_out;
  QPointer<CanvasWidget> back;
  QPointer<CanvasWidget> home;
  QPointer<CanvasWidget> left_by;

  // Whether the program has said anything.
  bool IsEmpty() const { return title.isEmpty() && columns.empty() && way_out.isNull(); }

  // All that can be pressed, in reading order.
  std::vector<CanvasWidget*> Pressables() const;

  // Title and text, paragraphs parted by line ends and columns by an empty line.
  QString PlainText() const;
};

// The words of a paragraph.
QString TextOf(const QtReading::Paragraph& paragraph);

// `widget_of` finds the widget of a canvas; null for null.
QtReading ToQtReading(const Reading& reading, const std::function<CanvasWidget*(const Canvas*)>& widget_of);

}  // namespace quill::host
