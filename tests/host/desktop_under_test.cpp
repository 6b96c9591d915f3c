#include "host/desktop_under_test.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>
#include <fstream>

#include "host/application.h"
#include "host/memory/memory_desktop.h"

namespace quill::host {
namespace {

class MemoryUnderTest final : public DesktopUnderTest {
 public:
  // Bold is wider here as well.
  MemoryUnderTest() { desktop_.metrics.bold_extra = 1; }

  Desktop& Get() override { return desktop_; }
  void AddFile(const std::string& path, const std::string& bytes) override { files_.AddFile(path, bytes); }
  void Move(std::int32_t x, std::int32_t y) override { Screen().MoveMouse(x, y); }
  void Press() override { Screen().Press(); }
  void PressAgain() override { Screen().PressAgain(); }
  void Release() override { Screen().Release(); }
  void Settle() override { Screen().Paint(); }
  bool ShowsWindow() override { return Screen().shown && !Screen().closed; }
  void Minimise() override { Screen().minimised = true; }
  bool IsMinimised() override { return Screen().minimised; }
  std::int32_t QuitCode() override { return desktop_.quit_code.value(); }

 private:
  MemoryScreen& Screen() { return *desktop_.screens.back(); }

  MemoryDesktop desktop_{TestProduct()};
  MemoryFiles& files_ = desktop_.files;
};

// Null if none is shown.
QWindow* ShownWindow() {
  for (QWindow* window : QGuiApplication::topLevelWindows())
    if (window->isVisible()) return window;
  return nullptr;
}

}  // namespace

void QtUnderTest::AddFile(const std::string& path, const std::string& bytes) {
  const std::filesystem::path file = Folder() / path;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

void QtUnderTest::Move(std::int32_t x, std::int32_t y) {
  mouse_ = QPoint(x, y);
  QCursor::setPos(ShownWindow()->mapToGlobal(mouse_));
  Settle();
}

void QtUnderTest::Send(QEvent::Type type, Qt::MouseButtons held, quint64 pause) {
  QWindow* const window = ShownWindow();
  QMouseEvent event(type, mouse_, window->mapToGlobal(mouse_), Qt::LeftButton, held, Qt::NoModifier);
  event.setTimestamp(time_ += pause);
  QCoreApplication::sendEvent(window, &event);
  Settle();
}

void QtUnderTest::Settle() {
  constexpr int kRounds = 3;  // an event of the window system, what it causes, and the painting
  for (int round = 0; round < kRounds; ++round) QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool QtUnderTest::ShowsWindow() { return ShownWindow() != nullptr; }
void QtUnderTest::Minimise() { QApplication::topLevelWidgets().front()->showMinimized(); }
bool QtUnderTest::IsMinimised() { return QApplication::topLevelWidgets().front()->isMinimized(); }

std::int32_t QtUnderTest::QuitCode() {
  Application application;
  return desktop_.Run(application);
}

std::string DesktopName(const testing::TestParamInfo<Which>& which) {
  return which.param == Which::kMemory ? "Memory" : "Qt";
}

Product TestProduct() { return {"Tester", {{"COMP", "companion"}}, {{7, "stage"}, {9, "qmr"}}}; }

std::unique_ptr<DesktopUnderTest> MakeDesktop(Which which) {
  if (which == Which::kMemory) return std::make_unique<MemoryUnderTest>();
  return std::make_unique<QtUnderTest>();
}

bool Save(const FolderItem& file, const std::string& text) {
  const auto stream = file.CreateTextFile();
  if (!stream) return false;
  stream->Write(text);
  return stream->Close();
}

std::string LinesOf(const FolderItem& file) {
  const auto stream = file.OpenAsTextFile();
  if (!stream) return "none";
  std::string lines;
  while (!stream->AtEnd()) lines += "[" + stream->ReadLine() + "]";
  return lines;
}

}  // namespace quill::host
