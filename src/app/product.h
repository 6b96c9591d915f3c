// The names that this program hands to the desktop it runs on.
#pragma once

#include "host/product.h"

namespace quill::app {

host::Product Quillmere();

}  // namespace quill::app
