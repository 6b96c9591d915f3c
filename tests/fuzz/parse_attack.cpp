// The parser and the writer on any bytes. What is written is written again as it was, and so is the same tree
// when it is read; a text that spells escapes may lose a layer of them each time. A text in two chunks, cut
// inside a construct, comes to what the whole does.
#include <utility>

#include "fuzz/attack.h"
#include "host/memory/memory_desktop.h"
#include "markup/container.h"
#include "markup/exceptions.h"

namespace quill::tests {
namespace {

using markup::zkXMLContainer;

// Empty if it is refused, or holds a declaration of blanks, which grows by one each time.
std::string Rewritten(const std::string& text, bool relaxed) try {
  const std::string written = zkXMLContainer(text, relaxed).GetXMLString();
  return written.find("<!  ") == std::string::npos ? written : "";
} catch (const base::RuntimeException&) {
  return "";
}

// An end tag that is out of sight ends a chunk, and what follows it waits for the next.
std::string Fed(const std::string& text, std::size_t cut) {
  zkXMLContainer container;
  container.ParseIncrementally(text.substr(0, cut));
  container.ParseIncrementally(text.substr(cut));
  for (std::string left; left != container.UnreadText(); container.ParseIncrementally(""))
    left = container.UnreadText();
  return container.GetXMLString();
}

// Halves of an escape, a line end, a guard or a declaration stay halves.
bool MayBeCut(char c) {
  return (c & 0x80) == 0 && std::string_view("&\r]!").find(c) == std::string_view::npos;
}

}  // namespace

void AttackParse(std::string_view bytes) {
  const host::MemoryDesktop desktop;
  const std::string text(bytes);
  for (const bool relaxed : {false, true}) {
    std::string before = Rewritten(text, relaxed);
    std::string now = Rewritten(before, relaxed);
    if (!relaxed && text.find('&') == std::string::npos && !now.empty()) RequireSame(now, before);
    for (std::size_t rounds = text.size(); now != before && rounds > 0; --rounds)
      before = std::exchange(now, Rewritten(now, relaxed));
    Require(now == before, "what is written never settles");
  }
  const std::string whole = Rewritten(text, false);
  if (!std::all_of(text.begin(), text.end(), MayBeCut) || whole.empty() ||
      !zkXMLContainer(text).UnreadText().empty())
    return;
  for (std::size_t cut = 2; cut + 1 < text.size(); cut += 1 + text.size() / 32)
    if (text.find_last_of("<>", cut - 1) + 2 < cut) RequireSame(Fed(text, cut), whole);
}

}  // namespace quill::tests
