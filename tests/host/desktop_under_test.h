// One face for both desktops, so that one suite of tests holds them to the same
// contract: what a tester does to a desktop from outside.
#pragma once

#include <gtest/gtest.h>

#include <QEvent>
#include <QPoint>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "host/desktop.h"
#include "host/product.h"
#include "host/qt/qt_desktop.h"
#include "support/temporary_folder.h"

namespace quill::host {

class DesktopUnderTest {
 public:
  virtual ~DesktopUnderTest() = default;

  virtual Desktop& Get() = 0;

  // A file in the folder that holds the bundle; folders come with it.
  virtual void AddFile(const std::string& path, const std::string& bytes) = 0;

  // The left button and the pointer, in the window opened last.
  virtual void Move(std::int32_t x, std::int32_t y) = 0;
  virtual void Press() = 0;

  // The second press of a double click.
  virtual void PressAgain() = 0;
  virtual void Release() = 0;

  // Lets the desktop deliver what is waiting, painting included.
  virtual void Settle() = 0;

  // Whether a window is on the screen.
  virtual bool ShowsWindow() = 0;

  // Minimises the window opened last; tells whether it is.
  virtual void Minimise() = 0;
  virtual bool IsMinimised() = 0;

  // The status with which the program would end; it must have quit.
  virtual std::int32_t QuitCode() = 0;
};

// What both desktops are told of the program. The pictures are the real ones.
Product TestProduct();

enum class Which { kMemory, kQt };

std::unique_ptr<DesktopUnderTest> MakeDesktop(Which which);

// The desktop that people run, without a screen and without boxes, driven
// through the toolkit's own events. Its files lie in a folder that goes with it.
class QtUnderTest final : public DesktopUnderTest {
 public:
  QtUnderTest()
      : desktop_(argument_count_, arguments_, TestProduct(),
                 {.application_folder = Folder(),
                  .application = nullptr,
                  .messages = QtDesktop::Messages::kStandardError,
                  .screen = QtDesktop::Screen::kNone}) {}

  QtDesktop& Get() override { return desktop_; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  void AddFile(const std::string& path, const std::string& bytes) override;
  void Move(std::int32_t x, std::int32_t y) override;
  void Press() override { Send(QEvent::MouseButtonPress, Qt::LeftButton, kPause); }
  void PressAgain() override { Send(QEvent::MouseButtonPress, Qt::LeftButton, 1); }
  void Release() override { Send(QEvent::MouseButtonRelease, Qt::NoButton, 1); }
  void Settle() override;
  bool ShowsWindow() override;
  void Minimise() override;
  bool IsMinimised() override;
  std::int32_t QuitCode() override;

 private:
  // Hands the event to the toolkit's window, which finds the widget for it as
  // it would for a mouse.
  void Send(QEvent::Type type, Qt::MouseButtons held, quint64 pause);

  // Milliseconds between clicks that don't belong together.
  static constexpr quint64 kPause = 5000;
  static inline quint64 time_ = kPause;

  static inline int argument_count_ = 1;
  static inline char name_[] = "host_test";
  static inline char* arguments_[] = {name_, nullptr};

  tests::TemporaryFolder folder_;
  QtDesktop desktop_;
  QPoint mouse_;
};

// A suite that runs against both.
struct OnBothDesktops : testing::TestWithParam<Which> {
  std::unique_ptr<DesktopUnderTest> under_test_ = MakeDesktop(GetParam());
  Desktop& desktop_ = under_test_->Get();
};

inline auto BothDesktops() { return testing::Values(Which::kMemory, Which::kQt); }

std::string DesktopName(const testing::TestParamInfo<Which>& which);

// Makes the file anew with that text; false if it can't be.
bool Save(const FolderItem& file, const std::string& text);

// The lines of the file, each in brackets; "none" if it can't be opened.
std::string LinesOf(const FolderItem& file);

}  // namespace quill::host
