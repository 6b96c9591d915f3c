#include "host/qt/qt_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "host/qt/qt_canvas.h"
#include "host/qt/qt_window.h"

namespace quill::host {
namespace {

// A canvas that can be pressed: a link, or a button where it is none.
class AccessibleCanvas final : public QAccessibleWidget {
 public:
  explicit AccessibleCanvas(CanvasWidget& canvas) : QAccessibleWidget(&canvas), canvas_(canvas) {}

  QAccessible::Role role() const override {
    switch (canvas_.GetPurpose().kind) {
      case Purpose::Kind::kNone:
        return canvas_.Name().isEmpty() ? QAccessible::Pane : QAccessible::Button;
      case Purpose::Kind::kButton:
        return QAccessible::Button;
      default:
        return QAccessible::Link;
    }
  }

  QString text(QAccessible::Text which) const override {
    if (which == QAccessible::Name) return canvas_.Name();
    return which == QAccessible::Description ? LineOfText(canvas_.GetPurpose().leads_to) : QString();
  }

  // Where it stands in what is read, not among the widgets.
  QAccessibleInterface* parent() const override {
    auto* const window = dynamic_cast<WindowWidget*>(canvas_.window());
    const AccessibleReading* const reading = window != nullptr ? window->Accessible() : nullptr;
    QAccessibleInterface* const holder = reading != nullptr ? reading->ParentOf(canvas_) : nullptr;
    return holder != nullptr ? holder : QAccessible::queryAccessibleInterface(window);
  }
  int childCount() const override { return 0; }

  QStringList actionNames() const override {
    return canvas_.IsPressable() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) canvas_.Press();
  }

 private:
  CanvasWidget& canvas_;
};

// A window with what it says in it, instead of its widgets.
class AccessibleWindow final : public QAccessibleWidget {
 public:
  explicit AccessibleWindow(WindowWidget& window)
      : QAccessibleWidget(&window, QAccessible::Window), window_(window) {}

  QString text(QAccessible::Text which) const override {
    const QString& title = window_.GetReading().title;
    if (which != QAccessible::Name || title.isEmpty()) return QAccessibleWidget::text(which);
    return title + QLatin1String(" - ") + window_.windowTitle();
  }
  int childCount() const override {
    return Reading() == nullptr ? QAccessibleWidget::childCount() : Reading()->Count();
  }
  QAccessibleInterface* child(int index) const override {
    return Reading() == nullptr ? QAccessibleWidget::child(index) : Reading()->Child(index);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return Reading() == nullptr ? QAccessibleWidget::indexOfChild(child) : Reading()->IndexOf(child);
  }

 private:
  const AccessibleReading* Reading() const { return window_.Accessible(); }

  WindowWidget& window_;
};

QAccessibleInterface* Accessible(const QString& /*class_name*/, QObject* object) {
  if (auto* const canvas = dynamic_cast<CanvasWidget*>(object)) return new AccessibleCanvas(*canvas);
  if (auto* const window = dynamic_cast<WindowWidget*>(object)) return new AccessibleWindow(*window);
  return nullptr;
}

}  // namespace

void AnnounceControls() { QAccessible::installFactory(Accessible); }

}  // namespace quill::host
