// `quillpress page`: adds a page to a content file, or changes one.
#include <optional>
#include <string>

#include "authoring/author_text.h"
#include "quillpress/edit_arguments.h"

namespace quill::quillpress {
namespace {

content::TextList TextsOf(const EditArguments& arguments) {
  content::TextList texts;
  for (const std::string& text : arguments.texts) texts.push_back(authoring::ProgramParagraphs(text));
  return texts;
}

std::string AddPage(authoring::Editor& editor, const EditArguments& arguments) {
  return PageName(editor.AddPage(authoring::ProgramText(*arguments.title), TextsOf(arguments))) + " added";
}

std::string UpdatePage(authoring::Editor& editor, const EditArguments& arguments) {
  std::optional<std::string> title;
  if (arguments.title) title = authoring::ProgramText(*arguments.title);
  editor.UpdatePage(arguments.page, title, TextsOf(arguments));
  return PageName(arguments.page) + " changed";
}

// Each --text takes one value, so that what follows it isn't taken for another text.
CLI::Option& AddTexts(CLI::App& command, EditArguments& arguments) {
  CLI::Option& texts =
      *command.add_option("--text", arguments.texts,
                          "the text of a column, given once for each, at most three times. In it \\n ends a\n"
                          "paragraph, \\t indents one and \\\\ is a backslash");
  return *texts.expected(1, 3)->allow_extra_args(false)->type_name("TEXT");
}

}  // namespace

void AddPageCommands(CLI::App& app, Action& action) {
  CLI::App& group = *app.add_subcommand("page", "Adds a page to a content file, or changes one");
  group.require_subcommand(1);
  group.footer("Example: quillpress page add StageQMR.xml --title Props --text 'Name it twice.'");

  const auto added = std::make_shared<EditArguments>();
  CLI::App& add = AddEditCommand(group, "add", "Appends a page and tells its number", added, AddPage, action);
  add.add_option("--title", added->title, "its title")->required();
  AddTexts(add, *added).required();
  add.footer(
      "Example: quillpress page add StageQMR.xml --title Props --text 'One\\nTwo' --text 'Right column'");

  const auto updated = std::make_shared<EditArguments>();
  CLI::App& update =
      AddEditCommand(group, "update", "Replaces title or texts of a page; its links stay where they are",
                     updated, UpdatePage, action);
  AddPageNumber(update, "ID", *updated);
  update.add_option("--title", updated->title, "the new title");
  AddTexts(update, *updated);
  update.footer(
      "Links go by the count of the words before them: run \"quillpress check\" after a new text.\n"
      "Example: quillpress page update StageQMR.xml 7 --title 'Props again' --bump");
}

}  // namespace quill::quillpress
