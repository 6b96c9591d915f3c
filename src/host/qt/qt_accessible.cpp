#include "host/qt/qt_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "host/qt/qt_canvas.h"
#include "host/qt/qt_controls.h"

namespace quill::host {
namespace {

class AccessibleCanvas final : public QAccessibleWidget {
 public:
  explicit AccessibleCanvas(CanvasWidget& canvas) : QAccessibleWidget(&canvas), canvas_(canvas) {}

  QAccessible::Role role() const override { return Pressable() ? QAccessible::Button : QAccessible::Pane; }

  QStringList actionNames() const override {
    return Pressable() && canvas_.isEnabled() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& action) override {
    if (action == pressAction() && Pressable()) canvas_.Press();
  }

 private:
  bool Pressable() const { return !canvas_.Label().isEmpty(); }

  CanvasWidget& canvas_;
};

QAccessibleInterface* Accessible(const QString& /*class_name*/, QObject* object) {
  if (auto* const canvas = dynamic_cast<CanvasWidget*>(object)) return new AccessibleCanvas(*canvas);
  if (auto* const text = dynamic_cast<TextWidget*>(object)) {
    return new QAccessibleWidget(text, QAccessible::StaticText);
  }
  return nullptr;
}

}  // namespace

void AnnounceControls() { QAccessible::installFactory(Accessible); }

}  // namespace quill::host
