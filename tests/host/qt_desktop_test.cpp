// What only the desktop with pixels can show: where things are painted, and how
// the program ends.
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <fstream>

#include "host/application.h"
#include "host/controls.h"
#include "host/desktop_under_test.h"
#include "host/exceptions.h"

namespace quill::host {
namespace {

constexpr Color kRed = RGB(255, 0, 0);
constexpr Color kGreen = RGB(0, 255, 0);
constexpr Color kGray = RGB(95, 95, 95);

class Painting final : public Canvas {
 public:
  using Canvas::Canvas;
  void Event_Paint() override {
    if (fails) throw OutOfBoundsException();
  }
  void Fill(Color color, const Rect& area) {
    GetGraphics().ForeColor = color;
    GetGraphics().FillRect(area);
  }
  bool Event_MouseDown(std::int32_t x, std::int32_t y) override { return pressed = x > 0 && y > 0; }
  void Say(const std::string& label) { Peer().SetLabel(label); }

  bool fails = false;
  bool pressed = false;
};

class PaintedWindow final : public Window {
 public:
  PaintedWindow()
      : Window({"painted", 100, 50, WindowStyle::Frame::kDocument, kGray}),
        canvas(AddControl<Painting>(nullptr, Rect{0, 0, 80, 50})),
        child(AddControl<Painting>(&canvas, Rect{40, 0, 20, 50})) {}

  Painting& canvas;
  Painting& child;
};

class QtDesktopTest : public testing::Test {
 protected:
  QImage Saved(Window& window) {
    const auto path = under_test_.Folder() / "screen.png";
    EXPECT_TRUE(under_test_.Get().SaveScreen(window, path));
    return QImage(QString::fromStdString(path.string()));
  }

  // The colours at these points, as "#rrggbb" each.
  std::string Colors(Window& window, std::initializer_list<QPoint> points) {
    const QImage image = Saved(window);
    std::string colors;
    for (const QPoint& point : points) {
      colors += (colors.empty() ? "" : " ") + image.pixelColor(point).name().toStdString();
    }
    return colors;
  }

  QtUnderTest under_test_;
};

TEST_F(QtDesktopTest, LayersLieInOrder) {
  PaintedWindow window;
  EXPECT_EQ(Colors(window, {{5, 5}, {90, 5}}), "#5f5f5f #5f5f5f") << "nothing drawn: the window shows";
  const auto backdrop = NewPicture(80, 25, 16);
  window.canvas.SetBackdrop(backdrop);
  EXPECT_EQ(Colors(window, {{5, 24}, {5, 25}, {45, 5}}), "#000000 #5f5f5f #000000");
  GraphicsOf(backdrop)->ForeColor = kRed;
  GraphicsOf(backdrop)->FillRect({0, 0, 80, 25});
  EXPECT_EQ(Colors(window, {{5, 24}}), "#ff0000") << "drawn into the backdrop later";
  window.canvas.Fill(kGreen, {0, 0, 60, 10});
  window.child.Fill(kWhite, {-1, -1, 11, 51});
  EXPECT_EQ(Colors(window, {{39, 5}, {40, 5}, {49, 5}, {50, 5}, {39, 15}}),
            "#00ff00 #ffffff #ffffff #00ff00 #ff0000");
  window.child.SetWidth(19);
  EXPECT_EQ(Colors(window, {{40, 5}}), "#00ff00") << "a change of size drops the drawing";
  window.canvas.SetBackdrop(nullptr);
  window.canvas.SetVisible(false);
  EXPECT_EQ(Colors(window, {{5, 5}}), "#5f5f5f");
}

TEST_F(QtDesktopTest, AShownBackdropFollowsItsPicture) {
  PaintedWindow window;
  const auto backdrop = NewPicture(80, 50, 16);
  window.canvas.SetBackdrop(backdrop);
  window.Open();
  under_test_.Settle();
  GraphicsOf(backdrop)->ForeColor = kRed;
  GraphicsOf(backdrop)->DrawLine(0, 7, 79, 7);
  EXPECT_EQ(Colors(window, {{0, 7}, {79, 7}, {0, 6}, {0, 8}, {80, 7}}),
            "#ff0000 #ff0000 #000000 #000000 #5f5f5f");
}

TEST_F(QtDesktopTest, TextStandsOnItsBaseLineAsWideAsMeasured) {
  PaintedWindow window;
  const auto picture = NewPicture(80, 50, 16);
  window.canvas.SetBackdrop(picture);
  const auto pen = GraphicsOf(picture);
  pen->ForeColor = kWhite;
  pen->DrawString("HHH\tH", 10, 30);
  const QImage image = Saved(window);
  QRect ink;
  for (int y = 0; y < 50; ++y) {
    for (int x = 0; x < 80; ++x) {
      if (image.pixelColor(x, y).lightness() > 60) ink |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_EQ(ink.bottom(), 29) << "the base line lies below the last row of an H";
  EXPECT_NEAR(ink.left(), 11, 1);
  EXPECT_NEAR(ink.right() + 1, 10 + pen->StringWidth("HHH\tH") - 1, 1.5);
}

TEST_F(QtDesktopTest, ALabelMakesACanvasAButtonForTheBlind) {
  PaintedWindow window;
  window.Open();
  QAccessibleInterface* const screen = QAccessible::queryAccessibleInterface(
      QApplication::topLevelWidgets().front()->findChildren<QWidget*>().back());
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screen->role(), QAccessible::Pane);
  window.child.Say("caf\x8E & bar");
  EXPECT_EQ(screen->role(), QAccessible::Button);
  EXPECT_EQ(screen->text(QAccessible::Name), QString::fromUtf8("caf\xC3\xA9 & bar"));
  screen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(window.child.pressed);
}

TEST_F(QtDesktopTest, AFolderThatIsNotThereTakesNoScreen) {
  PaintedWindow window;
  EXPECT_FALSE(under_test_.Get().SaveScreen(window, under_test_.Folder() / "none" / "screen.png"));
}

TEST(QtDensity, MetricsDoNotDependOnIt) {
  double width = 0;
  for (const char* scale : {"1", "1.5", "2"}) {
    qputenv("QT_SCALE_FACTOR", scale);
    QtUnderTest under_test;
    qunsetenv("QT_SCALE_FACTOR");
    const double measured =
        under_test.Get().Metrics().StringWidth({"", 12, true}, "A measured line, so to say.");
    if (width == 0) width = measured;
    EXPECT_EQ(measured, width) << scale;
    PaintedWindow window;
    const auto path = under_test.Folder() / "screen.png";
    EXPECT_TRUE(under_test.Get().SaveScreen(window, path));
    EXPECT_EQ(QImage(QString::fromStdString(path.string())).width(), 100 * std::stod(scale)) << scale;
    EXPECT_EQ(NewPicture(33, 11, 16)->Width(), 33) << scale;
  }
}

TEST_F(QtDesktopTest, TheVersionIsTheTextInTheBundle) {
  EXPECT_EQ(Application().LongVersion(), "");
  under_test_.AddFile("Quillmere.app/Contents/Version", " 1.2 beta\r\n");
  EXPECT_EQ(Application().LongVersion(), "1.2 beta");
}

TEST_F(QtDesktopTest, QuitBeforeTheLoopKeepsItFromBeginning) {
  Application application;
  Quit(3);
  Quit(0);
  EXPECT_EQ(under_test_.Get().Run(application), 3);
}

TEST_F(QtDesktopTest, AnExceptionOutOfAnEventEndsTheProgram) {
  Application application;
  PaintedWindow window;
  window.canvas.fails = true;
  window.child.fails = true;
  window.Open();
  testing::internal::CaptureStderr();
  EXPECT_EQ(under_test_.Get().Run(application), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Quillmere has to stop: out of bounds\n");
}

TEST_F(QtDesktopTest, CtrlQEndsTheProgram) {
  Application application;
  application.SetMenuBar(std::make_shared<MenuBar>());
  PaintedWindow window;
  window.Open();
  under_test_.Settle();
  QWindow* const shown = QGuiApplication::topLevelWindows().front();
  QCoreApplication::postEvent(shown, new QKeyEvent(QEvent::KeyPress, Qt::Key_Q, Qt::ControlModifier));
  EXPECT_EQ(under_test_.Get().Run(application), 0);
}

TEST_F(QtDesktopTest, TheCloseRequestEndsTheProgram) {
  Application application;
  PaintedWindow window;
  window.Open();
  under_test_.Settle();
  QMetaObject::invokeMethod(
      qApp, [] { QGuiApplication::topLevelWindows().front()->close(); }, Qt::QueuedConnection);
  EXPECT_EQ(under_test_.Get().Run(application), 0);
}

}  // namespace
}  // namespace quill::host
