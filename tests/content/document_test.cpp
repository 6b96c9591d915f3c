#include "content/document.h"

#include <gtest/gtest.h>

namespace quill::content {
namespace {

TEST(Document, FindsPagesByIdAndByIndex) {
  Document document;
  document.AddPage("03", "first", "");
  document.AddPage("3", "second", "", "");
  document.AddPage("x", "third", "", "", "");
  EXPECT_EQ(document.GetPage(3)->GetTitle(), "first");
  EXPECT_EQ(document.GetPage(0)->GetTitle(), "third") << "an id that is no number reads as 0";
  EXPECT_EQ(document.GetPage(2), nullptr);
  EXPECT_EQ(document.GetPageByOffset(2)->GetColumns(), 3) << "the last page too";
  for (const std::int32_t outside : {-1, 3}) EXPECT_EQ(document.GetPageByOffset(outside), nullptr);
}

TEST(Page, KeepsTextsOutOfSight) {
  Page page("0", "t", "1", "2", "3");
  page.SetText("a", "b");
  EXPECT_EQ(page.GetText(1) + page.GetText(2) + page.GetText(0) + page.GetText(4), "ab33");
}

// The targets of the page's links, in order.
std::string Targets(const Page& page) {
  std::vector<std::shared_ptr<Link>> links = {nullptr};
  page.GetLinks(links);
  std::string targets;
  for (const auto& link : links) targets += link->GetLinkToPage();
  return targets;
}

TEST(Page, TellsLinksApartByText) {
  Page page;
  page.AddLink("012", "5", "a", 0);
  page.AddLink("12", "5", "b", 0, 1);
  page.AddLink("12", "5", "c", 0, 2, "file");
  EXPECT_EQ(page.GetLink("12", "5")->GetLinkToPage(), "b");
  EXPECT_FALSE(page.LinkExists("12", "05"));
  EXPECT_TRUE(page.LinkExists("12", "5", 2));
  EXPECT_FALSE(page.LinkExists("12", "5", 0));

  page.DeleteLink("12");
  EXPECT_EQ(Targets(page), "ac") << "the first of that offset, in whatever column";
  page.UpdateLink(1, "1", "2", "d", 3);
  EXPECT_EQ(page.GetLink("1", "2")->GetFilename(), "file");
  for (const std::int32_t outside : {-1, 2}) page.DeleteLink(outside);
  EXPECT_EQ(Targets(page), "ad");
}

}  // namespace
}  // namespace quill::content
