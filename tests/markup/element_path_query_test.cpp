#include <gtest/gtest.h>

#include "markup/container.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

TEST(PathQuery, WalksDownStepByStep) {
  const zkXMLContainer tree(
      "<r><d n='0'/><d><Page n='1'><a.b><c n='2'/></a.b></Page><Page n='3' Type=''/><page n='4' type='a.b'/>"
      "<Page n='5' TYPE='a)b'/><f(x) n='6'/><\\ n='7'/><\\. n='8'/></d></r>");
  const auto found = [&](const std::string& path) {
    const std::shared_ptr<zkXMLElement> element = tree.GetDeepElement(path);
    return element ? element->GetAttribute("n")->GetValue() : "null";
  };
  const auto below = [&](const std::string& path) { return found("R.d(2)." + path); };

  tests::ExpectEach(found, {{"r.D", "0"},
                            {"r.d.Page", "null", "the first d has none, and no other is tried"},
                            {"", "null", "one step with an empty name"},
                            {"r.", "null"}});
  tests::ExpectEach(below, {{"Page()", "1"},
                            {"PAGE( 2 )ignored", "3"},
                            {"Page(2", "3", "what nothing closes goes to the end of the step"},
                            {"Page(", "1"},
                            {"Page(x)", "null", "no number is 0"},
                            {"Page( )", "null", "one argument, though a blank one"},
                            {"Page( 3 , Type )", "5"},
                            {"Page(4,Type)", "null", "one past the last"},
                            {"Page(1,Type,)", "3", "an empty value"},
                            {"Page(1,Type,a\\.b,x)", "4", "an escape in an argument, and a fourth one"},
                            {"Page.a\\.b.c", "2"},
                            {"f\\(x\\)(1)", "6"},
                            {"\\\\", "7"},
                            {"\\\\.", "8", "the dot is escaped before the backslash can be"}});
}

}  // namespace
}  // namespace quill::markup
