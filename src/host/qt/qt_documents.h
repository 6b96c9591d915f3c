// Documents that other applications open.
#pragma once

#include <string>

namespace quill::host {

// Starts the application with that creator code on the document at `path` and
// goes on at once; false if none could be started. The application is nobody's
// child: whatever becomes of it doesn't touch this program.
//
// "QLD7" is the program `qld7` on the path; where there is none, and for every
// other code, the desktop's own opener serves.
bool StartApplication(const std::string& creator, const std::string& path);

}  // namespace quill::host
