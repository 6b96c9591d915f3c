// A canvas as a widget: what the toolkit delivers becomes the canvas's events, and
// what the canvas draws stays until it draws over it.
//
// From below to above it shows its backdrop, its own drawing and its children.
// Where none was drawn it shows what lies below.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <string>

#include "host/controls.h"
#include "host/qt/qt_graphics.h"
#include "host/qt/qt_scaled.h"

namespace quill::host {

class MarksWidget;

class CanvasWidget final : public QWidget, public ScaledWidget, private PictureViewer {
 public:
  CanvasWidget(Canvas& canvas, QtMetrics& metrics, const QtLook& look, QWidget* parent);
  ~CanvasWidget() override;

  Graphics& GetGraphics() { return graphics_; }

  // The label without the marks that only the eye needs: no blanks around it, no
  // "> " of the trail before it.
  const QString& Name() const { return name_; }
  const Purpose& GetPurpose() const { return purpose_; }

  // Whether it can be pressed now.
  bool IsPressable() const;

  void Place(const base::Rect& frame);
  void Rescale() override;
  void SetBackdrop(const std::shared_ptr<Picture>& backdrop);
  void SetMarks(const std::vector<base::Rect>& marks);
  void SetLabel(const std::string& label);
  void SetPurpose(const Purpose& purpose);

  // A whole click in its middle, for those who don't use the mouse.
  void Press();

  // Its control has gone; so will this, when the event loop next turns.
  void Retire();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void PictureChanged() override;

  void RaisePaint();
  void PaintUnderline(QPainter& painter) const;
  void UpdateHoverSoon();
  void UpdateHover();
  void UpdateUse();

  Canvas* canvas_;  // null when retired
  base::Rect frame_;
  QtDrawing drawing_;
  QtGraphics graphics_;
  std::shared_ptr<QtPicture> backdrop_;
  MarksWidget* marks_ = nullptr;  // owned by this widget; null before the first
  QString name_;
  Purpose purpose_;
  bool painting_ = false;
  bool held_ = false;  // MouseUp is to follow
  bool mouse_inside_ = false;
  bool hovered_ = false;  // MouseExit is to follow
};

}  // namespace quill::host
