#include "main/program.h"

#include "app/menu.h"
#include "host/desktop.h"

namespace quill {
namespace {

// The windows that aren't there yet say so.
nav::SideWindows SideWindows() {
  return {[](const std::string&) { host::MsgBox("This version of Quillmere has no glossary window yet."); },
          [] { host::MsgBox("This version of Quillmere has no notes pad yet."); }};
}

}  // namespace

Program::Program() {
  app_.SetMenuBar(std::make_shared<app::Menu>());
  app_.Event_Open();
}

nav::DisplayWindow& Program::DisplayWindow() {
  if (!viewer_) {
    viewer_ = std::make_unique<nav::DisplayWindow>(app_, SideWindows());
    viewer_->Open();
  }
  return *viewer_;
}

}  // namespace quill
