// A whole reader on the desktop in memory, with content that a test gives. It
// fails the test that leaves a message unseen.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/product.h"
#include "host/memory/memory_desktop.h"
#include "reader/program.h"
#include "support/content_xml.h"
#include "support/messages.h"

namespace quill::tests {

class Reader {
 public:
  // `modes` must outlive the reader.
  explicit Reader(app::Modes modes = app::kModes)
      : program_(std::make_optional<Program>(modes)), modes_(modes) {
    desktop.files.AddFile("Quillmere.app/Contents/Version", " 1.2.3\r\n");
    for (std::size_t mode = 0; mode < modes.size(); ++mode) {
      SetPages(mode, {{"Cover", {"cover"}}});
      SetFile(modes[mode].glossary_file, ContentXml({{"Entry", {"entry"}}}));
    }
  }

  void SetFile(std::string_view name, std::string bytes) {
    desktop.files.AddFile("Quillmere.app/Contents/Data/" + std::string(name), std::move(bytes));
  }

  void SetPages(std::size_t mode, const std::vector<TestPage>& pages) {
    SetFile(modes_[mode].content_file, ContentXml(pages));
  }

  // The viewer, which opens at the first call.
  nav::DisplayWindow& Viewer() { return program_->DisplayWindow(); }

  app::App& App() { return program_->App(); }

  // What the end of the program does; there is nothing to ask of it afterwards.
  void EndProgram() { program_.reset(); }

  // What the viewer's window shows.
  host::MemoryScreen& Screen() { return *desktop.screens.at(0); }

  // Clicks on each label in turn; false as soon as one isn't there.
  bool Click(const std::vector<std::string>& labels) {
    for (const std::string& label : labels)
      if (!Screen().ClickLabel(label)) return false;
    return true;
  }

  std::vector<std::string> TakeMessages() { return tests::TakeMessages(desktop); }

  host::MemoryDesktop desktop{app::Quillmere()};

 private:
  const NoUnseenMessages no_unseen_messages_{desktop};
  std::optional<Program> program_;
  app::Modes modes_;
};

}  // namespace quill::tests
