// The check of a whole bundle: opens every area's pair of files as the reader
// does, and tells what a reader would stumble over. It changes nothing.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "app/mode_table.h"
#include "authoring/check/report.h"

namespace quill::authoring {

struct CheckOptions {
  // The areas; must outlive the check.
  app::Modes modes = app::kModes;

  // Whether the folder of the documents outside the bundle is known. Without it
  // links to them are passed over, and a note says so.
  bool documents_known = true;
  // Told what is under way.
  std::function<void(const std::string& file)> progress = [](const std::string&) {};
};

// Checks the bundle of the current desktop. Without a value if not every file can
// be opened; `notes` then has a sentence for each.
std::optional<Report> Check(const CheckOptions& options, std::ostream& notes);

}  // namespace quill::authoring
