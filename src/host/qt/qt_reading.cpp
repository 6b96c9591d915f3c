#include "host/qt/qt_reading.h"

#include "base/text_converter.h"
#include "host/qt/qt_text.h"

namespace quill::host {
namespace {

// Text of a page with its tabs, which are its indents.
QString WithTabs(const std::string& text) { return QString::fromStdU16String(base::MacRomanToUtf16(text)); }

void AddPressable(const QPointer<CanvasWidget>& widget, std::vector<CanvasWidget*>& pressables) {
  if (widget && widget->IsPressable()) pressables.push_back(widget);
}

}  // namespace

std::vector<CanvasWidget*> QtReading::Pressables() const {
  std::vector<CanvasWidget*> pressables;
  for (const Column& column : columns) {
    for (const Paragraph& paragraph : column) {
      for (const Run& run : paragraph) AddPressable(run.link, pressables);
    }
  }
  for (const auto& step : trail) AddPressable(step, pressables);
  AddPressable(way_out, pressables);
  return pressables;
}

QString TextOf(const QtReading::Paragraph& paragraph) {
  QString text;
  for (const QtReading::Run& run : paragraph) text += run.text;
  return text;
}

QString QtReading::PlainText() const {
  QString text = title + QLatin1String("\n");
  for (const Column& column : columns) {
    text += QLatin1Char('\n');
    for (const Paragraph& paragraph : column) text += TextOf(paragraph) + QLatin1Char('\n');
  }
  return text;
}

QtReading ToQtReading(const Reading& reading, const std::function<CanvasWidget*(const Canvas*)>& widget_of) {
  QtReading converted;
  converted.title = LineOfText(reading.title);
  converted.source = LineOfText(reading.source);
  for (const Reading::Column& column : reading.columns) {
    QtReading::Column& paragraphs = converted.columns.emplace_back();
    for (const Reading::Paragraph& paragraph : column) {
      QtReading::Paragraph& runs = paragraphs.emplace_back();
      for (const Reading::Run& run : paragraph)
        runs.push_back({WithTabs(run.text), run.bold, run.italic, run.underline, widget_of(run.link)});
    }
  }
  for (const Canvas* step : reading.trail) converted.trail.emplace_back(widget_of(step));
  converted.way_out = widget_of(reading.way_out);
  converted.back = widget_of(reading.back);
  converted.home = widget_of(reading.home);
  converted.left_by = widget_of(reading.left_by);
  return converted;
}

}  // namespace quill::host
