// `quillpress snapshot`: a page as the reader shows it, as a picture and, if asked
// for, as lines of text.
#include <CLI/CLI.hpp>
#include <cstdint>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "app/mode_table.h"
#include "authoring/area.h"
#include "authoring/complaint.h"
#include "quillpress/commands.h"
#include "quillpress/data_view.h"
#include "quillpress/workplace.h"
#include "reader/snapshot.h"

namespace quill::quillpress {
namespace {

struct SnapshotArguments {
  std::string data;
  std::int32_t mode = 0;
  std::vector<std::int32_t> pages;  // their numbers; empty: the one on which the area opens
  bool dump = false;
  bool offsets = false;
  std::string output;
};

// Index in the table of modes.
constexpr auto kLastMode = static_cast<std::int32_t>(app::kModes.size()) - 1;

// "the area: 0 opening page, 1 Screen, ...", for the help.
std::string ModesInWords() {
  std::string words = "the area: ";
  for (std::int32_t mode = 0; mode <= kLastMode; ++mode) {
    const app::Mode& row = app::kModes[static_cast<std::size_t>(mode)];
    words += (mode == 0 ? "" : ", ") + std::to_string(mode) + " " +
             (row.opening ? "opening page" : std::string(row.area));
  }
  return words;
}

// Opens the files as the viewer will, so that it is known beforehand that it can: the
// opening page's, on which a reader comes up, and the area's.
void RequirePages(const SnapshotArguments& arguments) {
  const app::Mode& opening = app::kModes[app::kOpeningMode];
  const app::Mode& mode = app::kModes.at(static_cast<std::size_t>(arguments.mode));
  for (const auto name : {opening.content_file, opening.glossary_file, mode.glossary_file})
    authoring::RequireFile(std::string(name));
  const authoring::OpenedFile opened = authoring::RequireFile(std::string(mode.content_file));
  for (const std::int32_t page : arguments.pages) {
    if (!opened.document->GetPage(page))
      throw authoring::Complaint(opened.name + " has no page " + std::to_string(page) + ".");
  }
}

ExitStatus RunSnapshot(const SnapshotArguments& arguments) {
  RequireFolder(arguments.data);
  Workplace workplace(BundleView(arguments.data));
  RequirePages(arguments);
  SnapshotRequest request{.mode = arguments.mode, .pages = {}, .offsets = arguments.offsets};
  for (const std::int32_t page : arguments.pages) request.pages.push_back(std::to_string(page));
  const Snapshot snapshot = TakeSnapshot(workplace.Desktop(), request, arguments.output);
  if (snapshot.aborted) throw authoring::Complaint("the reader has ended before the page was shown.");
  if (!snapshot.saved) throw authoring::FileComplaint(arguments.output + " can't be written.");
  if (arguments.dump) std::cout << snapshot.dump;
  return kDone;
}

}  // namespace

void AddSnapshotCommand(CLI::App& app, Action& action) {
  auto* const command =
      app.add_subcommand("snapshot", "Writes a picture of a page as the reader shows it, without a display");
  const auto arguments = std::make_shared<SnapshotArguments>();
  command->add_option("DATA", arguments->data, "the folder of the content files")->required();
  command->add_option("--mode", arguments->mode, ModesInWords())->required()->check(CLI::Range(0, kLastMode));
  command
      ->add_option("--page", arguments->pages,
                   "the page; of several the last is shown, with the others in its trail. Unless given, the\n"
                   "one on which the area opens")
      ->allow_extra_args(false)
      ->check(CLI::NonNegativeNumber)
      ->type_name("N");
  command->add_flag("--dump", arguments->dump, "print what is on the page, a line each, and where it stands");
  command->add_flag("--offsets", arguments->offsets,
                    "write below each word the offset by which a link would name it");
  command->add_option("-o,--output", arguments->output, "the picture to write")
      ->required()
      ->type_name("OUT.png");
  command->footer("Example: quillpress snapshot Data --mode 1 --page 3 --page 7 -o page7.png");
  command->callback([arguments, &action] { action = [arguments] { return RunSnapshot(*arguments); }; });
}

}  // namespace quill::quillpress
