// The application object and the menu bar, as the host knows them.
#pragma once

#include <memory>

namespace quill::host {

// A program's menu bar. Empty: a desktop adds the commands that are its own,
// such as the one that quits.
class MenuBar {};

class Application {
 public:
  virtual ~Application() = default;

  void SetMenuBar(std::shared_ptr<host::MenuBar> menu_bar) { menu_bar_ = std::move(menu_bar); }
  const std::shared_ptr<host::MenuBar>& GetMenuBar() const { return menu_bar_; }

  // Comes before the Open event of the first window.
  virtual void Event_Open() {}

 private:
  std::shared_ptr<host::MenuBar> menu_bar_;
};

}  // namespace quill::host
