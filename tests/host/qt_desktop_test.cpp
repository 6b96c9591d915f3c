// What only the desktop with pixels can show: where things are painted, and how
// the program ends.
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <csignal>
#include <set>

#include "base/exceptions.h"
#include "host/application.h"
#include "host/controls.h"
#include "host/desktop_under_test.h"

namespace quill::host {
namespace {

constexpr base::Color kRed = base::RGB(255, 0, 0);
constexpr base::Color kGreen = base::RGB(0, 255, 0);
constexpr base::Color kGray = base::RGB(95, 95, 95);

void Fill(Graphics& pen, base::Color color, const base::Rect& area) {
  pen.ForeColor = color;
  pen.FillRect(area);
}

struct Painting final : Canvas {
  using Canvas::Canvas;
  void Event_Paint() override {
    if (fails) throw base::OutOfBoundsException();
  }
  bool Event_MouseDown(std::int32_t x, std::int32_t y) override { return pressed = x > 0 && y > 0; }

  bool fails = false;
  bool pressed = false;
};

constexpr auto kPlain = WindowStyle::Frame::kDocument;

struct PaintedWindow final : Window {
  explicit PaintedWindow(WindowStyle::Frame frame = kPlain, bool close_button = false)
      : Window({"painted", 100, 50, frame, kGray, close_button}) {}

  Painting& canvas = AddControl<Painting>(nullptr, base::Rect{0, 0, 80, 50});
  Painting& child = AddControl<Painting>(&canvas, base::Rect{40, 0, 20, 50});
};

QImage Saved(QtUnderTest& under_test, Window& window) {
  const auto path = under_test.Folder() / "screen.png";
  EXPECT_TRUE(under_test.Get().SaveScreen(window, path));
  EXPECT_FALSE(under_test.Get().SaveScreen(window, path / "not in a file"));
  return QImage(path.c_str());
}

struct QtDesktopTest : testing::Test {
  // The colours at these points, as "#rrggbb" each.
  std::string Colors(std::initializer_list<QPoint> points) {
    const QImage image = Saved(under_test_, window_);
    std::string colors;
    for (const QPoint& point : points) colors += image.pixelColor(point).name().toStdString();
    return colors;
  }

  QtUnderTest under_test_;
  PaintedWindow window_;
  Painting& canvas_ = window_.canvas;
  Painting& child_ = window_.child;
};

TEST_F(QtDesktopTest, LayersLieInOrder) {
  const auto backdrop = NewPicture(80, 25, 16);
  canvas_.SetBackdrop(backdrop);
  EXPECT_EQ(Colors({{5, 24}, {5, 25}, {45, 5}, {90, 5}}), "#000000#5f5f5f#000000#5f5f5f");
  window_.Open();
  under_test_.Settle();
  Fill(*GraphicsOf(backdrop), kRed, {0, 0, 80, 25});
  EXPECT_EQ(Colors({{0, 24}, {79, 24}, {80, 24}}), "#ff0000#ff0000#5f5f5f") << "drawn into later";
  Fill(canvas_.GetGraphics(), kGreen, {0, 0, 60, 10});
  Fill(child_.GetGraphics(), base::kWhite, {-1, -1, 11, 51});
  EXPECT_EQ(Colors({{40, 5}, {49, 5}, {50, 5}, {39, 15}}), "#ffffff#ffffff#00ff00#ff0000");
  child_.SetWidth(19);
  EXPECT_EQ(Colors({{40, 5}}), "#00ff00") << "a change of size drops the drawing";
}

TEST_F(QtDesktopTest, TextStandsOnItsBaseLineAsWideAsMeasured) {
  const auto picture = NewPicture(80, 50, 16);
  canvas_.SetBackdrop(picture);
  const auto pen = GraphicsOf(picture);
  pen->ForeColor = base::kWhite;
  pen->DrawString("HHH\tH", 10, 30);
  const QImage image = Saved(under_test_, window_);
  QRect ink;
  for (int at = 0; at < 80 * 50; ++at) {
    const QPoint point(at % 80, at / 80);
    if (image.pixelColor(point).lightness() > 60) ink |= QRect(point, QSize(1, 1));
  }
  EXPECT_EQ(ink.bottom(), 29) << "the base line lies below the last row of an H";
  EXPECT_NEAR(ink.left(), 11, 1);
  EXPECT_NEAR(ink.right() + 1, 10 + pen->StringWidth("HHH\tH") - 1, 1.5);
}

TEST_F(QtDesktopTest, ALabelMakesACanvasAButtonForTheBlind) {
  auto* const screen = QAccessible::queryAccessibleInterface(
      QApplication::topLevelWidgets().front()->findChildren<QWidget*>().back());
  EXPECT_EQ(screen->role(), QAccessible::Pane);
  child_.SetLabel("caf\x8E & bar");
  EXPECT_EQ(screen->role(), QAccessible::Button);
  EXPECT_EQ(screen->text(QAccessible::Name).toStdString(), "caf\xC3\xA9 & bar");
  screen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(child_.pressed);
}

TEST(QtDensity, MetricsDoNotDependOnIt) {
  std::set<double> widths;
  for (const char* scale : {"1", "1.5", "2"}) {
    qputenv("QT_SCALE_FACTOR", scale);
    QtUnderTest under_test;
    qunsetenv("QT_SCALE_FACTOR");
    widths.insert(under_test.Get().Metrics().StringWidth({"", 12, true}, "A measured line, so to say."));
    PaintedWindow window;
    EXPECT_EQ(Saved(under_test, window).width(), 100 * std::stod(scale)) << scale;
  }
  EXPECT_EQ(widths.size(), 1u);
}

constexpr int kRunsOn = 7;

// The status with which the program ends; `kRunsOn` if it doesn't in that time.
int StatusOf(QtUnderTest& under_test, int milliseconds) {
  Application application;
  application.SetMenuBar(std::make_shared<MenuBar>());
  QTimer::singleShot(milliseconds, qApp, [] { Quit(kRunsOn); });
  return under_test.Get().Run(application);
}

TEST_F(QtDesktopTest, AnExceptionOutOfAnEventEndsTheProgram) {
  canvas_.fails = child_.fails = true;
  window_.Open();
  testing::internal::CaptureStderr();
  EXPECT_EQ(StatusOf(under_test_, 5000), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Tester has to stop: out of bounds\n");
}

TEST(QtEnd, WhatTheUserMayClose) {
  constexpr auto kDialog = WindowStyle::Frame::kDialog;
  // Without a key the window manager asks.
  const std::tuple<const char*, WindowStyle::Frame, bool, int, int, bool> rows[] = {
      {"main", kPlain, false, 0, 0, true},
      {"main, Ctrl+Q", kPlain, false, Qt::Key_Q, 0, true},
      {"main, Escape", kPlain, false, Qt::Key_Escape, kRunsOn, true},
      {"with a button", kPlain, true, 0, kRunsOn, false},
      {"dialog", kDialog, false, 0, kRunsOn, false},
      {"dialog, Escape", kDialog, false, Qt::Key_Escape, kRunsOn, false},
  };
  for (const auto& [story, frame, close_button, key, status, open] : rows) {
    QtUnderTest under_test;
    PaintedWindow window(frame, close_button);
    window.Open();
    under_test.Settle();
    const auto held = key == Qt::Key_Q ? Qt::ControlModifier : Qt::NoModifier;
    QWindow* const shown = QGuiApplication::topLevelWindows().front();
    QCoreApplication::postEvent(shown, new QKeyEvent(QEvent::KeyPress, key, held));
    if (key == 0) QCoreApplication::postEvent(shown, new QCloseEvent);
    EXPECT_EQ(StatusOf(under_test, 0), status) << story;
    EXPECT_EQ(window.IsOpen(), open) << story;
    EXPECT_EQ(under_test.ShowsWindow(), open) << story;
  }
}

TEST(QtEnd, TheSessionsSignalsEndTheProgram) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    QtUnderTest under_test;
    QTimer::singleShot(0, qApp, [signal] { std::raise(signal); });
    EXPECT_EQ(StatusOf(under_test, 5000), 0) << signal;
  }
}

struct QtEditField : testing::Test {
  struct EditWindow final : Window {
    EditWindow() : Window({"edit", 300, 200, WindowStyle::Frame::kDocument, base::kWhite, false, true}) {
      Open();
    }
    EditField& field =
        AddControl<EditField>(nullptr, base::Rect{10, 20, 200, 100}, TextStyle(), base::kWhite);
  };

  QtUnderTest under_test_;
  EditWindow window_;
  EditField& field_ = window_.field;
  QWidget& shown_ = *QApplication::topLevelWidgets().front();
  QPlainTextEdit& widget_ = *shown_.findChild<QPlainTextEdit*>();
};

TEST_F(QtEditField, GivesBackWhatNobodyChanged) {
  std::string mebibyte;
  for (int at = 0; at < 1 << 20; ++at) mebibyte += static_cast<char>(at % 251);
  for (const std::string& text :
       {mebibyte, std::string("a\r\nb\nc\rd\r\n"), std::string("\xFF\0\xC3 \x8E", 5),
        std::string("\xEF\xBB\xBFmark\xE2\x80\xA8"), std::string()}) {
    field_.SetText(text);
    EXPECT_TRUE(field_.Text() == text) << text.substr(0, 20);
  }
}

TEST_F(QtEditField, KeepsTheRestWhenTheUserTypes) {
  const std::pair<const char*, const char*> rows[] = {
      {"", "x"},
      {"emoji \xF0\x9F\x98\x80", "emoji \xF0\x9F\x98\x80x"},
      {"no-break\xC2\xA0space", "no-break\xC2\xA0spacex"},
      {"\ttabs\t", "\ttabs\tx"},
      {"many\n\n lines \n", "many\n\n lines \nx"},
      {"a\r\nmixture\nof\rlines\xE2\x80\xA8", "a\r\nmixture\nof\rlines\xE2\x80\xA8x"},
      {"\xEF\xBB\xBF\xD2 bad \xFF\x01\xEF\xB7\x90 bytes \xE2\x80",
       "\xEF\xBB\xBF\xD2 bad \xFF\x01\xEF\xB7\x90 bytes \xE2\x80x"},
  };
  for (const auto& [given, typed] : rows) {
    field_.SetText(given);
    widget_.moveCursor(QTextCursor::End);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QCoreApplication::sendEvent(&widget_, &press);
    EXPECT_EQ(field_.Text(), typed) << given;
  }
}

TEST_F(QtEditField, KeepsItsDistancesFromTheEdges) {
  for (const QSize& size : {QSize(400, 260), QSize(120, 130), QSize(300, 200)}) {
    shown_.resize(size);
    under_test_.Settle();
    EXPECT_EQ(widget_.geometry(), QRect(10, 20, size.width() - 100, size.height() - 100));
  }
}

}  // namespace
}  // namespace quill::host
