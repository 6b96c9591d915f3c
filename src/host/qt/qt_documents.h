// Documents that other applications open.
#pragma once

#include <string>

namespace quill::host {

// Starts `program` on the document at `path` and goes on at once; false if
// nothing could be started. What was started is nobody's child: whatever becomes
// of it doesn't touch this program.
//
// `program` is looked for on the path. Where it is empty or isn't there, the
// desktop's own opener serves.
bool StartApplication(const std::string& program, const std::string& path);

}  // namespace quill::host
