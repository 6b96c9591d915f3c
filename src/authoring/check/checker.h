// The check of a whole bundle: opens every area's pair of files as the reader
// does, and tells what a reader would stumble over. It changes nothing, and knows of
// an area what its row of the table of modes says.
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

struct CheckResult {
  std::optional<Report> report;  // none if not every file can be opened
  bool unreadable = false;       // a file isn't there or can't be read; the others hold no content
};

// Checks the bundle of the current desktop. `notes`, UTF-8, gets a sentence for each
// file that can't be opened, and one if links were passed over.
CheckResult Check(const CheckOptions& options, std::ostream& notes);

}  // namespace quill::authoring
