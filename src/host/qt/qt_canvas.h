// A canvas as a widget: what the toolkit delivers becomes the canvas's events, and
// what the canvas draws stays until it draws over it.
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>
#include <memory>
#include <string>

#include "host/controls.h"
#include "host/qt/qt_graphics.h"

namespace quill::host {

// A canvas on the screen: its backdrop, above it the layer of its own drawing,
// above that its children. Where none was drawn it shows what lies below.
class CanvasWidget final : public QWidget, private Surface, private PictureViewer {
 public:
  CanvasWidget(Canvas& canvas, QtMetrics& metrics, QWidget* parent);
  ~CanvasWidget() override;

  Graphics& GetGraphics() { return graphics_; }
  const QString& Label() const { return label_; }

  void Place(const base::Rect& frame);
  void SetBackdrop(const std::shared_ptr<Picture>& backdrop);
  void SetLabel(const std::string& label);

  // A whole click in its middle, for those who don't use the mouse.
  void Press();

  // Its control has gone; so will this, when the event loop next turns.
  void Retire();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QImage* Pixels() override;
  void Changed() override { PictureChanged(); }
  void PictureChanged() override;

  void RaisePaint();
  void UpdateHoverSoon();
  void UpdateHover();
  void UpdateCursor();

  Canvas* canvas_;  // null when retired
  QtGraphics graphics_;
  QImage layer_;  // null until drawn on
  std::shared_ptr<QtPicture> backdrop_;
  QString label_;
  bool painting_ = false;
  bool held_ = false;  // MouseUp is to follow
  bool mouse_inside_ = false;
  bool hovered_ = false;  // MouseExit is to follow
};

}  // namespace quill::host
