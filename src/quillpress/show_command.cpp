// `quillpress show`: prints a file, or the element that a path leads to.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

#include "authoring/complaint.h"
#include "host/qt/qt_files.h"
#include "markup/container.h"
#include "quillpress/commands.h"
#include "quillpress/workplace.h"

namespace quill::quillpress {
namespace {

// Markup in the form of a terminal: lines end as they do there. What isn't ASCII
// stands in it as references.
std::string ForTerminal(std::string markup) {
  std::replace(markup.begin(), markup.end(), '\r', '\n');
  if (!markup.ends_with('\n')) markup += '\n';
  return markup;
}

// Any file of markup, in whatever folder: no bundle is needed, only a desktop on which
// the parser's messages show.
ExitStatus RunShow(const std::string& file, const std::string& path) {
  const Workplace workplace(nullptr);
  const auto item = host::DiskItem(file);
  if (!item->OpenAsBinaryFile()) throw authoring::FileComplaint(file + " can't be read.");
  std::unique_ptr<const markup::zkXMLContainer> container;
  try {
    container = std::make_unique<const markup::zkXMLContainer>(item);
  } catch (const std::exception&) {
    throw authoring::Complaint(file + " holds no well-formed markup.");
  }
  if (path.empty()) {
    std::cout << ForTerminal(container->GetXMLString());
    return kDone;
  }
  const auto element = container->GetDeepElement(path);
  if (!element) throw authoring::Complaint(file + " has no element at the path " + path + ".");
  std::cout << ForTerminal(element->GetXMLString());
  return kDone;
}

}  // namespace

void AddShowCommand(CLI::App& app, Action& action) {
  struct Arguments {
    std::string file;
    std::string path;
  };
  auto* const command = app.add_subcommand("show", "Prints a file, or the element that a path leads to");
  const auto arguments = std::make_shared<Arguments>();
  command->add_option("FILE", arguments->file, "the file")->required();
  command->add_option("PATH", arguments->path,
                      "names parted by points, each with its number, and an attribute and its value, in\n"
                      "parentheses if need be; numbers count from 1, so that page 7 is Page(8)");
  command->footer("Example: quillpress show ScreenQMR.xml 'Root.Document.Page(8).Links.Link(2)'");
  command->callback(
      [arguments, &action] { action = [arguments] { return RunShow(arguments->file, arguments->path); }; });
}

}  // namespace quill::quillpress
