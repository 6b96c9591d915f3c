// The field for words with the list of what was found: the toolkit's own two, joined
// by the arrow keys.
#pragma once

#include <memory>

#include "host/peers.h"
#include "host/qt/qt_look.h"

class QFont;
class QWidget;

namespace quill::host {

std::unique_ptr<FindBoxPeer> NewFindBoxPeer(FindBox& box, const QFont& font, const QtLook& look,
                                            QWidget& parent);

}  // namespace quill::host
