// The way of the keyboard through a window: which of its canvases has the focus,
// how the keys move it, and the ring that shows it. The ring shows to those who
// use the keyboard, and goes when the mouse is used.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <vector>

#include "host/qt/qt_canvas.h"
#include "host/qt/qt_reading.h"

namespace quill::host {

// A frame around a widget, two device pixels of white in two of black: one of them
// stands out from any ground. The mouse goes through it.
class FocusRing final : public QWidget {
 public:
  explicit FocusRing(QWidget& pane);

  // Lays the ring around `widget`, which lies somewhere in the pane.
  void Surround(const QWidget& widget);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class FocusWay {
 public:
  // `pane` holds all canvases of the window; both outlive this.
  explicit FocusWay(QWidget& pane) : pane_(pane), ring_(new FocusRing(pane)) {}

  // What is on show has changed. The focus goes, or stands where the reader left
  // this text the last time, for those who came by the keyboard.
  void SetReading(const QtReading& reading);

  // To the next one or the one before, around the end. False if there is none.
  bool Step(bool forward);

  // To the nearest one in the direction of an arrow key.
  void Towards(Qt::Key arrow);

  // To the next one whose name, or a word in it, begins with what was typed
  // without a pause of a second; letters alone count, not their case or accents.
  void Type(const QString& letters);

  // Forgets what was typed; false if there was nothing.
  bool ForgetTyped();

  // Presses what has the focus; false if nothing has.
  bool Push();

  void MouseUsed();

  // The window's look has changed.
  void Rescale() { ShowRing(); }

 private:
  CanvasWidget* Current() const;
  void GoTo(CanvasWidget* widget);
  void ShowRing();

  QWidget& pane_;
  FocusRing* ring_;  // owned by the pane
  std::vector<QPointer<CanvasWidget>> order_;
  QPointer<CanvasWidget> start_;  // behind which the first step goes on; null: at the head
  QString typed_;
  QElapsedTimer last_typed_;
  bool by_keyboard_ = false;
};

}  // namespace quill::host
