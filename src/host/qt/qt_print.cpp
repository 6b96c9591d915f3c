#include "host/qt/qt_print.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>

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

// A tab at the head of a paragraph, or of words, is an indent: a few blanks do.
QString Indented(QString text) { return text.replace(QLatin1Char('\t'), QStringLiteral("\u2003")); }

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
      cursor.insertBlock(spaced);
      for (const QtReading::Run& run : paragraph)
        cursor.insertText(Indented(run.text), FormatOf(run, points));
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
