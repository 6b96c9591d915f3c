#include "host/graphics.h"

namespace quill::host {

std::shared_ptr<Graphics> GraphicsOf(const std::shared_ptr<Picture>& picture) {
  Graphics* const graphics = picture ? picture->GetGraphics() : nullptr;
  if (graphics == nullptr) return nullptr;
  return {picture, graphics};
}

}  // namespace quill::host
