// The whole reader on any bytes as content, while somebody pushes what there is to push. The trail is what a
// list of pages says.
#include "base/numbers.h"
#include "base/text.h"
#include "fuzz/attack.h"
#include "markup/text_helpers.h"
#include "support/reader.h"

namespace quill::tests {
namespace {

// Pushes a button of that window; what it was before is what it did.
void Push(const host::MemoryScreen& screen, std::string_view& choices, std::vector<std::string>& trail) {
  using Kind = host::Purpose::Kind;
  std::vector<const host::MemoryControl*> buttons = {screen.controls.begin(), screen.controls.end()};
  std::erase_if(buttons, [](const host::MemoryControl* control) {
    return !control->visible || !control->enabled || control->frame.width < 2 ||
           dynamic_cast<nav::TextButton*>(control->canvas) == nullptr;
  });
  if (buttons.empty()) return;
  const host::MemoryControl& control = *buttons[TakeNumber(choices, buttons.size())];
  auto& button = dynamic_cast<nav::TextButton&>(*control.canvas);
  const Kind purpose = control.purpose.kind;
  const std::string page = button.GetPage();
  button.Event_MouseUp(1, 1);
  if (purpose == Kind::kTrail) {
    while (!trail.empty() && !base::EqualText(trail.back(), page)) trail.pop_back();
    if (!trail.empty()) trail.pop_back();
  }
  if ((purpose == Kind::kTrail || purpose == Kind::kPage) && base::Val(page) > 0) trail.push_back(page);
}

}  // namespace

void AttackReader(std::string_view bytes) {
  Reader reader;
  const std::string content = TakeText(bytes);
  reader.SetPages(0, {{"Start", {"a be see"}, {{0, 1, "1"}, {2, 2, "2"}, {5, 3, "103"}}}});
  for (const app::Mode& mode : app::Modes(app::kModes).subspan(1)) reader.SetFile(mode.content_file, content);
  const auto dump = [&reader] { return reader.Viewer().Dump(); };
  dump();
  std::vector<std::string> trail;
  for (int pushes = 0; pushes < 32 && !bytes.empty(); ++pushes) {
    const std::int32_t mode = reader.App().mode;
    host::MemoryScreen& screen = *reader.desktop.screens[TakeNumber(bytes, reader.desktop.screens.size())];
    Push(screen, bytes, trail);
    screen.Type(std::string(bytes.substr(0, 9)));
    screen.Paint();
    // A mode may choose its page, or keep that of the mode before.
    const std::string page = base::Str(base::IntVal(dump().substr(dump().find(" page ") + 6)));
    if (reader.App().mode != mode) trail.assign(reader.App().mode == 0 || base::Val(page) <= 0 ? 0 : 1, page);
    std::string expected = "\" trail";
    for (const std::string& step : trail) expected += " " + step;
    Require(dump().find(expected + "\n") != std::string::npos, expected + " isn't in " + dump());
  }
  reader.EndProgram();
  reader.TakeMessages();
  markup::zkXMLToolkitGlobals::UseXMLFormatting = false;  // as it was before the viewer set it
}

}  // namespace quill::tests
