// What a window does with keys, the wheel and the menu.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

#include "host/controls.h"
#include "host/qt/qt_print.h"
#include "host/qt/qt_window.h"

namespace quill::host {
namespace {

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

void PressIfThere(const QPointer<CanvasWidget>& widget) {
  if (widget) widget->Press();
}

}  // namespace

void WindowWidget::keyPressEvent(QKeyEvent* event) {
  // Escape first forgets half a word, then closes.
  if (event->key() == Qt::Key_Escape && focus_.ForgetTyped()) return;
  const Command command = CommandOf(*event);
  if (command != Command::kNone) {
    Carry(command);
  } else {
    MoveFocus(*event);
  }
}

void WindowWidget::MoveFocus(const QKeyEvent& event) {
  const bool modified = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  if (modified || reading_.IsEmpty()) return;
  const int key = event.key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
    focus_.Push();
  } else if (IsArrow(key)) {
    focus_.Towards(static_cast<Qt::Key>(key));
  } else if (!event.text().isEmpty() && event.text().front().isLetterOrNumber()) {
    focus_.Type(event.text());
  }
}

bool WindowWidget::focusNextPrevChild(bool next) { return !reading_.IsEmpty() && focus_.Step(next); }

void WindowWidget::Carry(Command command) {
  switch (command) {
    case Command::kFind:
      return Find();
    case Command::kCopy:
      if (!reading_.IsEmpty()) QApplication::clipboard()->setText(reading_.PlainText());
      return;
    case Command::kPrint:
      if (!reading_.IsEmpty()) PrintWithDialog(*this, reading_);
      return;
    case Command::kLarger:
      return Zoom(true);
    case Command::kSmaller:
      return Zoom(false);
    case Command::kActualSize:
      return view_.SetZoom(QtView::kActualSize);
    case Command::kFullScreen:
      return ToggleFullScreen();
    case Command::kHighContrast:
      return view_.SetHighContrast(!view_.HighContrast());
    case Command::kKeys:
      return ShowKeys();
    case Command::kQuit:
      return quit_command_();
    case Command::kBack:
      return PressIfThere(reading_.back);
    case Command::kHome:
      return PressIfThere(reading_.home);
    case Command::kSave:
      if (window_ != nullptr) window_->Event_Save();
      return;
    case Command::kClose:
      return CloseOnCommand();
    case Command::kNone:
      return;
  }
}

// Of the main window the command means the dialog over it: it closes whichever of
// the two has the focus.
void WindowWidget::CloseOnCommand() {
  if (!IsMain()) return CloseWindow();
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    auto* const other = dynamic_cast<WindowWidget*>(widget);
    if (other != nullptr && other->windowType() == Qt::Dialog && other->isVisible())
      return other->CloseWindow();
  }
}

// Whichever window is asked, the main one knows who finds.
void WindowWidget::Find() {
  const auto* const main = MainWindow();
  if (main != nullptr && main->window_ != nullptr) main->window_->Event_Find();
}

// From the scale that shows, which may be smaller than the one asked for.
void WindowWidget::Zoom(bool larger) {
  const double shown = style_.resizeable || FillsScreen() ? look_.text_scale : look_.scale;
  view_.SetZoom(ZoomStepFrom(static_cast<int>(std::floor(shown * 100 + 1e-6)), larger));
}

void WindowWidget::ToggleFullScreen() {
  if (isFullScreen()) {
    showNormal();
    Relayout();
    if (corner_) move(*corner_);
    return;
  }
  corner_ = pos();
  setMinimumSize(0, 0);
  setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  showFullScreen();
}

void WindowWidget::ShowKeys() {
  QMessageBox box(this);
  box.setWindowTitle(QStringLiteral("Keys"));
  box.setTextFormat(Qt::RichText);
  box.setText(KeysInWords());
  box.exec();
}

void WindowWidget::wheelEvent(QWheelEvent* event) {
  const int turned = event->angleDelta().y();
  if ((event->modifiers() & Qt::ControlModifier) != 0 && turned != 0) Zoom(turned > 0);
}

void WindowWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (reading_.IsEmpty()) return;
  QMenu menu(this);
  for (const CommandRow& row : Commands()) {
    if (!row.in_menu) continue;
    QAction* const action =
        menu.addAction(QLatin1String(row.text), this, [this, &row] { Carry(row.command); });
    action->setShortcut(row.keys.front());
    action->setShortcutVisibleInContextMenu(true);
  }
  menu.exec(event->globalPos());
}

// Presses beside the page count as presses in it.
void WindowWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::BackButton) PressIfThere(reading_.back);
}

}  // namespace quill::host
