// The user's folders, as freedesktop.org's base directories have them: named by the
// environment, or else in the home folder. A relative path in the environment doesn't
// count. Without HOME the home folder comes from the database of users.
#pragma once

#include <filesystem>

namespace quill::host {

// For settings and other files of the user (XDG_CONFIG_HOME, ~/.config); empty if
// there is no such folder.
std::filesystem::path ConfigFolder();

// For what a program keeps from run to run (XDG_STATE_HOME, ~/.local/state): the
// program's own folder there. Empty if there is none.
std::filesystem::path StateFolder();

// For what is of use until the user logs out (XDG_RUNTIME_DIR): the program's own
// folder there. Empty if there is none.
std::filesystem::path RuntimeFolder();

}  // namespace quill::host
