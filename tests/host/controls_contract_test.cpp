// What both desktops promise of windows, controls and the mouse.
#include <functional>
#include <optional>

#include "host/controls.h"
#include "host/desktop_under_test.h"

namespace quill::host {
namespace {

// A canvas that writes down what happens to it.
class Probe final : public Canvas {
 public:
  Probe(Window& window, Canvas* parent, const Rect& frame, std::string name, std::string& log)
      : Canvas(window, parent, frame), name_(std::move(name)), log_(log) {}

  void Event_Paint() override {
    ++paints;
    GetGraphics().FillRect({0, 0, 5, 5});
    if (hides_when_painted) SetVisible(false);
  }
  bool Event_MouseDown(std::int32_t x, std::int32_t y) override {
    Log("down", x, y);
    return claims;
  }
  void Event_MouseUp(std::int32_t x, std::int32_t y) override {
    Log("up", x, y);
    const std::function<void()> action = when_up;  // it may end this very control
    if (action) action();
  }
  void Event_MouseEnter() override { log_ += name_ + " enter\n"; }
  void Event_MouseExit() override { log_ += name_ + " exit\n"; }

  int paints = 0;
  bool claims = true;
  bool hides_when_painted = false;
  std::function<void()> when_up;

 private:
  void Log(const char* event, std::int32_t x, std::int32_t y) {
    log_ += name_ + " " + event + " " + std::to_string(x) + "," + std::to_string(y) + "\n";
  }

  std::string name_;
  std::string& log_;
};

// Over a canvas that fills it:
//
//    10 .. 50    60 .. 100    110 .. 150
//   [   a    ]  [   b     ]  [  caption ]   10 .. 30
//                 [ in b ]                  20 .. 30
class ProbeWindow final : public Window {
 public:
  explicit ProbeWindow(std::string& log)
      : Window({"probes", 200, 100}),
        ground(AddControl<Canvas>(nullptr, Rect{0, 0, 200, 100})),
        a(AddControl<Probe>(&ground, Rect{10, 10, 40, 20}, "a", log)),
        b(AddControl<Probe>(&ground, Rect{60, 10, 40, 20}, "b", log)),
        inside_b(AddControl<Probe>(&b, Rect{10, 10, 20, 10}, "in b", log)),
        under_text(AddControl<Probe>(&ground, Rect{110, 10, 40, 20}, "under text", log)),
        text(AddControl<StaticText>(&ground, Rect{110, 10, 40, 20}, TextStyle(), "caption")),
        box(AddControl<CheckBox>(&ground, Rect{10, 50, 60, 20}, "box", TextFace())) {
    inside_b.SetVisible(false);
  }

  Canvas& ground;
  Probe& a;
  Probe& b;
  Probe& inside_b;
  Probe& under_text;
  StaticText& text;
  CheckBox& box;
};

class ControlContract : public OnBothDesktops {
 protected:
  ControlContract() {
    window_.emplace(log_);
    window_->Open();
    under_test_->Settle();
  }

  void Click(std::int32_t x, std::int32_t y) { Drag(x, y, x, y); }
  void Drag(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    under_test_->Move(x1, y1);
    under_test_->Press();
    under_test_->Move(x2, y2);
    under_test_->Release();
    under_test_->Move(x2, y2);
  }

  std::string log_;
  std::optional<ProbeWindow> window_;
};
INSTANTIATE_TEST_SUITE_P(Both, ControlContract, BothDesktops(), DesktopName);

TEST_P(ControlContract, TheMouseReachesWhoeverLiesThere) {
  struct Row {
    const char* story;
    std::function<void(ProbeWindow&)> before;
    Rect drag;  // from left, top to width, height
    const char* log;
  };
  const auto nothing = [](ProbeWindow&) {};
  const Row rows[] = {
      {"a click on the first pixel", nothing, {10, 10, 10, 10}, "a enter\na down 0,0\na up 0,0\n"},
      {"and on the last", nothing, {49, 29, 49, 29}, "a enter\na down 39,19\na up 39,19\n"},
      {"one pixel past it", nothing, {50, 30, 50, 30}, ""},
      {"dragged out", nothing, {15, 15, 5, 95}, "a enter\na down 5,5\na up -5,85\na exit\n"},
      {"dragged to another", nothing, {15, 15, 65, 15}, "a enter\na down 5,5\na up 55,5\na exit\nb enter\n"},
      {"dragged in from outside", nothing, {5, 5, 15, 15}, "a enter\n"},
      {"not claimed", [](ProbeWindow& w) { w.a.claims = false; }, {15, 15, 15, 15}, "a enter\na down 5,5\n"},
      {"not enabled", [](ProbeWindow& w) { w.a.SetEnabled(false); }, {15, 15, 15, 15}, ""},
      {"not visible", [](ProbeWindow& w) { w.a.SetVisible(false); }, {15, 15, 15, 15}, ""},
      {"moved",
       [](ProbeWindow& w) { w.a.SetLeft(150); },
       {155, 15, 155, 15},
       "a enter\na down 5,5\na up 5,5\n"},
      {"of no size", [](ProbeWindow& w) { w.a.SetWidth(0); }, {10, 15, 10, 15}, ""},
      {"far outside", [](ProbeWindow& w) { w.a.SetLeft(INT32_MAX); }, {15, 15, 15, 15}, ""},
      {"the later lies above",
       [](ProbeWindow& w) { w.b.SetLeft(20); },
       {30, 15, 30, 15},
       "b enter\nb down 10,5\nb up 10,5\n"},
      {"one that isn't enabled keeps it from the one below",
       [](ProbeWindow& w) {
         w.b.SetLeft(20);
         w.b.SetEnabled(false);
       },
       {30, 15, 30, 15},
       ""},
      {"inside another",
       [](ProbeWindow& w) {
         w.inside_b.SetVisible(true);
         w.inside_b.claims = false;
       },
       {75, 25, 75, 25},
       "in b enter\nin b down 5,5\n"},
      {"through a line of text",
       nothing,
       {115, 15, 115, 15},
       "under text enter\nunder text down 5,5\nunder text up 5,5\n"},
  };
  for (const Row& row : rows) {
    window_.emplace(log_);
    row.before(*window_);
    window_->Open();
    under_test_->Settle();
    log_.clear();
    Drag(row.drag.left, row.drag.top, row.drag.width, row.drag.height);
    // A canvas below its children may or may not count as entered with them.
    const std::size_t ground = log_.find("b enter\nin b");
    EXPECT_EQ(ground == 0 ? log_.substr(8) : log_, row.log) << row.story;
    under_test_->Move(199, 99);
  }
}

TEST_P(ControlContract, AHiddenControlIsLeftAndOneShownAgainIsEntered) {
  under_test_->Move(15, 15);
  window_->a.SetVisible(false);
  EXPECT_EQ(log_, "a enter\n") << "no event breaks into the call that hides";
  under_test_->Settle();
  under_test_->Move(15, 16);
  window_->a.SetVisible(true);
  EXPECT_EQ(log_, "a enter\na exit\n");
  under_test_->Settle();
  under_test_->Move(15, 17);
  EXPECT_EQ(log_, "a enter\na exit\na enter\n");
}

TEST_P(ControlContract, DisablingAHeldControlEndsTheClick) {
  under_test_->Move(15, 15);
  under_test_->Press();
  window_->a.SetEnabled(false);
  under_test_->Release();
  EXPECT_EQ(log_.find("up"), std::string::npos) << log_;
}

TEST_P(ControlContract, OnlyWhatIsVisibleIsPainted) {
  window_->a.SetVisible(false);
  window_->b.hides_when_painted = true;
  under_test_->Settle();
  window_->b.GetGraphics().FillRect({0, 0, 1, 1});
  window_->a.paints = 0;
  under_test_->Settle();
  under_test_->Settle();
  EXPECT_EQ(window_->a.paints, 0);
  EXPECT_FALSE(window_->b.Visible());
  const int painted = window_->b.paints;
  EXPECT_GT(painted, 0);
  under_test_->Settle();
  EXPECT_EQ(window_->b.paints, painted) << "it hid itself";
}

TEST_P(ControlContract, TheUserTogglesACheckBox) {
  Click(18, 60);
  EXPECT_TRUE(window_->box.Value());
  Click(18, 60);
  EXPECT_FALSE(window_->box.Value());
  window_->box.SetValue(true);
  window_->box.SetEnabled(false);
  Click(18, 60);
  EXPECT_TRUE(window_->box.Value());
}

TEST_P(ControlContract, AControlMayCloseItsOwnWindow) {
  window_->a.when_up = [this] { window_.reset(); };
  under_test_->Move(15, 15);
  under_test_->Press();
  under_test_->Release();
  EXPECT_FALSE(window_);
  window_.emplace(log_);
  window_->Open();
  under_test_->Settle();
  Click(65, 15);
  EXPECT_TRUE(log_.ends_with("b enter\nb down 5,5\nb up 5,5\n")) << log_;
}

TEST_P(ControlContract, AWindowHasTheSizeAskedFor) {
  EXPECT_EQ(window_->Width(), 200);
  EXPECT_EQ(window_->Height(), 100);
  EXPECT_EQ(window_->Title(), "probes");
}

}  // namespace
}  // namespace quill::host
