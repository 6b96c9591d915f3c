#include "content/document.h"

#include <gtest/gtest.h>

namespace quill::content {
namespace {

TEST(Document, FindsPagesByIdAndByPosition) {
  Document document;
  EXPECT_EQ(document.GetUbound(), -1);
  EXPECT_EQ(document.GetPage(0), nullptr);
  EXPECT_EQ(document.GetPageByOffset(0), nullptr);

  document.AddPage("03", "first", "");
  document.AddPage("3", "second", "", "");
  document.AddPage("x", "third", "", "", "");
  EXPECT_EQ(document.GetPage(3)->GetTitle(), "first");
  EXPECT_EQ(document.GetPage(0)->GetTitle(), "third") << "an id that is no number reads as 0";
  EXPECT_EQ(document.GetPage(2), nullptr);
  EXPECT_EQ(document.GetPageByOffset(2)->GetColumns(), 3) << "the last page too";
  EXPECT_EQ(document.GetPageByOffset(3), nullptr);
  EXPECT_EQ(document.GetPageByOffset(-1), nullptr);
}

TEST(Document, LinksGoToThePositionThatTheIdReadsAs) {
  Document document;
  document.AddPage("7", "", "");
  document.AddPage("0", "", "");
  for (const char* const id : {"0", "1", "7", "2", "-1", "99999999999", ""})
    document.AddLink(id, id, "5", "1", 0);
  EXPECT_TRUE(document.GetPageByOffset(0)->LinkExists("0", "5"));
  EXPECT_TRUE(document.GetPageByOffset(0)->LinkExists("", "5")) << "no number is 0";
  EXPECT_TRUE(document.GetPageByOffset(1)->LinkExists("1", "5"));
  for (const char* const dropped : {"7", "2", "-1", "99999999999"}) {
    EXPECT_FALSE(document.GetPageByOffset(0)->LinkExists(dropped, "5")) << dropped;
    EXPECT_FALSE(document.GetPageByOffset(1)->LinkExists(dropped, "5")) << dropped;
  }
}

TEST(Page, KeepsTextsOutOfSight) {
  Page page("0", "t", "1", "2", "3");
  page.SetText("a", "b");
  EXPECT_EQ(page.GetColumns(), 2);
  EXPECT_EQ(page.GetText(), "a");
  EXPECT_EQ(page.GetText(2), "b");
  for (const std::int32_t column : {0, 3, 4, -1}) EXPECT_EQ(page.GetText(column), "3");
  EXPECT_EQ(Page().GetColumns(), 0);
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
  EXPECT_EQ(Targets(page), "");
  page.AddLink("012", "5", "a", 0);
  page.AddLink("12", "5", "b", 0, 1);
  page.AddLink("12", "5", "c", 0, 2, "file");
  EXPECT_EQ(page.GetLink("12", "5")->GetLinkToPage(), "b");
  EXPECT_EQ(page.GetLink("12", "05"), nullptr);
  EXPECT_TRUE(page.LinkExists("12", "5", 2));
  EXPECT_FALSE(page.LinkExists("12", "5", 0));

  page.DeleteLink("12");
  page.DeleteLink("99");
  EXPECT_EQ(Targets(page), "ac") << "the first of that offset, in whatever column";
  page.UpdateLink(1, "1", "2", "d", 3);
  EXPECT_EQ(page.GetLink("1", "2")->GetColumn(), 2);
  EXPECT_EQ(page.GetLink("1", "2")->GetFilename(), "file");
  for (const std::int32_t outside : {-1, 2}) {
    page.UpdateLink(outside, "1", "2", "e", 3);
    page.DeleteLink(outside);
  }
  EXPECT_EQ(Targets(page), "ad");
  page.DeleteLink(0);
  EXPECT_EQ(Targets(page), "d");
}

}  // namespace
}  // namespace quill::content
