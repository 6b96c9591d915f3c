// What the commands that change a content file share: their arguments, and the
// way from them to a change. Each opens the file, makes one change and saves; when
// anything is wrong nothing has been written. What a change is, and whether it can be
// made, is `authoring::Editor`'s matter.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "authoring/edit/editor.h"
#include "quillpress/commands.h"

namespace quill::quillpress {

// All that these commands can be given, as it stands on the command line: text is
// UTF-8. Each command offers some of it.
struct EditArguments {
  std::string file;
  std::int32_t page = 0;
  bool bump = false;  // raise the version besides

  std::optional<std::string> title;
  std::vector<std::string> texts;

  // As in `authoring::Anchor`, `NewLink` and `LinkChange`.
  std::string on;
  std::int32_t nth = 1;
  std::int32_t offset = -1;
  std::int32_t column = 0;
  std::optional<std::string> move_to;
  std::optional<std::int32_t> length;
  std::optional<std::int32_t> target;
  std::optional<std::int32_t> type;
  std::string document;
};

// Makes a change and returns the words that tell of it.
using Change = std::function<std::string(authoring::Editor&, const EditArguments&)>;

// "page 7", as it stands in what a command says.
std::string PageName(std::int32_t id);

// A command on a file, which the caller gives its further arguments. Chosen, it
// makes `change`.
CLI::App& AddEditCommand(CLI::App& group, const char* name, const char* about,
                         const std::shared_ptr<EditArguments>& arguments, Change change, Action& action);

// The required argument with the number of the page.
void AddPageNumber(CLI::App& command, const char* name, EditArguments& arguments);

}  // namespace quill::quillpress
