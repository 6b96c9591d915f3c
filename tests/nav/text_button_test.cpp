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
class TextButtonTest : public testing::Test {
 protected:
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
  struct Row {
    std::int32_t type;
    std::string color;
    bool line;
  };
  for (const Row& row : {Row{1, "#0aff80", false}, Row{2, "#ffffff", false}, Row{5, "#ff8080", false},
                         Row{-7, "#ff8080", false}, Row{9, "#8080ff", true}, Row{50, "#8080ff", true},
                         Row{100, "#8080ff", true}, Row{99, "#80ff80", false}}) {
    button_.SetLinkType(row.type);
    button_.SetText("x");
    const auto drawn = Drawn();
    EXPECT_EQ(drawn[1], "text \"x\" 0,15 12 " + row.color) << row.type;
    EXPECT_EQ(drawn.size(), row.line ? 4U : 3U) << row.type;
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
  struct Row {
    std::int32_t x, y;
    bool pushes;
  };
  for (const Row& row : {Row{1, 1, true}, Row{19, 23, true}, Row{0, 5, false}, Row{5, 0, false},
                         Row{20, 5, false}, Row{5, 24, false}, Row{-9, 5, false}}) {
    window_.pushed = 0;
    EXPECT_TRUE(button_.Event_MouseDown(row.x, row.y));
    button_.Event_MouseUp(row.x, row.y);
    EXPECT_EQ(window_.pushed, row.pushes ? 1 : 0) << row.x << "," << row.y;
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
