// What the desktop supplies around a window: the keyboard, the screen reader's tree,
// the text for elsewhere, the zoom.
#include "host/qt/qt_window.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPdfWriter>
#include <QWheelEvent>
#include <array>

#include "host/desktop_under_test.h"
#include "host/qt/qt_look.h"
#include "host/qt/qt_print.h"
#include "host/qt/qt_view.h"
#include "support/texts.h"

namespace quill::host {
namespace {

// A button that writes down when it is pressed.
struct Link final : Canvas {
  Link(Window& window, Canvas* parent, const base::Rect& frame, const std::string& called,
       const Purpose& purpose, std::string& log_to)
      : Canvas(window, parent, frame), name(called), log(log_to) {
    SetLabel(called);
    SetPurpose(purpose);
  }
  bool Event_MouseDown(std::int32_t /*x*/, std::int32_t /*y*/) override { return true; }
  void Event_MouseUp(std::int32_t /*x*/, std::int32_t /*y*/) override { log += name + ";"; }

  std::string name;
  std::string& log;
};

// Two columns of text with links in them, the trail and the way out:
//
//   Alpha         the end of Beta
//   caf\x8E
//   > Trail                        Back
struct PageWindow final : Window {
  explicit PageWindow(std::string& log_to) : Window({"Page", 400, 200}), log(log_to) {
    SetReading(ItsReading());
  }
  void Event_Save() override { log += "save;"; }

  Reading ItsReading() {
    Reading reading;
    reading.title = "A title";
    reading.source = "Somewhere, page 7";
    reading.columns = {{{{"Alpha", false, false, false, &alpha}, {" and more", true}},
                        {},
                        {{"\tcaf\x8E", false, false, false, &cafe}}},
                       {{{"the end of ", false, true}, {"Beta", false, false, false, &beta}}}};
    reading.trail = {&trail};
    reading.way_out = reading.home = &out;
    reading.back = &trail;
    return reading;
  }

  Link& Add(const base::Rect& frame, const char* name, const Purpose& purpose) {
    return AddControl<Link>(nullptr, frame, name, purpose, log);
  }
  std::string& log;
  Link& alpha = Add({10, 20, 60, 20}, "Alpha  ", {Purpose::Kind::kPage, "page One"});
  Link& hidden = Add({10, 90, 60, 20}, "Hidden", {Purpose::Kind::kPage, ""});
  Link& beta = Add({290, 20, 60, 20}, "Beta", {Purpose::Kind::kGlossary, "glossary"});
  Link& cafe = Add({10, 60, 60, 20}, "caf\x8E", {Purpose::Kind::kDocument, "document a.pdf"});
  Link& trail = Add({10, 170, 60, 20}, "...> Trail ", {Purpose::Kind::kTrail, "page Trail"});
  Link& out = Add({340, 170, 40, 20}, "Back", {Purpose::Kind::kButton, "opening page"});
};

struct QtWindowTest : testing::Test {
  QtWindowTest() {
    window_.Open();
    under_test_.Settle();
  }

  WindowWidget& Widget() { return *dynamic_cast<WindowWidget*>(QApplication::topLevelWidgets().front()); }

  void Key(QKeyCombination key, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key.key(), key.keyboardModifiers(), text);
    QCoreApplication::sendEvent(Widget().focusWidget() ? Widget().focusWidget() : &Widget(), &event);
  }

  // What a row of keys presses: T and B are Tab and Shift+Tab, R L U D the arrows,
  // ! is Enter, H Home, < Alt+Left, ~ Escape; small letters are typed.
  std::string Pressed(const std::string& keys) {
    log_.clear();
    window_.SetReading({});
    window_.SetReading(reading_);
    const std::array<QKeyCombination, 10> named = {Qt::Key_Tab,
                                                   Qt::SHIFT | Qt::Key_Backtab,
                                                   Qt::Key_Right,
                                                   Qt::Key_Left,
                                                   Qt::Key_Up,
                                                   Qt::Key_Down,
                                                   Qt::Key_Return,
                                                   Qt::Key_Home,
                                                   Qt::ALT | Qt::Key_Left,
                                                   Qt::Key_Escape};
    for (const char c : keys) {
      const std::size_t name = std::string_view("TBRLUD!H<~").find(c);
      if (name < named.size()) Key(named.at(name));
      if (name > named.size()) Key(Qt::Key(Qt::Key_A + (c - 'a')), QString(QLatin1Char(c)));
    }
    return log_;
  }

  std::string log_;
  QtUnderTest under_test_;
  PageWindow window_{log_};
  Reading reading_ = window_.ItsReading();
};

TEST_F(QtWindowTest, TheKeyboardReachesAllInReadingOrder) {
  tests::ExpectEach(
      [this](const std::string& keys) { return Pressed(keys); },
      {{"!", "", "nothing has the focus at first"},
       {"T!T!T!T!T!T!", "Alpha  ;caf\x8E;Beta;...> Trail ;Back;Alpha  ;", "down each column, then the foot"},
       {"B!B!", "Back;...> Trail ;", "and the other way"},
       {"TR!D!L!", "Beta;Back;...> Trail ;", "to the nearest on that side"},
       {"TU!", "Alpha  ;", "there is none above"},
       {"b!", "Beta;", "the first whose name begins so"},
       {"ba!", "Back;", "both letters"},
       {"c!", "caf\x8E;", "accents don't count"},
       {"b~a!", "Alpha  ;", "Escape forgets what was typed"},
       {"H", "Back;", "home"},
       {"<", "...> Trail ;", "one step back"}});
}

TEST_F(QtWindowTest, TheRingFollowsTheKeyboardAlone) {
  const auto ring = [this] {
    const auto widgets = Widget().findChildren<QWidget*>();
    return std::ranges::any_of(widgets, [](const QWidget* widget) {
      return dynamic_cast<const FocusRing*>(widget) != nullptr && widget->isVisible();
    });
  };
  EXPECT_FALSE(ring());
  Key(Qt::Key_Tab);
  EXPECT_TRUE(ring());
  under_test_.Move(200, 100);
  under_test_.Press();
  under_test_.Release();
  EXPECT_FALSE(ring()) << "the mouse was used";
  Key(Qt::Key_Tab);
  window_.SetReading(reading_);
  EXPECT_FALSE(ring()) << "a page that is shown anew";
  reading_.left_by = &window_.beta;
  window_.SetReading(reading_);
  EXPECT_TRUE(ring()) << "by which the reader left";
}

std::string Tree(QAccessibleInterface* node) {
  const std::map<QAccessible::Role, std::string> roles = {
      {QAccessible::Window, "window"}, {QAccessible::Heading, "heading"}, {QAccessible::Paragraph, "text"},
      {QAccessible::Link, "link"},     {QAccessible::List, "list"},       {QAccessible::Button, "button"}};
  const auto role = roles.find(node->role());
  std::string tree =
      (role == roles.end() ? "?" : role->second) + " '" + node->text(QAccessible::Name).toStdString() + "'";
  const std::string description = node->text(QAccessible::Description).toStdString();
  if (!description.empty()) tree += " -> " + description;
  for (int i = 0; i < node->childCount(); ++i) {
    EXPECT_EQ(node->child(i)->parent(), node) << tree;
    EXPECT_EQ(node->indexOfChild(node->child(i)), i) << tree;
    tree += (i == 0 ? " [" : ", ") + Tree(node->child(i));
  }
  return tree + (node->childCount() > 0 ? "]" : "");
}

TEST_F(QtWindowTest, TheScreenReaderFindsThePage) {
  QAccessibleInterface* const window = QAccessible::queryAccessibleInterface(&Widget());
  EXPECT_EQ(Tree(window),
            "window 'A title - Page' [heading 'A title', text 'Alpha and more' [link 'Alpha' -> page One], "
            "text '\tcaf\xC3\xA9' [link 'caf\xC3\xA9' -> document a.pdf], "
            "text 'the end of Beta' [link 'Beta' -> glossary], "
            "list 'Trail' [link 'Trail' -> page Trail], button 'Back' -> opening page]");
  int start = 0;
  int end = 0;
  QAccessibleTextInterface* const text = window->child(1)->textInterface();
  EXPECT_EQ(text->attributes(7, &start, &end), QStringLiteral("font-weight:bold;"));
  EXPECT_EQ(std::pair(start, end), std::pair(5, 14));
  window->child(3)->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(log_, "Beta;");
}

TEST_F(QtWindowTest, ThePageGoesElsewhereAsText) {
  Key(Qt::CTRL | Qt::Key_C);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
            "A title\n\nAlpha and more\n\n\tcaf\xC3\xA9\n\nthe end of Beta\n");
  const auto path = under_test_.Folder() / "page.pdf";
  QPdfWriter paper(QString::fromStdString(path.string()));
  PrintOn(paper, Widget().GetReading());
  EXPECT_GT(std::filesystem::file_size(path), 1000U);
}

TEST_F(QtWindowTest, TheZoomChangesTheScreenAndNothingElse) {
  const QSize size = Widget().size();
  Key(Qt::CTRL | Qt::Key_Plus);
  EXPECT_EQ(Widget().size(), size * 1.25);
  EXPECT_EQ(window_.Width(), 400) << "in the program's pixels";
  Key(Qt::CTRL | Qt::Key_Minus);
  QWheelEvent back({}, {}, {}, {0, -120}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(Widget().GetReading().way_out, &back);
  EXPECT_EQ(Widget().size(), size * 0.75);
  Key(Qt::CTRL | Qt::Key_0);
  for (int i = 0; i < 12; ++i) Key(Qt::CTRL | Qt::Key_Plus);
  EXPECT_TRUE(Widget().screen()->availableGeometry().contains(Widget().geometry())) << "300 %";
  Key(Qt::CTRL | Qt::Key_S);
  EXPECT_EQ(log_, "save;");
}

TEST(QtLookTest, HighContrastKeepsToSevenToOne) {
  const QtLook high{.scale = 1, .text_scale = 1, .high_contrast = true};
  for (const base::Color ink : {base::kBlack, base::kWhite, base::RGB(10, 128, 255)}) {
    EXPECT_GE(ContrastOf(InkFor(high, ink), GroundFor(high, base::RGB(127, 171, 146))), 7);
    EXPECT_EQ(InkFor(QtLook(), ink), ink);
  }
  EXPECT_NEAR(ContrastOf(base::kBlack, base::kWhite), 21, 0.01);
}

TEST(QtViewTest, ZoomGoesByStepsAndIsKept) {
  for (const auto& [from, smaller, larger] :
       {std::tuple{100, 75, 125}, {113, 100, 125}, {50, 50, 75}, {300, 275, 300}, {30, 50, 50}}) {
    EXPECT_EQ(ZoomStepFrom(from, false), smaller) << from;
    EXPECT_EQ(ZoomStepFrom(from, true), larger) << from;
  }
  QtUnderTest under_test;
  const auto file = under_test.Folder() / "state/view.ini";
  {
    QtView view(file);
    view.SetZoom(1000);
    view.SetHighContrast(true);
  }
  EXPECT_EQ(QtView(file).Zoom(), 300);
  EXPECT_TRUE(QtView(file).HighContrast());
  under_test.AddFile("state/view.ini", "zoom=-7\nhigh_contrast=nonsense\n[places]\nPage=@Rect(x)\n");
  EXPECT_EQ(QtView(file).Zoom(), 50) << "a file that makes no sense";
  EXPECT_FALSE(QtView(file).PlaceOf("Page").has_value());
}

}  // namespace
}  // namespace quill::host
