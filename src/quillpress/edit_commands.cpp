// The commands that change a content file. Each opens the file, makes one change
// and saves; when anything is wrong nothing has been written.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "nav/text_button.h"
#include "quillpress/author_text.h"
#include "quillpress/commands.h"
#include "quillpress/complaint.h"
#include "quillpress/data_view.h"
#include "quillpress/editor.h"
#include "quillpress/workplace.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

// All that the commands of this file can be given; each offers some of it.
struct Arguments {
  std::string file;
  std::int32_t page = 0;
  bool bump = false;

  std::optional<std::string> title;
  std::vector<std::string> texts;

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

// Makes a change and gives the words that tell of it.
using Change = std::function<std::string(Editor&, const Arguments&)>;

int Edit(const Arguments& arguments, const Change& change) {
  const fs::path path = fs::absolute(arguments.file);
  const Workplace workplace(BundleView(path.parent_path()));
  Editor editor(path);
  std::string done = change(editor, arguments);
  if (arguments.bump) done += ", version " + editor.BumpVersion();
  editor.Save();
  std::cout << arguments.file << ": " << done << "\n";
  return kDone;
}

Anchor AnchorOf(const Arguments& arguments) {
  if (arguments.on.empty() && arguments.offset < 0)
    throw Complaint("Name the words of the link with --on, or its place with --offset.");
  return {ProgramText(arguments.on), arguments.nth, arguments.offset, arguments.column};
}

std::vector<std::string> TextsOf(const Arguments& arguments) {
  std::vector<std::string> texts;
  for (const std::string& text : arguments.texts) texts.push_back(ProgramParagraphs(text));
  return texts;
}

std::string PageName(std::int32_t id) { return "page " + std::to_string(id); }

std::string AddPage(Editor& editor, const Arguments& arguments) {
  return PageName(editor.AddPage(ProgramText(*arguments.title), TextsOf(arguments))) + " added";
}

std::string UpdatePage(Editor& editor, const Arguments& arguments) {
  std::optional<std::string> title;
  if (arguments.title) title = ProgramText(*arguments.title);
  editor.UpdatePage(arguments.page, title, TextsOf(arguments));
  return PageName(arguments.page) + " changed";
}

std::string AddLink(Editor& editor, const Arguments& arguments) {
  const Anchor anchor = AnchorOf(arguments);
  if (anchor.on.empty() && !arguments.length) throw Complaint("--offset asks for --length.");
  if (!arguments.target && arguments.document.empty())
    throw Complaint("Name the page that the link leads to with --to, or a document with --file.");
  NewLink link;
  link.length = arguments.length.value_or(0);
  link.target = std::to_string(arguments.target.value_or(0));
  link.type =
      arguments.type.value_or(arguments.document.empty() ? nav::link_type::kPage : nav::link_type::kDocument);
  link.file_name = ProgramText(arguments.document);
  editor.AddLink(arguments.page, anchor, link);
  return PageName(arguments.page) + ", link added";
}

std::string UpdateLink(Editor& editor, const Arguments& arguments) {
  LinkChange change;
  if (arguments.move_to) change.on = ProgramText(*arguments.move_to);
  change.length = arguments.length;
  if (arguments.target) change.target = std::to_string(*arguments.target);
  change.type = arguments.type;
  editor.UpdateLink(arguments.page, AnchorOf(arguments), change);
  return PageName(arguments.page) + ", link changed";
}

std::string DeleteLink(Editor& editor, const Arguments& arguments) {
  editor.DeleteLink(arguments.page, AnchorOf(arguments));
  return PageName(arguments.page) + ", link deleted";
}

// A command on a file, which the caller gives its further arguments.
CLI::App& AddCommand(CLI::App& group, const char* name, const char* about,
                     const std::shared_ptr<Arguments>& arguments, Change change, Action& action) {
  CLI::App& command = *group.add_subcommand(name, about);
  command.add_option("FILE", arguments->file, "the content file")->required();
  command.add_flag("--bump", arguments->bump, "raise the version of the file by 0.1");
  command.callback([arguments, change = std::move(change), &action] {
    action = [arguments, change] { return Edit(*arguments, change); };
  });
  return command;
}

void AddPageNumber(CLI::App& command, const char* name, Arguments& arguments) {
  command.add_option(name, arguments.page, "the number of the page")
      ->required()
      ->check(CLI::NonNegativeNumber);
}

CLI::Option& AddTexts(CLI::App& command, Arguments& arguments) {
  CLI::Option& texts =
      *command.add_option("--text", arguments.texts,
                          "the text of a column, given once for each, at most three times. In it \\n ends a\n"
                          "paragraph, \\t indents one and \\\\ is a backslash");
  return *texts.expected(1, 3)->allow_extra_args(false)->type_name("TEXT");
}

void AddAnchor(CLI::App& command, Arguments& arguments) {
  auto* const on =
      command.add_option("--on", arguments.on, "the words that the link lies on")->type_name("WORDS");
  command.add_option("--nth", arguments.nth, "which occurrence of the words on the page")
      ->needs(on)
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  command.add_option("--offset", arguments.offset, "in place of the words: the offset of the first")
      ->excludes(on)
      ->check(CLI::NonNegativeNumber);
  command
      .add_option("--column", arguments.column,
                  "look for the words in this column alone; for --offset 1 unless given")
      ->check(CLI::Range(1, 3));
}

void AddTarget(CLI::App& command, Arguments& arguments) {
  command
      .add_option("--to", arguments.target,
                  "where it leads: the number of a page or an entry; on the opening page an area,\n"
                  "or 100 and a page of Bio")
      ->type_name("TARGET")
      ->check(CLI::NonNegativeNumber);
  command
      .add_option("--type", arguments.type,
                  "0 page, 1 glossary, 2 plain, 3 italic, 4 bold, 5 bold italic,\n"
                  "6 underlined, 7 underlined italic, 8 underlined bold, 9 document")
      ->check(CLI::Range(0, 9));
}

}  // namespace

void AddPageCommands(CLI::App& app, Action& action) {
  CLI::App& group = *app.add_subcommand("page", "Adds a page to a content file, or changes one");
  group.require_subcommand(1);
  group.footer("Example: quillpress page add StageQMR.xml --title Props --text 'Name it twice.'");

  const auto added = std::make_shared<Arguments>();
  CLI::App& add = AddCommand(group, "add", "Appends a page and tells its number", added, AddPage, action);
  add.add_option("--title", added->title, "its title")->required();
  AddTexts(add, *added).required();
  add.footer(
      "Example: quillpress page add StageQMR.xml --title Props --text 'One\\nTwo' --text 'Right column'");

  const auto updated = std::make_shared<Arguments>();
  CLI::App& update =
      AddCommand(group, "update", "Replaces title or texts of a page; its links stay where they are", updated,
                 UpdatePage, action);
  AddPageNumber(update, "ID", *updated);
  update.add_option("--title", updated->title, "the new title");
  AddTexts(update, *updated);
  update.footer(
      "Links go by the count of the words before them: run \"quillpress check\" after a new text.\n"
      "Example: quillpress page update StageQMR.xml 7 --title 'Props again' --bump");
}

void AddLinkCommands(CLI::App& app, Action& action) {
  CLI::App& group = *app.add_subcommand("link", "Adds a link to a page, changes or deletes one");
  group.require_subcommand(1);
  group.footer("Example: quillpress link add StageQMR.xml 7 --on 'the second act' --to 9");

  const auto added = std::make_shared<Arguments>();
  CLI::App& add = AddCommand(group, "add", "Lays a link on words of a page", added, AddLink, action);
  AddPageNumber(add, "PAGE", *added);
  AddAnchor(add, *added);
  add.add_option("--length", added->length, "with --offset: characters that the link lies on")
      ->check(CLI::NonNegativeNumber);
  AddTarget(add, *added);
  add.add_option("--file", added->document, "the document that it opens")->type_name("NAME");
  add.footer("Example: quillpress link add StageQMR.xml 7 --on 'the second act' --nth 2 --to 9");

  const auto updated = std::make_shared<Arguments>();
  CLI::App& update = AddCommand(group, "update", "Changes where a link leads, its type or its words", updated,
                                UpdateLink, action);
  AddPageNumber(update, "PAGE", *updated);
  AddAnchor(update, *updated);
  update.add_option("--move-to", updated->move_to, "the words that it lies on from now, in the same column")
      ->type_name("WORDS");
  update.add_option("--length", updated->length, "characters that it lies on from now")
      ->check(CLI::NonNegativeNumber);
  AddTarget(update, *updated);
  update.footer(
      "What isn't given stays.\n"
      "Example: quillpress link update StageQMR.xml 7 --on 'the second act' --to 10");

  const auto deleted = std::make_shared<Arguments>();
  CLI::App& remove =
      AddCommand(group, "delete", "Deletes a link; the words stay", deleted, DeleteLink, action);
  AddPageNumber(remove, "PAGE", *deleted);
  AddAnchor(remove, *deleted);
  remove.footer("Example: quillpress link delete StageQMR.xml 7 --on 'the second act'");
}

}  // namespace quill::quillpress
