#include "host/qt/qt_print.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <utility>
#include <vector>

#include "host/qt/qt_reading.h"

namespace quill::host {
namespace {

constexpr double kMargin = 20;  // millimetres
constexpr double kLargestPrint = 11;
constexpr double kSmallestPrint = 5;
constexpr double kSizeStep = 0.5;

QTextCharFormat FormatOf(const QtReading::Run& run, double points) {
  QTextCharFormat format;
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSizeF(points);
  font.setBold(run.bold);
  font.setItalic(run.italic);
  font.setUnderline(run.underline || run.link);
  format.setFont(font);
  return format;
}

// What parts words from an indent: tabs and the blanks among them.
bool IsGap(QChar c) { return c == QLatin1Char('\t') || c == QLatin1Char(' '); }

// A paragraph as a page indents it: each tab leads to the next stop from the left,
// wherever the pen is, and later lines begin at the last stop. Tabs that follow each
// other become one, which leads to a stop of its own.
class IndentedParagraph {
 public:
  IndentedParagraph(const QtReading::Paragraph& paragraph, double points) : points_(points) {
    for (const QtReading::Run& run : paragraph) Take(run);
  }

  QTextBlockFormat BlockFormat(QTextBlockFormat format) const {
    if (stops_.isEmpty()) return format;
    format.setTabPositions(stops_);
    format.setLeftMargin(stops_.back().position);
    format.setTextIndent(-stops_.back().position);
    return format;
  }

  void Insert(QTextCursor& cursor) const {
    for (const auto& [text, format] : pieces_) cursor.insertText(text, format);
  }

 private:
  // The gap before the words of a link is none of its words.
  void Take(const QtReading::Run& run) {
    qsizetype begin = 0;
    for (qsizetype at = run.text.indexOf(QLatin1Char('\t')); at >= 0;
         at = run.text.indexOf(QLatin1Char('\t'), begin)) {
      pieces_.emplace_back(run.text.mid(begin, at - begin), FormatOf(run, points_));
      begin = at;
      for (; begin < run.text.size() && IsGap(run.text[begin]); ++begin)
        tabs_ += run.text[begin] == QLatin1Char('\t') ? 1 : 0;
      AddStop();
    }
    pieces_.emplace_back(run.text.mid(begin), FormatOf(run, points_));
  }

  // The stops of a page are 25 pixels apart, where its letters have 12.
  void AddStop() {
    constexpr double kStopPerPoint = 25.0 / 12 * 96 / 72;
    pieces_.emplace_back(QStringLiteral("\t"), FormatOf({}, points_));
    stops_.append(QTextOption::Tab(tabs_ * kStopPerPoint * points_, QTextOption::LeftTab));
  }

  double points_;
  int tabs_ = 0;
  QList<QTextOption::Tab> stops_;
  std::vector<std::pair<QString, QTextCharFormat>> pieces_;
};

void Typeset(const QtReading& reading, double points, QTextDocument& document) {
  document.setDocumentMargin(0);
  QTextCursor cursor(&document);
  QTextBlockFormat spaced;
  spaced.setBottomMargin(points * 0.6);
  cursor.setBlockFormat(spaced);
  cursor.insertText(reading.title, FormatOf({{}, true, false, false, {}}, points * 1.4));
  for (const QtReading::Column& column : reading.columns) {
    for (const QtReading::Paragraph& paragraph : column) {
      if (TextOf(paragraph).trimmed().isEmpty()) continue;
      const IndentedParagraph indented(paragraph, points);
      cursor.insertBlock(indented.BlockFormat(spaced));
      indented.Insert(cursor);
    }
  }
}

// The largest size in which the text fits, and the text in it.
void FitInto(const QSizeF& room, QPaintDevice& device, const QtReading& reading, QTextDocument& document) {
  document.documentLayout()->setPaintDevice(&device);
  for (double points = kLargestPrint; points >= kSmallestPrint; points -= kSizeStep) {
    document.clear();
    Typeset(reading, points, document);
    document.setTextWidth(room.width());
    if (document.size().height() <= room.height()) return;
  }
}

}  // namespace

void PrintOn(QPagedPaintDevice& device, const QtReading& reading) {
  device.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
  QPainter painter(&device);
  const QRectF page(QPointF(0, 0), painter.viewport().size());
  painter.setFont(FormatOf({}, 8).font());
  const double foot = painter.fontMetrics().height() * 2.0;
  QTextDocument document;
  FitInto(QSizeF(page.width(), page.height() - foot), device, reading, document);
  document.drawContents(&painter, QRectF(page.topLeft(), QSizeF(page.width(), page.height() - foot)));
  painter.setPen(Qt::black);
  painter.drawText(page, Qt::AlignHCenter | Qt::AlignBottom, reading.source);
}

void PrintWithDialog(QWidget& owner, const QtReading& reading) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(reading.title);
  QPrintDialog dialog(&printer, &owner);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() == QDialog::Accepted) PrintOn(printer, reading);
}

}  // namespace quill::host
