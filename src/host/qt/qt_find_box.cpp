#include "host/qt/qt_find_box.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "host/controls.h"
#include "host/qt/qt_edges.h"
#include "host/qt/qt_peer.h"
#include "host/qt/qt_scaled.h"

namespace quill::host {
namespace {

constexpr int kMostLetters = 1000;  // in the field
constexpr int kRowMargin = 5;       // around what a row says, pixels
constexpr int kLines = 2;           // of the line around the words
constexpr int kPlaceRole = Qt::UserRole;
constexpr int kLineRole = Qt::UserRole + 1;
constexpr int kMarkedRole = Qt::UserRole + 2;

using Formats = QList<QTextLayout::FormatRange>;

Formats FormatsOf(const FoundRow& row) {
  Formats formats;
  for (const auto& [begin, end] : row.marked) {
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(begin);
    range.length = static_cast<int>(end - begin);
    range.format.setFontWeight(QFont::Bold);
    range.format.setFontUnderline(true);
    formats.append(range);
  }
  return formats;
}

// A row: title and place in one line, below it the line around the words in two.
class RowPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int lines = index.data(kLineRole).toString().isEmpty() ? 1 : 1 + kLines;
    return {0, lines * option.fontMetrics.lineSpacing() + 2 * kRowMargin};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    if (selected) painter->fillRect(option.rect, option.palette.highlight());
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const QRect room = option.rect.adjusted(kRowMargin, kRowMargin, -kRowMargin, -kRowMargin);
    PaintHead(*painter, option.font, room, index);
    PaintLines(*painter, option.font, room.adjusted(0, option.fontMetrics.lineSpacing(), 0, 0), index);
  }

 private:
  static void PaintHead(QPainter& painter, QFont font, const QRect& room, const QModelIndex& index) {
    const QString place = index.data(kPlaceRole).toString();
    painter.setFont(font);
    painter.drawText(room, Qt::AlignRight | Qt::AlignTop | Qt::TextSingleLine, place);
    const int left = room.width() - painter.fontMetrics().horizontalAdvance(place) - 2 * kRowMargin;
    font.setBold(true);
    painter.setFont(font);
    const QString title = index.data(Qt::DisplayRole).toString();
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(title, Qt::ElideRight, left));
  }

  static void PaintLines(QPainter& painter, const QFont& font, const QRect& room, const QModelIndex& index) {
    QTextLayout layout(index.data(kLineRole).toString(), font);
    layout.setFormats(index.data(kMarkedRole).value<Formats>());
    layout.beginLayout();
    double top = 0;
    for (int i = 0; i < kLines; ++i) {
      QTextLine line = layout.createLine();
      if (!line.isValid()) break;
      line.setLineWidth(room.width());
      line.setPosition({0, top});
      top += line.height();
    }
    layout.endLayout();
    layout.draw(&painter, room.topLeft());
  }
};

class FindBoxWidget final : public QWidget, public ScaledWidget {
 public:
  FindBoxWidget(FindBox& box, const QFont& font, const QtLook& look, QWidget* parent)
      : QWidget(parent),
        ScaledWidget(look),
        box_(box),
        font_(font),
        field_(new QLineEdit(this)),
        list_(new QListWidget(this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(field_);
    column->addWidget(list_);
    field_->setMaxLength(kMostLetters);
    field_->setAccessibleName(QStringLiteral("Words to find"));
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    list_->setItemDelegate(new RowPainter(list_));
    list_->setFocusPolicy(Qt::NoFocus);  // the keys work from the field
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusProxy(field_);
    connect(field_, &QLineEdit::textEdited, this,
            [this](const QString& words) { box_.Typed(words.toStdString()); });
    connect(list_, &QListWidget::itemClicked, this, [this] { Choose(); });
    Rescale();
    field_->setFocus();
  }

  void Place(const base::Rect& frame) { edges_.Place(*this, frame); }

  void Rescale() override {
    QFont scaled = font_;
    scaled.setPixelSize(std::max(1, static_cast<int>(std::lround(font_.pixelSize() * Look().text_scale))));
    setFont(scaled);
    field_->setFont(scaled);
    list_->setFont(scaled);
    list_->doItemsLayout();
  }

  void SetWords(const std::string& words) {
    field_->setText(QString::fromStdString(words));
    field_->selectAll();
  }

  void SetFound(const std::vector<FoundRow>& rows, const std::string& summary) {
    list_->clear();
    for (const FoundRow& row : rows) Add(row);
    for (int i = 0; i < list_->count() && list_->currentRow() < 0; ++i) {
      if ((list_->item(i)->flags() & Qt::ItemIsSelectable) != 0) list_->setCurrentRow(i);
    }
    Tell(QString::fromStdString(summary));
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != field_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Down:
      case Qt::Key_Up:
      case Qt::Key_PageDown:
      case Qt::Key_PageUp:
        QCoreApplication::sendEvent(list_, event);
        TellRow();
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
        Choose();
        return true;
      default:
        return QWidget::eventFilter(watched, event);
    }
  }

 private:
  void Add(const FoundRow& row) {
    auto* const item = new QListWidgetItem(QString::fromStdString(row.title), list_);
    const QString place = QString::fromStdString(row.place);
    const QString line = QString::fromStdString(row.line);
    item->setData(kPlaceRole, place);
    item->setData(kLineRole, line);
    item->setData(kMarkedRole, QVariant::fromValue(FormatsOf(row)));
    item->setData(Qt::AccessibleTextRole,
                  QStringList({item->text(), place, line}).join(QStringLiteral(", ")));
    item->setToolTip(line.isEmpty() ? QString() : line);
    if (!row.can_be_chosen) item->setFlags(Qt::NoItemFlags);
  }

  void Choose() {
    const int row = list_->currentRow();
    if (row >= 0 && (list_->item(row)->flags() & Qt::ItemIsSelectable) != 0)
      box_.Chosen(static_cast<std::size_t>(row));
  }

  // The focus stays in the field, so that the list speaks through it.
  void Tell(const QString& words) {
    list_->setAccessibleName(words);
    field_->setAccessibleDescription(words);
    if (!QAccessible::isActive()) return;
    QAccessibleEvent changed(field_, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
  }

  void TellRow() {
    const QListWidgetItem* const item = list_->currentItem();
    if (item != nullptr) Tell(item->data(Qt::AccessibleTextRole).toString());
  }

  FindBox& box_;
  QFont font_;  // at the scale 1
  QLineEdit* field_;
  QListWidget* list_;
  EdgeKeeper edges_;
};

class QtFindBox final : public QtPeer<FindBoxPeer, FindBoxWidget> {
 public:
  using QtPeer::QtPeer;
  void Place(const base::Rect& frame) override { widget_->Place(frame); }
  void SetWords(const std::string& words) override { widget_->SetWords(words); }
  void SetFound(const std::vector<FoundRow>& rows, const std::string& summary) override {
    widget_->SetFound(rows, summary);
  }
};

}  // namespace

std::unique_ptr<FindBoxPeer> NewFindBoxPeer(FindBox& box, const QFont& font, const QtLook& look,
                                            QWidget& parent) {
  return std::make_unique<QtFindBox>(new FindBoxWidget(box, font, look, &parent));
}

}  // namespace quill::host
