// One face for both desktops, so that one suite of tests holds them to the same
// contract: what a tester does to a desktop from outside.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "host/desktop.h"
#include "host/qt/qt_desktop.h"

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
  virtual void Release() = 0;

  // Lets the desktop deliver what is waiting, painting included.
  virtual void Settle() = 0;
};

enum class Which { kMemory, kQt };

std::unique_ptr<DesktopUnderTest> MakeDesktop(Which which);

// A folder on the disk that goes with the object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The desktop that people run, without a screen and without boxes, driven
// through the toolkit's own events.
class QtUnderTest final : public DesktopUnderTest {
 public:
  QtUnderTest() : desktop_(ArgumentCount(), Arguments(), {folder_.Path(), kMessages, kScreen}) {}

  QtDesktop& Get() override { return desktop_; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  void AddFile(const std::string& path, const std::string& bytes) override;
  void Move(std::int32_t x, std::int32_t y) override;
  void Press() override;
  void Release() override;
  void Settle() override;

 private:
  static constexpr auto kMessages = QtDesktop::Messages::kStandardError;
  static constexpr auto kScreen = QtDesktop::Screen::kNone;

  static int& ArgumentCount();
  static char** Arguments();

  TemporaryFolder folder_;
  QtDesktop desktop_;
  std::int32_t x_ = 0;
  std::int32_t y_ = 0;
};

// A suite that runs against both.
class OnBothDesktops : public testing::TestWithParam<Which> {
 protected:
  std::unique_ptr<DesktopUnderTest> under_test_ = MakeDesktop(GetParam());
  Desktop& desktop_ = under_test_->Get();
};

inline auto BothDesktops() { return testing::Values(Which::kMemory, Which::kQt); }

std::string DesktopName(const testing::TestParamInfo<Which>& which);

}  // namespace quill::host
