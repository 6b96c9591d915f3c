// What both desktops promise of windows, controls and the mouse.
#include <functional>
#include <optional>

#include "host/controls.h"
#include "host/desktop_under_test.h"

namespace quill::host {
namespace {

// A canvas that writes down what happens to it.
struct Probe final : Canvas {
  Probe(Window& window, Canvas* parent, const base::Rect& frame, std::string called, std::string& log_to)
      : Canvas(window, parent, frame), name(std::move(called)), log(log_to) {}

  bool Event_MouseDown(std::int32_t x, std::int32_t y) override {
    log += name + " down " + std::to_string(x) + "," + std::to_string(y) + "\n";
    return claims;
  }
  void Event_MouseUp(std::int32_t x, std::int32_t y) override {
    log += name + " up " + std::to_string(x) + "," + std::to_string(y) + "\n";
    const std::function<void()> action = when_up;  // it may end this very control
    if (action) action();
  }
  void Event_MouseEnter() override { log += name + " enter\n"; }
  void Event_MouseExit() override { log += name + " exit\n"; }

  std::string name;
  std::string& log;
  bool claims = true;
  std::function<void()> when_up;
};

// Over a canvas that fills it:
//
//    10 .. 50    60 .. 100    110 .. 150
//   [   a    ]  [   b     ]  [  caption ]   10 .. 30
//                 [ in b ]                  20 .. 30
struct ProbeWindow final : Window {
  explicit ProbeWindow(std::string& log_to) : Window({"probes", 200, 100}), log(log_to) {
    AddControl<Probe>(&ground, base::Rect{110, 10, 40, 20}, "under", log);
    AddControl<StaticText>(&ground, base::Rect{110, 10, 40, 20}, TextStyle(), "caption");
    inside_b.SetVisible(false);
  }
  void Event_Close() override { log += "close\n"; }

  std::string& log;
  Canvas& ground = AddControl<Canvas>(nullptr, base::Rect{0, 0, 200, 100});
  Probe& a = AddControl<Probe>(&ground, base::Rect{10, 10, 40, 20}, "a", log);
  Probe& b = AddControl<Probe>(&ground, base::Rect{60, 10, 40, 20}, "b", log);
  Probe& inside_b = AddControl<Probe>(&b, base::Rect{70, 20, 20, 10}, "in b", log);
  CheckBox& box = AddControl<CheckBox>(&ground, base::Rect{10, 50, 60, 20}, "box", TextFace());
};

struct ControlContract : OnBothDesktops {
  ControlContract() { OpenAnew(); }

  void OpenAnew(const std::function<void(ProbeWindow&)>& prepare = {}) {
    window_.emplace(log_);
    if (prepare) prepare(*window_);
    window_->Open();
    under_test_->Settle();
    log_.clear();
  }

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
  using Prepare = std::function<void(ProbeWindow&)>;
  const auto ready = [](ProbeWindow&) {};
  const auto idle = [](ProbeWindow& w) { w.a.claims = false; };
  const auto flat = [](ProbeWindow& w) { w.a.SetWidth(0); };
  const auto far = [](ProbeWindow& w) { w.a.SetLeft(INT32_MAX); };
  const auto over = [](ProbeWindow& w) { w.b.SetLeft(20); };
  const auto over_and_off = [over](ProbeWindow& w) { over(w), w.b.SetEnabled(false); };
  const auto inner = [](ProbeWindow& w) { w.inside_b.SetVisible(true), w.inside_b.claims = false; };
  const std::tuple<const char*, Prepare, int, int, int, int, const char*> rows[] = {
      {"a click on the first pixel", ready, 10, 10, 10, 10, "a enter\na down 0,0\na up 0,0\n"},
      {"and on the last", ready, 49, 29, 49, 29, "a enter\na down 39,19\na up 39,19\n"},
      {"one pixel past it", ready, 50, 30, 50, 30, ""},
      {"dragged out", ready, 15, 15, 5, 95, "a enter\na down 5,5\na up -5,85\na exit\n"},
      {"to another", ready, 15, 15, 65, 15, "a enter\na down 5,5\na up 55,5\na exit\nb enter\n"},
      {"dragged in from outside", ready, 5, 5, 15, 15, "a enter\n"},
      {"not claimed", idle, 15, 15, 15, 15, "a enter\na down 5,5\n"},
      {"of no size", flat, 10, 15, 10, 15, ""},
      {"far outside", far, 15, 15, 15, 15, ""},
      {"the later lies above", over, 30, 15, 30, 15, "b enter\nb down 10,5\nb up 10,5\n"},
      {"one not enabled keeps it from the one below", over_and_off, 30, 15, 30, 15, ""},
      {"inside another", inner, 75, 25, 75, 25, "in b enter\nin b down 5,5\n"},
      {"through text", ready, 115, 15, 115, 15, "under enter\nunder down 5,5\nunder up 5,5\n"},
  };
  for (const auto& [story, before, x1, y1, x2, y2, log] : rows) {
    OpenAnew(before);
    Drag(x1, y1, x2, y2);
    // A canvas below its children may or may not count as entered with them.
    const bool with_parent = log_.starts_with("b enter\nin b");
    EXPECT_EQ(with_parent ? log_.substr(8) : log_, log) << story;
    under_test_->Move(199, 99);
  }
}

TEST_P(ControlContract, TheSecondPressOfADoubleClickIsNone) {
  const std::string click = "a down 5,5\na up 5,5\n";
  under_test_->Move(15, 15);
  under_test_->Press();
  under_test_->Release();
  for (int again = 0; again < 2; ++again) {
    under_test_->PressAgain();
    under_test_->Release();
  }
  EXPECT_EQ(log_, "a enter\n" + click);
  under_test_->Press();
  under_test_->Release();
  EXPECT_EQ(log_, "a enter\n" + click + click) << "after a pause it is a press again";
}

TEST_P(ControlContract, AControlMayChangeUnderTheMouse) {
  under_test_->Move(15, 15);
  for (const bool visible : {false, true}) {
    const std::string before = log_;
    window_->a.SetVisible(visible);
    EXPECT_EQ(log_, before) << "no event breaks into the call";
    under_test_->Settle();
    under_test_->Move(15, visible ? 17 : 16);
  }
  under_test_->Press();
  window_->a.SetEnabled(false);
  under_test_->Release();
  EXPECT_TRUE(log_.starts_with("a enter\na exit\na enter\na down 5,7\n")) << log_;
  EXPECT_EQ(log_.find("up"), std::string::npos) << "disabled while held: " << log_;
}

TEST_P(ControlContract, TheUserTogglesACheckBox) {
  for (const bool value : {true, false, false}) {
    Drag(18, 60, 18, 60);
    EXPECT_EQ(window_->box.Value(), value);
    window_->box.SetEnabled(value);
  }
}

TEST_P(ControlContract, AControlMayCloseItsOwnWindowOrEndIt) {
  const std::function<void()> ends[] = {[this] { window_->Close(); }, [this] { window_.reset(); }};
  for (const auto& end : ends) {
    OpenAnew([&end](ProbeWindow& window) { window.a.when_up = end; });
    under_test_->Move(15, 15);
    under_test_->Press();
    under_test_->Release();
    EXPECT_FALSE(under_test_->ShowsWindow());
    EXPECT_EQ(log_.find("close") != std::string::npos, window_.has_value());
  }
}

TEST_P(ControlContract, AWindowIsOpenFromOpenToClose) {
  EXPECT_TRUE(window_->IsOpen() && under_test_->ShowsWindow());
  window_->MoveTo(70, 90);
  under_test_->Settle();
  const base::Rect frame = {window_->Left(), window_->Top(), window_->Width(), window_->Height()};
  EXPECT_EQ(frame, (base::Rect{70, 90, 200, 100}));
  under_test_->Minimise();
  EXPECT_TRUE(under_test_->IsMinimised());
  window_->Show();
  EXPECT_FALSE(under_test_->IsMinimised());
  window_->Close();
  window_->Close();
  EXPECT_FALSE(window_->IsOpen() || under_test_->ShowsWindow());
  EXPECT_EQ(log_, "close\n") << "once and no more";
}

}  // namespace
}  // namespace quill::host
