#include "app/pictures.h"

#include "host/desktop.h"

namespace quill::app {

std::shared_ptr<host::Picture> Pictures::Get(PictureId id) {
  std::shared_ptr<host::Picture>& kept = kept_[id];
  if (!kept) kept = host::ResourceFork::GetPicture(static_cast<std::int32_t>(id));
  return kept;
}

}  // namespace quill::app
