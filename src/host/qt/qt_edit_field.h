// The field of several lines: the toolkit's own, with its undo, copy and paste.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <memory>
#include <string>

#include "host/edited_text.h"
#include "host/peers.h"
#include "host/qt/qt_edges.h"
#include "host/qt/qt_scaled.h"
#include "host/qt/qt_text.h"

namespace quill::host {

// Keeps its distances from the four edges of its parent. Text goes in and comes
// out as bytes: as long as the user changes nothing, exactly those that went in.
class EditWidget final : public QPlainTextEdit, public ScaledWidget {
 public:
  EditWidget(const TextStyle& style, base::Color back_color, QtMetrics& metrics, const QtLook& look,
             QWidget* parent);

  void Place(const base::Rect& frame) { edges_.Place(*this, frame); }

  // The letters take the window's scale; the field keeps its place.
  void Rescale() override;

  // UTF-8; what isn't comes through unharmed.
  void SetBytes(const std::string& bytes);
  std::string Bytes() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QFont font_;  // at the scale 1
  std::string given_;
  EditedText edited_ = EditedText("");  // of the bytes given
  EdgeKeeper edges_;
};

// Calls `changed` at every change of the text.
std::unique_ptr<EditFieldPeer> NewEditPeer(const TextStyle& style, base::Color back_color, QtMetrics& metrics,
                                           const QtLook& look, QWidget& parent,
                                           std::function<void()> changed);

}  // namespace quill::host
