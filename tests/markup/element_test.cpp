#include "markup/element.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "base/exceptions.h"
#include "markup/container.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

std::string Dump(const std::shared_ptr<zkXMLElement>& element) {
  return element ? tests::DumpTree(*element) : "null";
}

// Where the settings differ: what the strict one makes of it, then the other.
std::string ReadTag(const std::string& tag) {
  const auto read = [&](bool relaxed) {
    return tests::DumpOrRefused([&] { return Dump(std::make_shared<zkXMLElement>(tag, relaxed)); });
  };
  return read(false) == read(true) ? read(false) : read(false) + ", relaxed " + read(true);
}

TEST(Element, ReadsStartTags) {
  tests::ExpectEach(ReadTag,
                    {{"a\n\tb=\"1\" c='2'", "a{b=1 c=2}"},
                     {"a\vb c=\"\"", "a\vb{c=}", "white space is four characters"},
                     {"a b=\"1\"c=\"2\"", "a{b=1}", "what follows a quote goes, up to white space"},
                     {"a b=\"1\"x c=\"2\"", "a{b=1 c=2}"},
                     {"a b c =\"1\"", "a{b c =1}", "a name goes on up to the equals sign"},
                     {"a b=\"'=<\" c='\"'", "a{b='=< c=\"}"},
                     {"a b=\"&amp;amp;&lt;&apos;&#233;\r\n\"", "a{b=&<&apos;\x8E\r\n}", "quotes stay"},
                     {"a b=\"1", "refused"},
                     {"a b=\"1\" c", "refused"},
                     {"a b= \"c=1\"", "refused, relaxed a{b= \"c=1\"}"},
                     {"a b=", "refused, relaxed a{b=}"},
                     {"a b=1\"2 c='3' d=4", "refused, relaxed a{b=1\"2 c=3 d=4}"}});
}

// A literal 0 would be taken for a null pointer to text.
template <typename Node>
concept TakesNumber = requires(Node& node) {
  node.SetData(0);
}
|| requires(Node& node, int number) { node.SetData(number); }
|| requires(Node& node) { node.SetAttribute("x", 0); }
|| requires(Node& node, int number) { node.SetAttribute("x", number); };
template <typename... Nodes>
constexpr bool kNoneTakesNumbers = !(TakesNumber<Nodes> || ...);
template <typename Attribute>
concept IsMadeOfZero = requires {
  Attribute("x", 0);
};
static_assert(kNoneTakesNumbers<zkXMLObject, zkXMLElement, zkXMLContainer, zkXMLAttribute, zkXMLTextSection,
                                zkXMLCDataSection, zkXMLComment, zkXMLPInstruction, zkXMLDeclaration>);
static_assert(!IsMadeOfZero<zkXMLAttribute> && !std::is_constructible_v<zkXMLAttribute, const char*, int>);

std::shared_ptr<zkXMLElement> Child(const char* tag) { return std::make_shared<zkXMLElement>(tag); }

TEST(Element, CountsWhatFitsFromOne) {
  const zkXMLContainer parent("t1<Page n='1'/><![CDATA[c]]><page n='2' n='x'/><Other m=''/>t2<PAGE N='2'/>");
  EXPECT_EQ(Dump(parent.GetElement("page", 3)), "PAGE{N=2}");
  EXPECT_EQ(Dump(parent.GetElement(3)), "Other{m=}");
  EXPECT_EQ(Dump(parent.GetElement("page", 2, "n", "2")), "PAGE{N=2}");
  EXPECT_EQ(Dump(parent.GetElement("page", 1, "n", "X")), "page{n=2 n=x}") << "any attribute of that name";
  EXPECT_EQ(Dump(parent.GetElement("page", 1, "m")), "null");
  EXPECT_EQ(parent.ElementCount() * 10 + parent.ElementCount("page"), 43);
  EXPECT_EQ(parent.GetTextSection(2)->GetText(), "t2") << "a CDATA section is passed over";
  for (const std::int32_t number : {0, -1, 5}) EXPECT_EQ(Dump(parent.GetElement(number)), "null") << number;
  std::int32_t entry = -7;
  EXPECT_EQ(parent.GetElementAndIndex("none", entry), nullptr);
  EXPECT_EQ(entry, -7);
  EXPECT_EQ(Dump(parent.GetElementAndIndex("other", entry)), "Other{m=}");
  EXPECT_EQ(entry, 5);
}

TEST(Element, ChangesItsLists) {
  zkXMLElement element("e b='1' B='2'");
  element.AddObject(Child("y"));
  element.InsertObject(Child("x"), 1);
  element.InsertObject(Child("z"), 3);
  element.InsertObject(std::make_shared<zkXMLAttribute>("a", "0"), 1);
  element.SetAttribute("B", "&lt;");
  element.SetAttribute("d", "4");
  EXPECT_EQ(tests::DumpTree(element), "e{a=0 b=< B=2 d=4}[x y z]");
  element.RemoveContent(2);
  element.RemoveAttribute("B");
  element.RemoveAttribute(1);
  EXPECT_EQ(tests::DumpTree(element), "e{B=2 d=4}[x z]");

  EXPECT_EQ(element.GetContent(0), nullptr);
  for (const std::int32_t outside : {-1, 3}) {
    EXPECT_THROW(element.GetContent(outside), base::OutOfBoundsException);
    EXPECT_THROW(element.RemoveContent(outside), base::OutOfBoundsException);
    EXPECT_THROW(element.InsertObject(Child("y"), outside + 1), base::OutOfBoundsException);
  }
  EXPECT_THROW(CastToXMLElement(std::make_shared<zkXMLComment>("c")), base::IllegalCastException);
}

TEST(Element, DepthIsNoMatterOfTheStack) {
  const auto held = Child("held");
  held->AddObject(Child("inner"));
  auto root = held;
  for (int depth = 0; depth < 300000; ++depth) {
    const auto outer = Child("e");
    outer->AddObject(std::exchange(root, outer));
  }
  EXPECT_EQ(root->GetXMLString().size(), 300000 * 7 + std::string("<held><inner/></held>").size());
  root.reset();
  EXPECT_EQ(Dump(held), "held[inner]") << "what somebody holds outlives its tree";
}

}  // namespace
}  // namespace quill::markup
