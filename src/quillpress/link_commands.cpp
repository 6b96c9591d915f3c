// `quillpress link`: lays a link on words of a page, changes or deletes one.
#include <string>

#include "app/mode_table.h"
#include "authoring/author_text.h"
#include "content/link_types.h"
#include "quillpress/edit_arguments.h"

namespace quill::quillpress {
namespace {

namespace link_type = content::link_type;

// The command line excludes --offset beside --on; that one of them must be there it
// can't say without naming both as missing.
authoring::Anchor AnchorOf(const EditArguments& arguments) {
  if (arguments.on.empty() && arguments.offset < 0)
    throw ArgumentComplaint("Name the words of the link with --on, or its place with --offset.");
  return {authoring::ProgramText(arguments.on), arguments.nth, arguments.offset, arguments.column};
}

// A length is counted only where the offset was; words bring their own. A document
// needs no target, which the reader doesn't look at.
std::string AddLink(authoring::Editor& editor, const EditArguments& arguments) {
  const authoring::Anchor anchor = AnchorOf(arguments);
  if (anchor.on.empty() && !arguments.length) throw ArgumentComplaint("--offset asks for --length.");
  if (!arguments.target && arguments.document.empty())
    throw ArgumentComplaint("Name the page that the link leads to with --to, or a document with --file.");
  authoring::NewLink link;
  link.length = arguments.length.value_or(0);
  link.target = std::to_string(arguments.target.value_or(0));
  link.type = arguments.type.value_or(arguments.document.empty() ? link_type::kPage : link_type::kDocument);
  link.file_name = authoring::ProgramText(arguments.document);
  editor.AddLink(arguments.page, anchor, link);
  return PageName(arguments.page) + ", link added";
}

std::string UpdateLink(authoring::Editor& editor, const EditArguments& arguments) {
  authoring::LinkChange change;
  if (arguments.move_to) change.on = authoring::ProgramText(*arguments.move_to);
  change.length = arguments.length;
  if (arguments.target) change.target = std::to_string(*arguments.target);
  change.type = arguments.type;
  editor.UpdateLink(arguments.page, AnchorOf(arguments), change);
  return PageName(arguments.page) + ", link changed";
}

std::string DeleteLink(authoring::Editor& editor, const EditArguments& arguments) {
  editor.DeleteLink(arguments.page, AnchorOf(arguments));
  return PageName(arguments.page) + ", link deleted";
}

void AddAnchor(CLI::App& command, EditArguments& arguments) {
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

// "0 page, 1 glossary, ...", for the help.
std::string TypesInWords() {
  std::string words;
  for (const content::LinkType& row : content::kLinkTypes)
    words += (words.empty() ? "" : ", ") + std::to_string(row.type) + " " + std::string(row.word);
  return words;
}

// "100 and a page of Bio": how the opening page names the pages of an area.
std::string PageNamedInWords() {
  constexpr std::int32_t kNamed = app::ModeNamedByPage(app::kModes);
  static_assert(kNamed >= 0);
  const app::Mode& row = app::kModes[kNamed];
  return std::to_string(*row.targets_from) + " and a page of " + std::string(row.area);
}

void AddTarget(CLI::App& command, EditArguments& arguments) {
  command
      .add_option("--to", arguments.target,
                  "where it leads: the number of a page or an entry; on the opening page an area,\nor " +
                      PageNamedInWords())
      ->type_name("TARGET")
      ->check(CLI::NonNegativeNumber);
  command.add_option("--type", arguments.type, TypesInWords())
      ->check(CLI::Range(content::kLinkTypes.front().type, content::kLinkTypes.back().type));
}

}  // namespace

void AddLinkCommands(CLI::App& app, Action& action) {
  CLI::App& group = *app.add_subcommand("link", "Adds a link to a page, changes or deletes one");
  group.require_subcommand(1);
  group.footer("Example: quillpress link add StageQMR.xml 7 --on 'the second act' --to 9");

  const auto added = std::make_shared<EditArguments>();
  CLI::App& add = AddEditCommand(group, "add", "Lays a link on words of a page", added, AddLink, action);
  AddPageNumber(add, "PAGE", *added);
  AddAnchor(add, *added);
  add.add_option("--length", added->length, "with --offset: characters that the link lies on")
      ->check(CLI::NonNegativeNumber);
  AddTarget(add, *added);
  add.add_option("--file", added->document, "the document that it opens")->type_name("NAME");
  add.footer("Example: quillpress link add StageQMR.xml 7 --on 'the second act' --nth 2 --to 9");

  const auto updated = std::make_shared<EditArguments>();
  CLI::App& update = AddEditCommand(group, "update", "Changes where a link leads, its type or its words",
                                    updated, UpdateLink, action);
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

  const auto deleted = std::make_shared<EditArguments>();
  CLI::App& remove =
      AddEditCommand(group, "delete", "Deletes a link; the words stay", deleted, DeleteLink, action);
  AddPageNumber(remove, "PAGE", *deleted);
  AddAnchor(remove, *deleted);
  remove.footer("Example: quillpress link delete StageQMR.xml 7 --on 'the second act'");
}

}  // namespace quill::quillpress
