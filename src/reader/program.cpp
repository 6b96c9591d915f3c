#include "reader/program.h"

#include "app/menu.h"
#include "host/desktop.h"

namespace quill {

Program::Program(app::Modes modes) : app_(modes) {
  app_.SetMenuBar(std::make_shared<app::Menu>());
  app_.Event_Open();
}

Program::~Program() {
  if (notes_) notes_->Close();
}

nav::DisplayWindow& Program::DisplayWindow() {
  if (!viewer_) {
    viewer_ = std::make_unique<nav::DisplayWindow>(
        app_, nav::SideWindows{[this](const std::string& page) { GlossaryWindow().ShowPage(page); },
                               [this] { FreeAssociation().Show(); }, [this] { FindWindow().Show(); }});
    viewer_->Open();
  }
  return *viewer_;
}

sidewindows::GlossaryWindow& Program::GlossaryWindow() {
  if (!glossary_ || !glossary_->IsOpen()) {
    glossary_ = std::make_unique<sidewindows::GlossaryWindow>(app_, DisplayWindow());
    glossary_->Open();
  }
  return *glossary_;
}

sidewindows::FreeAssociation& Program::FreeAssociation() {
  if (!notes_ || !notes_->IsOpen()) {
    notes_ = std::make_unique<sidewindows::FreeAssociation>();
    notes_->Open();
  }
  return *notes_;
}

sidewindows::FindWindow& Program::FindWindow() {
  if (!find_ || !find_->IsOpen()) {
    find_ = std::make_unique<sidewindows::FindWindow>(
        app_, DisplayWindow(), [this](const std::string& page) { GlossaryWindow().ShowPage(page); },
        find_words_);
    find_->Open();
  }
  return *find_;
}

}  // namespace quill
