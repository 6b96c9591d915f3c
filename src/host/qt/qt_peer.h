// What the peers of all kinds of control share.
#pragma once

#include <QWidget>

#include "base/geometry.h"
#include "host/qt/qt_values.h"

namespace quill::host {

// Gives the toolkit's widget to those who only know a control's peer.
class WidgetHolder {
 public:
  virtual ~WidgetHolder() = default;
  virtual QWidget* Widget() = 0;
};

// A peer and its widget, which goes when the event loop next turns.
template <typename Interface, typename Shown>
class QtPeer : public Interface, public WidgetHolder {
 public:
  explicit QtPeer(Shown* widget) : widget_(widget) {}
  ~QtPeer() override {
    widget_->hide();
    widget_->deleteLater();
  }

  void Place(const base::Rect& frame) override { widget_->setGeometry(ToQRect(frame)); }
  void SetVisible(bool visible) override { widget_->setVisible(visible); }
  void SetEnabled(bool enabled) override { widget_->setEnabled(enabled); }
  QWidget* Widget() override { return widget_; }

 protected:
  Shown* widget_;  // owned by its parent widget
};

}  // namespace quill::host
