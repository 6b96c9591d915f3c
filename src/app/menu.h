// The program's menu bar: it defines no menu and no item of its own, so that
// the host's own commands are all there is.
#pragma once

#include "host/application.h"

namespace quill::app {

class Menu final : public host::MenuBar {};

}  // namespace quill::app
