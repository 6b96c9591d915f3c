#include "nav/text_button.h"

#include <gtest/gtest.h>

#include "app/product.h"
#include "host/memory/memory_desktop.h"
#include "support/messages.h"

namespace quill::nav {
namespace {

class ButtonWindow final : public host::Window {
 public:
  explicit ButtonWindow(app::App& app)
      : Window({}), button(AddControl<TextButton>(nullptr, base::Rect{10, 20, 30, 22}, app)) {
    button.SetFontSize(12);
    button.IsPushed = [this](TextButton&) { ++pushed; };
  }
  TextButton& button;
  int pushed = 0;
};

// Every character is 10 wide and a line 15 high.
struct TextButtonTest : testing::Test {
  TextButtonTest() { app_.Init(); }

  std::vector<std::string> Drawn() {
    return dynamic_cast<host::RecordingGraphics&>(button_.GetGraphics()).TakeDrawn();
  }

  host::MemoryDesktop desktop_{app::Quillmere()};
  const tests::NoUnseenMessages no_unseen_messages_{desktop_};
  app::App app_;
  ButtonWindow window_{app_};
  TextButton& button_ = window_.button;
};

TEST_F(TextButtonTest, DrawsItsLabelTwiceAndItsLineUnderIt) {
  button_.SetLinkType(content::link_type::kPage);
  button_.SetText("Go");
  EXPECT_EQ(button_.Width(), 20);
  EXPECT_EQ(button_.Height(), 24);
  const std::string label = "text \"Go\" 0,15 12 #0a80ff";
  EXPECT_EQ(Drawn(),
            (std::vector<std::string>{"fill -1,-1 21x25 #7fab92", label, label, "line 0,17 20,17 #0a80ff"}));
  button_.Event_MouseEnter();
  EXPECT_EQ(Drawn()[1], "text \"Go\" 0,15 12 #ffff00");
  button_.Event_MouseExit();
  EXPECT_EQ(Drawn()[1], label);
  button_.Event_MouseEnter();
  button_.init();
  Drawn();
  button_.SetText("Go");
  EXPECT_EQ(Drawn()[1], label) << "made ready anew, it doesn't know of the mouse";
}

TEST_F(TextButtonTest, TypesHaveTheirColours) {
  const std::tuple<std::int32_t, const char*, std::size_t> rows[] = {
      {1, "#0aff80", 3U}, {2, "#ffffff", 3},  {5, "#ff8080", 3},   {-7, "#ff8080", 3},
      {9, "#8080ff", 4},  {50, "#8080ff", 4}, {100, "#8080ff", 4}, {99, "#80ff80", 3},
  };
  for (const auto& [type, color, drawn_things] : rows) {
    button_.SetLinkType(type);
    button_.SetText("x");
    const auto drawn = Drawn();
    EXPECT_EQ(drawn[1], std::string("text \"x\" 0,15 12 ") + color) << type;
    EXPECT_EQ(drawn.size(), drawn_things) << type << ": the line counts";
  }
}

TEST_F(TextButtonTest, GroundFollowsTheMode) {
  app_.mode = 1;
  button_.init();
  auto& backdrop = dynamic_cast<host::MemoryPicture&>(*button_.Backdrop());
  EXPECT_EQ(backdrop.GetGraphics()->Drawn(), (std::vector<std::string>{"picture #172 0,0"}));
  button_.SetText("x");
  EXPECT_EQ(Drawn()[0], "fill -1,-1 11x25 #464646");
  app_.mode = 4;
  button_.init();
  button_.SetText("x");
  EXPECT_EQ(Drawn()[0], "fill -1,-1 11x25 #000000");
}

TEST_F(TextButtonTest, OnlyAReleaseWellInsidePushes) {
  button_.SetText("Go");
  for (const auto& [x, y, pushes] :
       {std::tuple{1, 1, 1}, {19, 23, 1}, {0, 5, 0}, {5, 0, 0}, {20, 5, 0}, {5, 24, 0}, {-9, 5, 0}}) {
    window_.pushed = 0;
    EXPECT_TRUE(button_.Event_MouseDown(x, y));
    button_.Event_MouseUp(x, y);
    EXPECT_EQ(window_.pushed, pushes) << x << "," << y;
  }
}

TEST_F(TextButtonTest, WithoutALabelItIsOutOfUse) {
  button_.SetText("Go");
  button_.SetText("");
  EXPECT_FALSE(button_.Visible() || button_.Enabled());
  EXPECT_EQ(button_.Width() + button_.Height(), 0);
  button_.Show();
  button_.Event_Paint();
  EXPECT_FALSE(button_.Visible()) << "shown without a label it hides again";
}

TEST_F(TextButtonTest, WithoutMemoryItStaysHidden) {
  desktop_.out_of_pictures = true;
  button_.init();
  EXPECT_EQ(tests::TakeMessages(desktop_).size(), 0U) << "in its old size it keeps the picture that it has";
  button_.SetWidth(31);
  button_.init();
  EXPECT_EQ(tests::TakeMessages(desktop_), std::vector<std::string>{"memory error, text button"});
  button_.SetText("Go");
  EXPECT_FALSE(button_.Visible());
}

}  // namespace
}  // namespace quill::nav
