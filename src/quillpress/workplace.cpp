#include "quillpress/workplace.h"

#include <cstdlib>
#include <utility>

#include "app/product.h"

namespace quill::quillpress {
namespace {

host::QtDesktop::Options OptionsFor(std::shared_ptr<host::FolderItem> application) {
  // The toolkit's remarks on the session that it finds are no business of authors;
  // who wants them asks for them.
  setenv("QT_LOGGING_RULES", "default.warning=false", 0);
  host::QtDesktop::Options options;
  options.application = std::move(application);
  options.messages = host::QtDesktop::Messages::kStandardError;
  options.screen = host::QtDesktop::Screen::kNone;
  return options;
}

}  // namespace

Workplace::Workplace(std::shared_ptr<host::FolderItem> application)
    : desktop_(argc_, argv_.data(), app::Quillmere(), OptionsFor(std::move(application))) {}

}  // namespace quill::quillpress
