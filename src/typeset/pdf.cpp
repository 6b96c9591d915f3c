#include "typeset/pdf.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QHashSeed>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <cmath>

namespace quill::typeset {
namespace {

constexpr QLatin1String kSerif("DejaVu Serif");
constexpr QLatin1String kSans("DejaVu Sans");

// In points.
constexpr double kTextSize = 9.5;
constexpr double kFootSize = 8;

// In millimetres. The foot stands on the bottom margin.
constexpr double kMarginSide = 24;
constexpr double kMarginTop = 20;
constexpr double kMarginBottom = 14;
constexpr double kFootHeight = 10;

// Size in points, and the space above and below in 96ths of an inch.
struct HeadingStyle {
  double size;
  double above;
  double below;
};
constexpr HeadingStyle kTitleStyle = {20, 0, 8};
constexpr HeadingStyle kHeadingStyle = {11.5, 11, 3};
constexpr double kParagraphGap = 5;
constexpr double kTableGap = 3;
constexpr double kCellPadding = 5;  // so that a hand can write in an empty cell

// In percent.
constexpr double kLineHeight = 118;
constexpr double kQuestionWidth = 38;

QFont Face(QLatin1String family, double points) {
  QFont font(family);
  font.setPointSizeF(points);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

void StyleHeading(QTextCursor cursor, const HeadingStyle& style) {
  QTextBlockFormat block;
  block.setTopMargin(style.above);
  block.setBottomMargin(style.below);
  cursor.mergeBlockFormat(block);
  QTextCharFormat letters;
  letters.setFont(Face(kSans, style.size));
  letters.setFontWeight(QFont::Bold);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  cursor.setCharFormat(letters);
}

void StyleText(QTextCursor cursor) {
  const QTextList* const list = cursor.currentList();
  const bool is_inside_list = list != nullptr && list->itemNumber(cursor.block()) + 1 < list->count();
  const bool is_tight = is_inside_list || cursor.currentTable() != nullptr;
  QTextBlockFormat block;
  block.setLineHeight(kLineHeight, QTextBlockFormat::ProportionalHeight);
  block.setTopMargin(0);
  block.setBottomMargin(is_tight ? 1 : kParagraphGap);
  cursor.mergeBlockFormat(block);
}

void StyleBlock(const QTextBlock& block) {
  const int level = block.blockFormat().headingLevel();
  if (level == 0) return StyleText(QTextCursor(block));
  StyleHeading(QTextCursor(block), level == 1 ? kTitleStyle : kHeadingStyle);
}

// A table of two columns is a form: the answers get more room than the questions.
void StyleTable(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderCollapse(true);
  format.setBorder(1);
  format.setBorderBrush(Qt::gray);
  format.setCellPadding(kCellPadding);
  format.setCellSpacing(0);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  format.setTopMargin(kTableGap);
  format.setBottomMargin(kParagraphGap);
  if (table.columns() == 2) {
    format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, kQuestionWidth),
                                      QTextLength(QTextLength::PercentageLength, 100 - kQuestionWidth)});
  }
  table.setFormat(format);
}

void Style(QTextDocument& text) {
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) StyleBlock(block);
  for (QTextFrame* const frame : text.rootFrame()->childFrames()) {
    if (auto* const table = qobject_cast<QTextTable*>(frame)) StyleTable(*table);
  }
}

double BottomOf(const QTextBlock& block) {
  return block.document()->documentLayout()->blockBoundingRect(block).bottom();
}

// The last block before the next heading.
QTextBlock SectionEnd(QTextBlock block) {
  while (block.next().isValid() && block.next().blockFormat().headingLevel() == 0) block = block.next();
  return block;
}

// Begins a section on a new page where it would be torn in two, unless it is
// longer than a page.
void KeepSections(QTextDocument& text) {
  const double height = text.pageSize().height();
  for (QTextBlock block = text.begin(); block.isValid(); block = SectionEnd(block).next()) {
    const double top = text.documentLayout()->blockBoundingRect(block).top();
    const double bottom = BottomOf(SectionEnd(block));
    const bool is_torn = std::floor(top / height) != std::floor(bottom / height);
    if (!is_torn || bottom - top > height) continue;
    QTextBlockFormat format;
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).mergeBlockFormat(format);
    // The toolkit goes on from where the blocks behind stood before.
    text.markContentsDirty(0, text.characterCount());
  }
}

void DrawPage(QPainter& painter, const QTextDocument& text, int page) {
  const QSizeF size = text.pageSize();
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = QRectF(QPointF(0, page * size.height()), size);
  painter.save();
  painter.translate(0, -context.clip.top());
  painter.setClipRect(context.clip);
  text.documentLayout()->draw(&painter, context);
  painter.restore();
}

void DrawFoot(QPainter& painter, const QString& title, int page, const QRectF& foot) {
  painter.setFont(Face(kSans, kFootSize));
  painter.setPen(Qt::darkGray);
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, title);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, QString::number(page + 1));
}

void DrawPages(QPdfWriter& writer, QTextDocument& text, const QString& title) {
  const double foot_height = kFootHeight * writer.logicalDpiY() / 25.4;
  text.setPageSize(QSizeF(writer.width(), writer.height() - foot_height));
  KeepSections(text);
  QPainter painter(&writer);
  for (int page = 0; page < text.pageCount(); ++page) {
    if (page > 0) writer.newPage();
    DrawPage(painter, text, page);
    DrawFoot(painter, title, page, QRectF(0, text.pageSize().height(), writer.width(), foot_height));
  }
}

// Writes a day long past over the file's time of making, length for length, for
// the places in the file are counted in bytes.
void ForgetTheTime(QByteArray& pdf) {
  const QByteArray key = "/CreationDate (D:";
  const qsizetype at = pdf.indexOf(key);
  if (at >= 0) pdf.replace(at + key.size(), 14, "20000101000000");
}

// The toolkit writes fonts in the order of a table of its own, which is another
// in every run unless it is told.
QByteArray Pdf(const QString& markdown, const QString& title) {
  QHashSeed::setDeterministicGlobalSeed();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(title);
  writer.setCreator(QStringLiteral("Quillmere"));
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins(QMarginsF(kMarginSide, kMarginTop, kMarginSide, kMarginBottom),
                        QPageLayout::Millimeter);
  QTextDocument text;
  text.documentLayout()->setPaintDevice(&writer);
  text.setDocumentMargin(0);
  text.setDefaultFont(Face(kSerif, kTextSize));
  text.setMarkdown(markdown);
  Style(text);
  DrawPages(writer, text, title);
  ForgetTheTime(bytes);
  return bytes;
}

}  // namespace

bool WritePdf(const std::string& markdown, const std::string& title, const std::filesystem::path& path) {
  const QByteArray bytes = Pdf(QString::fromStdString(markdown), QString::fromStdString(title));
  QSaveFile file(QString::fromStdString(path.string()));
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

}  // namespace quill::typeset
