// The types of file that the program makes known to its host. It asks for
// nothing in return: no file is opened by its type.
#pragma once

#include "host/file_type.h"

namespace quill::app {

// Registered for as long as this object lives.
struct FileTypes {
  FileTypes();

  host::FileType pRTF;
  host::FileType pQMRFile;
};

}  // namespace quill::app
