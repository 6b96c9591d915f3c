// `quillpress index`: the content files in, the index for the reader's Find out.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "app/mode_table.h"
#include "authoring/complaint.h"
#include "quillpress/commands.h"
#include "quillpress/data_view.h"
#include "quillpress/output_file.h"
#include "quillpress/workplace.h"
#include "search/index.h"

namespace quill::quillpress {
namespace {

// It would be lost, and the index with it, since it is made from the content.
void RequireNoContentFile(const std::filesystem::path& data, const std::string& output) {
  for (const app::Mode& mode : app::kModes)
    for (const auto name : {mode.content_file, mode.glossary_file})
      if (IsSameFile(data / name, output))
        throw authoring::FileComplaint(output + " is a content file; nothing was written.");
}

// An index that lacks an area would look like a whole one.
void RequireAllRead(const search::Library& library) {
  for (const search::Source& source : library.sources)
    if (source.hash == 0) throw authoring::FileComplaint(source.name + " can't be read.");
}

ExitStatus RunIndex(const std::string& data, const std::string& output) {
  RequireFolder(data);
  RequireNoContentFile(data, output);
  const Workplace workplace(BundleView(data));
  RequireContent();
  search::Library library = search::ReadLibrary();
  RequireAllRead(library);
  if (!WriteFile(output, search::Index(std::move(library)).FileBytes()))
    throw authoring::FileComplaint(output + " can't be written.");
  return kDone;
}

}  // namespace

void AddIndexCommand(CLI::App& app, Action& action) {
  struct Arguments {
    std::string data;
    std::string output;
  };
  auto* const command = app.add_subcommand("index", "Makes the index in which the reader finds words");
  const auto arguments = std::make_shared<Arguments>();
  command->add_option("DATA", arguments->data, "the folder of the content files")->required();
  command->add_option("-o,--output", arguments->output, "the index to write")->required()->type_name("FILE");
  command->footer("The reader looks for it among the content files, by the name " +
                  std::string(search::kIndexFile) +
                  ", and makes one of its own if it belongs to\nother content.\n"
                  "Example: quillpress index Data -o Data/" +
                  std::string(search::kIndexFile));
  command->callback([arguments, &action] {
    action = [arguments] { return RunIndex(arguments->data, arguments->output); };
  });
}

}  // namespace quill::quillpress
