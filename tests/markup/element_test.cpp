#include "markup/element.h"

#include <gtest/gtest.h>

#include <limits>

#include "host/exceptions.h"
#include "markup/exceptions.h"
#include "support/tree_dump.h"

namespace quill::markup {
namespace {

constexpr const char* kRefused = "parsing exception";

std::string ReadTag(const char* tag, bool relaxed) {
  try {
    zkXMLElement element(tag, relaxed);
    return tests::DumpTree(element);
  } catch (const zkXMLParsingException&) {
    return kRefused;
  }
}

TEST(Element, ReadsStartTags) {
  const struct {
    const char* tag;
    const char* strict;
    const char* relaxed;  // null: the same
  } cases[] = {
      {"a", "a", nullptr},
      {"", "", nullptr},
      {" a ", "a", nullptr},
      {"a b=\"1\" c='2'", "a{b=1 c=2}", nullptr},
      {"a\n\tb=\"1\"", "a{b=1}", nullptr},
      {"a b=\"1\"c=\"2\"", "a{b=1}", nullptr},
      {"a b=\"1\"x c=\"2\"", "a{b=1 c=2}", nullptr},
      {"a b =\"1\"", "a{b =1}", nullptr},
      {"a b c=\"1\"", "a{b c=1}", nullptr},
      {"a b=\"'=<\" c='\"'", "a{b='=< c=\"}", nullptr},
      {"a b=\"1\" B=\"2\"", "a{b=1 B=2}", nullptr},
      {"a b=\"\"", "a{b=}", nullptr},
      {"a b", kRefused, nullptr},
      {"a b=\"1", kRefused, nullptr},
      {"a b=\"1\" c", kRefused, nullptr},
      {"a b= \"1\"", kRefused, nullptr},
      {"a b= \"c=1\"", kRefused, "a{b= \"c=1\"}"},
      {"a b=", kRefused, "a{b=}"},
      {"a b=1", kRefused, "a{b=1}"},
      {"a b=1 c=2", kRefused, "a{b=1 c=2}"},
      {"a b=1\"2 c='3'", kRefused, "a{b=1\"2 c=3}"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadTag(c.tag, false), c.strict) << c.tag;
    EXPECT_EQ(ReadTag(c.tag, true), c.relaxed == nullptr ? c.strict : c.relaxed) << "relaxed " << c.tag;
  }
}

std::shared_ptr<zkXMLElement> Child(const char* tag) { return std::make_shared<zkXMLElement>(tag); }

class ElementLookup : public testing::Test {
 protected:
  ElementLookup() {
    for (const auto& object : std::initializer_list<std::shared_ptr<zkXMLObject>>{
             std::make_shared<zkXMLTextSection>("t"), Child("Page n='1'"),
             std::make_shared<zkXMLCDataSection>("c"), Child("page n='2' n='x'"), Child("Other n='2'"),
             std::make_shared<zkXMLTextSection>("u"), Child("PAGE N='2'")}) {
      parent.AddObject(object);
    }
  }

  static std::string Dump(const std::shared_ptr<zkXMLElement>& element) {
    return element ? tests::DumpTree(*element) : "null";
  }

  zkXMLElement parent{"parent"};
};

TEST_F(ElementLookup, CountsWhatFitsFromOne) {
  EXPECT_EQ(Dump(parent.GetElement("PAGE")), "Page{n=1}");
  EXPECT_EQ(Dump(parent.GetElement("page", 3)), "PAGE{N=2}");
  EXPECT_EQ(Dump(parent.GetElement("page", 4)), "null");
  EXPECT_EQ(Dump(parent.GetElement(3)), "Other{n=2}");
  EXPECT_EQ(Dump(parent.GetElement("page", 2, "N")), "page{n=2 n=x}");
  EXPECT_EQ(Dump(parent.GetElement("page", 2, "n", "2")), "PAGE{N=2}");
  EXPECT_EQ(Dump(parent.GetElement("page", 1, "n", "X")), "page{n=2 n=x}") << "any attribute of that name";
  EXPECT_EQ(Dump(parent.GetElement("page", 1, "m")), "null");
  EXPECT_EQ(parent.ElementCount(), 4);
  EXPECT_EQ(parent.ElementCount("page"), 3);
  EXPECT_EQ(parent.GetTextSection()->GetText(), "t");
  EXPECT_EQ(parent.GetTextSection(2)->GetText(), "u") << "a CDATA section is passed over";
}

TEST_F(ElementLookup, FindsNothingBelowOne) {
  for (const std::int32_t number : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(parent.GetElement(number), nullptr);
    EXPECT_EQ(parent.GetElement("page", number), nullptr);
    EXPECT_EQ(parent.GetTextSection(number), nullptr);
  }
}

TEST_F(ElementLookup, TellsTheEntryNumber) {
  std::int32_t entry = -7;
  EXPECT_EQ(parent.GetElementAndIndex("none", entry), nullptr);
  EXPECT_EQ(entry, -7);
  EXPECT_EQ(Dump(parent.GetElementAndIndex("other", entry)), "Other{n=2}");
  EXPECT_EQ(entry, 5);
}

TEST_F(ElementLookup, ListsEndWhereTheyEnd) {
  EXPECT_EQ(parent.GetContent(0), nullptr);
  EXPECT_EQ(parent.GetAttribute(0), nullptr);
  EXPECT_NE(parent.GetContent(7), nullptr);
  EXPECT_THROW(parent.GetContent(8), host::OutOfBoundsException);
  EXPECT_THROW(parent.GetContent(-1), host::OutOfBoundsException);
  EXPECT_THROW(parent.GetAttribute(1), host::OutOfBoundsException);
  EXPECT_THROW(parent.RemoveContent(0), host::OutOfBoundsException);
  EXPECT_THROW(parent.RemoveContent(8), host::OutOfBoundsException);
  EXPECT_THROW(parent.InsertObject(Child("x"), 9), host::OutOfBoundsException);
  EXPECT_THROW(parent.AddObject(nullptr), host::NilObjectException);
}

TEST(Element, ChangesItsLists) {
  zkXMLElement element("e b='1' B='2'");
  element.InsertObject(Child("y"), 1);
  element.InsertObject(Child("x"), 1);
  element.InsertObject(std::make_shared<zkXMLAttribute>("a", "0"), 1);
  element.AddObject(Child("z"));
  element.AddObject(std::make_shared<zkXMLAttribute>("c", "3"));
  element.SetAttribute("B", "&lt;");
  element.SetAttribute("d", "4");
  EXPECT_EQ(tests::DumpTree(element), "e{a=0 b=< B=2 c=3 d=4}[x y z]");
  element.RemoveContent(2);
  element.RemoveAttribute("B");
  element.RemoveAttribute("none");
  element.RemoveAttribute(1);
  EXPECT_EQ(tests::DumpTree(element), "e{B=2 c=3 d=4}[x z]");
}

TEST(Element, CastsByClass) {
  const std::shared_ptr<zkXMLObject> element = Child("e");
  EXPECT_EQ(CastToXMLElement(element), element);
  EXPECT_EQ(CastToXMLElement(nullptr), nullptr);
  EXPECT_THROW(CastToXMLElement(std::make_shared<zkXMLTextSection>("t")), host::IllegalCastException);
}

TEST(Element, DeepTreesAreReleasedButWhatIsHeldStays) {
  auto root = Child("root");
  std::shared_ptr<zkXMLElement> held;
  for (int depth = 0; depth < 300000; ++depth) {
    auto outer = Child("e");
    outer->AddObject(root);
    root = outer;
    if (depth == 1000) held = outer;
  }
  root.reset();
  EXPECT_EQ(held->ElementCount(), 1);
}

}  // namespace
}  // namespace quill::markup
