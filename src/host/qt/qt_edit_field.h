// The field of several lines: the toolkit's own, with its undo, copy and paste.
#pragma once

#include <QMargins>
#include <QPlainTextEdit>
#include <memory>
#include <string>

#include "host/peers.h"
#include "host/qt/qt_scaled.h"
#include "host/qt/qt_text.h"

namespace quill::host {

// Keeps its distances from the four edges of its parent. Text goes in and comes
// out as bytes: as long as the user changes nothing, exactly those that went in.
class EditWidget final : public QPlainTextEdit, public ScaledWidget {
 public:
  EditWidget(const TextStyle& style, base::Color back_color, QtMetrics& metrics, const QtLook& look,
             QWidget* parent);

  void Place(const base::Rect& frame);

  // The letters take the window's scale; the field keeps its place.
  void Rescale() override;

  // UTF-8. Bytes that aren't come from a file of before there was any: they show
  // as the Mac Roman that they then were.
  void SetBytes(const std::string& bytes);
  std::string Bytes() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QFont font_;  // at the scale 1
  std::string given_;
  QMargins margins_;
};

std::unique_ptr<EditFieldPeer> NewEditPeer(const TextStyle& style, base::Color back_color, QtMetrics& metrics,
                                           const QtLook& look, QWidget& parent);

}  // namespace quill::host
