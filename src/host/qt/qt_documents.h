// Documents that other applications open.
#pragma once

#include <functional>
#include <string>

namespace quill::host {

// Starts `program` on the document at `path` and goes on at once; false if
// nothing could be started. What was started lives in a session of its own and
// outlives this program.
//
// `program` is looked for on the path. Where it is empty or isn't there, the
// desktop's own opener serves.
//
// `failed` is called from the event loop with a sentence for the user if what was
// started ends within two seconds and says that it failed.
bool StartApplication(const std::string& program, const std::string& path,
                      std::function<void(const std::string& what)> failed);

}  // namespace quill::host
