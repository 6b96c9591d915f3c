#include "quillpress/edit_arguments.h"

#include <filesystem>
#include <iostream>
#include <utility>

#include "quillpress/data_view.h"
#include "quillpress/workplace.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

// The file's folder stands for the bundle, so that one file can be changed wherever it
// lies, without the others.
ExitStatus Edit(const EditArguments& arguments, const Change& change) {
  const fs::path path = fs::absolute(arguments.file);
  const Workplace workplace(BundleView(path.parent_path()));
  authoring::Editor editor(path);
  std::string done = change(editor, arguments);
  if (arguments.bump) done += ", version " + editor.BumpVersion();
  editor.Save();
  std::cout << arguments.file << ": " << done << "\n";
  return kDone;
}

}  // namespace

std::string PageName(std::int32_t id) { return "page " + std::to_string(id); }

// The arguments live as long as the command's callback, beyond the parsing.
CLI::App& AddEditCommand(CLI::App& group, const char* name, const char* about,
                         const std::shared_ptr<EditArguments>& arguments, Change change, Action& action) {
  CLI::App& command = *group.add_subcommand(name, about);
  command.add_option("FILE", arguments->file, "the content file")->required();
  command.add_flag("--bump", arguments->bump, "raise the version of the file by 0.1");
  command.callback([arguments, change = std::move(change), &action] {
    action = [arguments, change] { return Edit(*arguments, change); };
  });
  return command;
}

void AddPageNumber(CLI::App& command, const char* name, EditArguments& arguments) {
  command.add_option(name, arguments.page, "the number of the page")
      ->required()
      ->check(CLI::NonNegativeNumber);
}

}  // namespace quill::quillpress
