#include "host/qt/qt_desktop.h"

#include <QFile>
#include <QGuiApplication>
#include <QMessageBox>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <utility>

#include "base/text_converter.h"
#include "host/application.h"
#include "host/controls.h"
#include "host/qt/qt_accessible.h"
#include "host/qt/qt_application.h"
#include "host/qt/qt_contrast.h"
#include "host/qt/qt_documents.h"
#include "host/qt/qt_files.h"
#include "host/qt/qt_graphics.h"
#include "host/qt/qt_instance.h"
#include "host/qt/qt_places.h"
#include "host/qt/qt_signals.h"
#include "host/qt/qt_text.h"
#include "host/qt/qt_view.h"
#include "host/qt/qt_window.h"

// The pictures lie in a static library, whose resources nobody registers
// unasked. The macro must stand outside every namespace.
static void RegisterPictures() { Q_INIT_RESOURCE(pictures); }

namespace quill::host {
namespace {

bool IsSet(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

void ShowBox(const std::string& title, const QString& text, const QString& details = {}) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(QString::fromStdString(title));
  box.setIcon(QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setDetailedText(details);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

// Tells the toolkit what it reads while its application object is being made.
QtDesktop::Options Prepared(QtDesktop::Options options) {
  if (options.screen == QtDesktop::Screen::kNone) qputenv("QT_QPA_PLATFORM", "offscreen");
  return options;
}

std::filesystem::path ExecutableFolder() { return QCoreApplication::applicationDirPath().toStdString(); }

}  // namespace

bool HasDisplay() {
  constexpr std::array kVariables = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  return std::any_of(kVariables.begin(), kVariables.end(), IsSet);
}

// The toolkit ends the process with an abort when nobody serves the display that
// the environment names. While this lives, it ends with a line and status 1.
class DisplayGuard {
 public:
  DisplayGuard() : before_(qInstallMessageHandler(Take)) {}
  ~DisplayGuard() { qInstallMessageHandler(before_); }
  DisplayGuard(const DisplayGuard&) = delete;
  DisplayGuard& operator=(const DisplayGuard&) = delete;

 private:
  // The toolkit's own words speak of installing it anew, which mends nothing.
  static void Take(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
    if (type != QtFatalMsg) return;
    const char* const display = std::getenv("DISPLAY");
    std::cerr << "The display can't be opened" << (display ? ": " + std::string(display) : "") << std::endl;
    std::_Exit(1);
  }

  QtMessageHandler before_;
};

// The toolkit calls `exit` in the middle of an event when the X server has gone. While
// this lives, that saves what the windows hold; nothing else is left to be done.
class ExitGuard {
 public:
  ExitGuard() {
    static const int registered = std::atexit([] {
      if (alive_) SaveAllWindows();
    });
    alive_ = registered == 0;
  }
  ~ExitGuard() { alive_ = false; }
  ExitGuard(const ExitGuard&) = delete;
  ExitGuard& operator=(const ExitGuard&) = delete;

 private:
  static inline bool alive_ = false;
};

// The toolkit's application object goes last, the metrics hold its fonts.
struct QtDesktop::Parts {
  Parts(int& argc, char** argv, Product given_product, Options given)
      : product(std::move(given_product)),
        options(Prepared(std::move(given))),
        toolkit(argc, argv, [this](const std::string& what) { Fail(what); }),
        view(options.screen == Screen::kNone ? std::filesystem::path() : ViewFile()) {
    guard.reset();
    RegisterPictures();
    QApplication::setApplicationName(QString::fromStdString(product.name));
    QApplication::setQuitOnLastWindowClosed(false);
    AnnounceControls();
    // A session manager asks before it ends the session.
    QObject::connect(&toolkit, &QGuiApplication::commitDataRequest, [] { SaveAllWindows(); });
  }

  void Quit(int code);
  void Fail(const std::string& what);
  void Say(const std::string& text) const;
  void TellFailure(const std::string& text);
  void EndSession();

  Product product;
  Options options;
  std::optional<DisplayGuard> guard = std::make_optional<DisplayGuard>();  // until the toolkit is there
  GuardedApplication toolkit;
  QtMetrics metrics;
  QtView view;
  std::optional<int> quit_code;
  std::optional<SessionSignals> session;  // from the first turn of the loop on
  bool session_ends = false;
  bool has_commands = false;
  bool failed = false;
};

void QtDesktop::Parts::Quit(int code) {
  if (!quit_code) quit_code = code;
  QCoreApplication::exit(*quit_code);
}

// A box that stands then goes too, and none comes up any more.
void QtDesktop::Parts::EndSession() {
  session_ends = true;
  Quit(0);
}

void QtDesktop::Parts::Say(const std::string& text) const {
  if (quit_code) return;
  if (options.messages == Messages::kStandardError) {
    std::cerr << base::MacRomanToUtf8(text) << std::endl;
  } else {
    ShowBox(product.name, Message(text));
  }
}

// A box may not be opened from within a painting, nor wherever else the
// exception came from; the loop opens it next. While it stands more may fail,
// which adds nothing.
void QtDesktop::Parts::Fail(const std::string& what) {
  if (std::exchange(failed, true)) return;
  const std::string text = product.name + " has to stop: " + what;
  std::cerr << text << std::endl;
  QMetaObject::invokeMethod(
      &toolkit, [this, text] { TellFailure(text); }, Qt::QueuedConnection);
}

void QtDesktop::Parts::TellFailure(const std::string& text) {
  if (options.messages == Messages::kBox && !quit_code) ShowBox(product.name, Message(text));
  Quit(1);
}

QtDesktop::QtDesktop(int& argc, char** argv, Product product)
    : QtDesktop(argc, argv, std::move(product), Options()) {}

QtDesktop::QtDesktop(int& argc, char** argv, Product product, Options options)
    : parts_(std::make_unique<Parts>(argc, argv, std::move(product), std::move(options))) {}

// Widgets of controls that have gone wait for a turn of the loop, which may
// not come any more.
QtDesktop::~QtDesktop() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

int QtDesktop::Run(Application& application) {
  parts_->has_commands = application.GetMenuBar() != nullptr;
  if (parts_->quit_code) return *parts_->quit_code;
  parts_->session.emplace([this] { parts_->EndSession(); });
  const ExitGuard exits;
  const DesktopContrast contrast([this](bool high) { parts_->view.SetDesktopContrast(high); });
  return QApplication::exec();
}

void QtDesktop::Heed(Instance& instance) { instance.Listen(RaiseMainWindow); }

bool QtDesktop::HasQuit() const { return parts_->quit_code.has_value(); }

bool QtDesktop::SaveScreen(Window& window, const std::filesystem::path& path) {
  return dynamic_cast<QtWindow&>(window.Peer()).Save(path);
}

void QtDesktop::MsgBox(const std::string& text) { parts_->Say(text); }

// The line in the terminal is all there is for those who can't wait for a box.
void QtDesktop::Tell(const std::string& words, const std::string& rescued) {
  std::cerr << words << (rescued.empty() ? "" : "\n") << rescued << std::endl;
  if (parts_->options.messages == Messages::kBox && !parts_->session_ends)
    ShowBox(parts_->product.name, QString::fromStdString(words), QString::fromStdString(rescued));
}

void QtDesktop::Quit(std::int32_t code) { parts_->Quit(code); }

std::shared_ptr<FolderItem> QtDesktop::ApplicationFolder() {
  if (parts_->options.application) return parts_->options.application;
  const std::filesystem::path& given = parts_->options.application_folder;
  return DiskItem(given.empty() ? ExecutableFolder() : given);
}

std::shared_ptr<FolderItem> QtDesktop::PreferencesFolder() {
  const std::filesystem::path folder = ConfigFolder();
  return folder.empty() ? nullptr : DiskItem(folder);
}

// What the user types outlives the session in the first; the second lies in memory,
// where there is room when disks are full.
std::vector<std::shared_ptr<FolderItem>> QtDesktop::RecoveryFolders() {
  std::vector<std::shared_ptr<FolderItem>> folders;
  for (const std::filesystem::path& folder : {StateFolder(), RuntimeFolder()})
    if (!folder.empty()) folders.push_back(DiskItem(folder));
  return folders;
}

bool QtDesktop::OpenDocument(const std::string& application, const std::string& path) {
  const auto companion = parts_->product.companions.find(application);
  return StartApplication(companion == parts_->product.companions.end() ? "" : companion->second, path,
                          [this](const std::string& what) { parts_->Say(base::Utf8ToMacRoman(what)); });
}

FontMetrics& QtDesktop::Metrics() { return parts_->metrics; }

std::shared_ptr<Picture> QtDesktop::NewPicture(std::int32_t width, std::int32_t height,
                                               std::int32_t /*depth*/) {
  return IsPictureSize(width, height) ? NewDrawnPicture(parts_->metrics, width, height) : nullptr;
}

std::shared_ptr<Picture> QtDesktop::StoredPicture(std::int32_t id) {
  const auto name = parts_->product.pictures.find(id);
  if (name == parts_->product.pictures.end()) return nullptr;
  QFile file(QStringLiteral(":/pictures/%1.svg").arg(QString::fromStdString(name->second)));
  return file.open(QIODevice::ReadOnly) ? NewStoredPicture(parts_->metrics, file.readAll()) : nullptr;
}

std::unique_ptr<WindowPeer> QtDesktop::NewWindow(const WindowStyle& style, Window& window) {
  return std::make_unique<QtWindow>(style, window, parts_->metrics, parts_->view, [this] {
    if (parts_->has_commands) Quit(0);
  });
}

}  // namespace quill::host
