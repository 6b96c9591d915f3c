#include "host/qt/qt_accessible_text.h"

#include <QWidget>
#include <algorithm>
#include <utility>

namespace quill::host {
namespace {

QRect ScreenRect(const QWidget& widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }

// A node without a widget: what all kinds share. It lies where its links lie, and
// without any on its whole window.
class TextNode : public QAccessibleInterface {
 public:
  TextNode(QWidget& window, QAccessible::Role role, std::vector<QPointer<CanvasWidget>> links)
      : window_(&window), role_(role), links_(std::move(links)) {}

  bool isValid() const override { return !window_.isNull(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(window_); }
  QAccessible::Role role() const override { return role_; }

  int childCount() const override { return static_cast<int>(links_.size()); }
  QAccessibleInterface* child(int index) const override {
    const bool known = index >= 0 && index < childCount();
    return known ? QAccessible::queryAccessibleInterface(links_[static_cast<std::size_t>(index)]) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child != nullptr && links_[static_cast<std::size_t>(i)] == child->object()) return i;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (const auto& link : links_) {
      if (link && ScreenRect(*link).contains(x, y)) return QAccessible::queryAccessibleInterface(link);
    }
    return nullptr;
  }

  QRect rect() const override {
    QRect area;
    for (const auto& link : links_) area |= link ? ScreenRect(*link) : QRect();
    return area.isNull() && window_ ? ScreenRect(*window_) : area;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    return state;
  }
  void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}

 private:
  QPointer<QWidget> window_;
  QAccessible::Role role_;
  std::vector<QPointer<CanvasWidget>> links_;
};

class TrailNode final : public TextNode {
 public:
  TrailNode(QWidget& window, const std::vector<QPointer<CanvasWidget>>& trail)
      : TextNode(window, QAccessible::List, trail) {}
  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? QStringLiteral("Trail") : QString();
  }
};

// Text to be read: a heading or a paragraph. Each run has its own attributes.
class WordsNode final : public TextNode, public QAccessibleTextInterface {
 public:
  WordsNode(QWidget& window, QAccessible::Role role, QtReading::Paragraph runs,
            std::vector<QPointer<CanvasWidget>> links)
      : TextNode(window, role, std::move(links)), runs_(std::move(runs)), text_(TextOf(runs_)) {}

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? text_ : QString();
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
  }

  QString text(int start, int end) const override { return text_.mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(text_.size()); }
  QString attributes(int offset, int* start, int* end) const override;

  // Nothing can be selected, and there is no cursor.
  void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int /*start*/, int /*end*/) override {}
  void removeSelection(int /*index*/) override {}
  void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int /*position*/) override {}
  QRect characterRect(int /*offset*/) const override { return rect(); }
  int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
  void scrollToSubstring(int /*start*/, int /*end*/) override {}

 private:
  QtReading::Paragraph runs_;
  QString text_;
};

// In the form of the accessibility bus: "name:value;", with the names that
// IAccessible2 gives to text attributes.
QString WordsNode::attributes(int offset, int* start, int* end) const {
  int at = 0;
  for (const QtReading::Run& run : runs_) {
    *start = at;
    at += static_cast<int>(run.text.size());
    *end = at;
    if (offset >= at) continue;
    QString attributes;
    if (run.bold) attributes += QLatin1String("font-weight:bold;");
    if (run.italic) attributes += QLatin1String("font-style:italic;");
    if (run.underline) attributes += QLatin1String("text-underline-style:solid;text-underline-type:single;");
    return attributes;
  }
  *start = *end = at;
  return {};
}

std::vector<QPointer<CanvasWidget>> LinksOf(const QtReading::Paragraph& paragraph) {
  std::vector<QPointer<CanvasWidget>> links;
  for (const QtReading::Run& run : paragraph) {
    if (run.link) links.push_back(run.link);
  }
  return links;
}

std::vector<CanvasWidget*> Plain(const std::vector<QPointer<CanvasWidget>>& links) {
  return {links.begin(), links.end()};
}

}  // namespace

AccessibleReading::AccessibleReading(QWidget& window, const QtReading& reading) : way_out_(reading.way_out) {
  Add(new WordsNode(window, QAccessible::Heading, {{reading.title, false, false, false, {}}}, {}), {});
  for (const QtReading::Column& column : reading.columns) {
    for (const QtReading::Paragraph& paragraph : column) {
      if (TextOf(paragraph).trimmed().isEmpty()) continue;
      const auto links = LinksOf(paragraph);
      Add(new WordsNode(window, QAccessible::Paragraph, paragraph, links), Plain(links));
    }
  }
  if (!reading.trail.empty()) Add(new TrailNode(window, reading.trail), Plain(reading.trail));
}

AccessibleReading::~AccessibleReading() {
  for (const Node& node : nodes_) QAccessible::deleteAccessibleInterface(node.id);
}

// The toolkit owns the node from now on.
void AccessibleReading::Add(QAccessibleInterface* node, std::vector<CanvasWidget*> links) {
  nodes_.push_back({QAccessible::registerAccessibleInterface(node), std::move(links)});
}

// The way out stands behind all text.
QAccessibleInterface* AccessibleReading::Child(int index) const {
  if (index < 0 || index >= Count()) return nullptr;
  const auto place = static_cast<std::size_t>(index);
  if (place == nodes_.size()) return QAccessible::queryAccessibleInterface(way_out_);
  return QAccessible::accessibleInterface(nodes_[place].id);
}

int AccessibleReading::IndexOf(const QAccessibleInterface* child) const {
  int index = Count() - 1;
  while (index >= 0 && Child(index) != child) --index;
  return index;
}

QAccessibleInterface* AccessibleReading::ParentOf(const CanvasWidget& canvas) const {
  for (const Node& node : nodes_) {
    if (std::find(node.links.begin(), node.links.end(), &canvas) != node.links.end())
      return QAccessible::accessibleInterface(node.id);
  }
  return nullptr;
}

}  // namespace quill::host
