// Find: a small window beside the viewer, with a field and a list, that leads from
// words to the pages and glossary entries that have them. It shows a hit as a link
// would, and marks the words on the page.
//
// What is found is for `search::Index` to say. It is made when the window opens, from
// the content as it is then, so that a hit leads to what the viewer will read too.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/app.h"
#include "host/controls.h"
#include "nav/display_window.h"
#include "search/index.h"

namespace quill::sidewindows {

class FindWindow final : public host::Window {
 public:
  // `words` (UTF-8) are what was typed the last time, kept by the caller, as all three
  // for longer than this window. `show_entry` opens the glossary of the area on show.
  FindWindow(app::App& app, nav::DisplayWindow& viewer,
             std::function<void(const std::string& page)> show_entry, std::string& words);

 private:
  void Event_Open() override;
  void Find(const std::string& words);
  void Choose(std::size_t row);
  void ShowHit(const search::Hit& hit);
  void TryInstead(const std::string& word);

  host::FindBox& box_;
  app::App& app_;
  nav::DisplayWindow& viewer_;
  std::function<void(const std::string& page)> show_entry_;
  std::string& words_;
  std::unique_ptr<search::Index> index_;  // once the window has opened
  search::Answer answer_;                 // to the words, as listed
};

}  // namespace quill::sidewindows
