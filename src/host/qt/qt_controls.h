// The controls of a window as widgets: a canvas, a line of text, a check box.
// Their peers are made by `QtWindow` alone.
//
// A widget belongs to its window's widget and goes when the event loop next
// turns: its control may well end inside one of its own events. A widget
// whose control has gone is hidden and calls nobody.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <string>

#include "host/controls.h"
#include "host/qt/qt_canvas.h"
#include "host/qt/qt_scaled.h"
#include "host/qt/qt_text.h"

namespace quill::host {

// One line of text at the top of its frame. The mouse goes through it.
class TextWidget final : public QWidget, public ScaledWidget {
 public:
  TextWidget(const TextStyle& style, QtMetrics& metrics, const QtLook& look, QWidget* parent);

  void SetText(const std::string& text);
  void Place(const base::Rect& frame);
  void Rescale() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double LeftEnd() const;

  TextStyle style_;
  QtMetrics& metrics_;
  std::string text_;
  base::Rect frame_;
};

// `parent` is the widget that the new control lies in.
std::unique_ptr<CanvasPeer> NewCanvasPeer(CanvasWidget& widget);
std::unique_ptr<StaticTextPeer> NewTextPeer(const TextStyle& style, QtMetrics& metrics, const QtLook& look,
                                            QWidget& parent);
std::unique_ptr<CheckBoxPeer> NewCheckBoxPeer(CheckBox& box, const std::string& caption, const TextFace& face,
                                              QtMetrics& metrics, QWidget& parent);

// The widget behind a peer that these functions made; null for any other.
QWidget* WidgetOf(ControlPeer* peer);

}  // namespace quill::host
