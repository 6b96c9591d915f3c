#include "host/desktop_under_test.h"

#include <stdlib.h>

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>
#include <fstream>
#include <stdexcept>

#include "host/memory/memory_desktop.h"

namespace quill::host {
namespace {

class MemoryUnderTest final : public DesktopUnderTest {
 public:
  // Bold is wider here as well.
  MemoryUnderTest() { desktop_.metrics.bold_extra = 1; }

  Desktop& Get() override { return desktop_; }
  void AddFile(const std::string& path, const std::string& bytes) override {
    desktop_.files.AddFile(path, bytes);
  }
  void Move(std::int32_t x, std::int32_t y) override { Screen().MoveMouse(x, y); }
  void Press() override { Screen().Press(); }
  void Release() override { Screen().Release(); }
  void Settle() override { Screen().Paint(); }

 private:
  MemoryScreen& Screen() { return *desktop_.screens.back(); }

  MemoryDesktop desktop_;
};

QWindow& ShownWindow() {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible()) return *window;
  }
  throw std::logic_error("no window is shown");
}

// Hands the event to the toolkit's window, which finds the widget for it as it
// would for a mouse.
void Send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held) {
  QWindow& window = ShownWindow();
  QMouseEvent event(type, at, window.mapToGlobal(at), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &event);
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "quillmere-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

int& QtUnderTest::ArgumentCount() {
  static int count = 1;
  return count;
}

char** QtUnderTest::Arguments() {
  static char name[] = "host_test";
  static char* arguments[] = {name, nullptr};
  return arguments;
}

void QtUnderTest::AddFile(const std::string& path, const std::string& bytes) {
  const std::filesystem::path file = folder_.Path() / path;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

void QtUnderTest::Move(std::int32_t x, std::int32_t y) {
  x_ = x;
  y_ = y;
  QCursor::setPos(ShownWindow().mapToGlobal(QPoint(x, y)));
  Settle();
}

void QtUnderTest::Press() {
  Send(QEvent::MouseButtonPress, QPointF(x_, y_), Qt::LeftButton, Qt::LeftButton);
  Settle();
}

void QtUnderTest::Release() {
  Send(QEvent::MouseButtonRelease, QPointF(x_, y_), Qt::LeftButton, Qt::NoButton);
  Settle();
}

void QtUnderTest::Settle() {
  constexpr int kRounds = 3;  // an event of the window system, what it causes, and the painting
  for (int round = 0; round < kRounds; ++round) QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::string DesktopName(const testing::TestParamInfo<Which>& which) {
  return which.param == Which::kMemory ? "Memory" : "Qt";
}

std::unique_ptr<DesktopUnderTest> MakeDesktop(Which which) {
  if (which == Which::kMemory) return std::make_unique<MemoryUnderTest>();
  return std::make_unique<QtUnderTest>();
}

}  // namespace quill::host
