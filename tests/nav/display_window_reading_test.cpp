// What the viewer tells the desktop of a page, and what happens to its buttons when
// memory is short.
#include <gtest/gtest.h>

#include "support/reader.h"

namespace quill::nav {
namespace {

class ReadingTest : public testing::Test {
 protected:
  ReadingTest() {
    reader_.SetPages(0, {{"Opening", {"screen"}, {{0, 6, "1", 2}}}});
    reader_.SetPages(1,
                     {{"Cover", {"c"}},
                      {"First", {"go on to it"}, {{0, 2, "2"}, {6, 2, "0", 1}, {9, 2, "0", 9, 1, "a.pdf"}}},
                      {"Second", {"last"}, {{0, 4, "1"}}}});
    reader_.Viewer();
  }

  // "label -> where", for all links of the page, then the trail in brackets.
  std::string Told() {
    const host::Reading& reading = reader_.Screen().reading;
    std::string told = reading.title + " (" + reading.source + "):";
    const auto add = [&](const host::Canvas* canvas) {
      for (const host::MemoryControl* control : reader_.Screen().controls) {
        if (canvas != nullptr && control->canvas == canvas)
          told += " " + control->text + " -> " + control->purpose.leads_to + ";";
      }
    };
    for (const auto& paragraph : reading.columns.at(0)) {
      for (const auto& run : paragraph) add(run.link);
    }
    for (const host::Canvas* step : reading.trail) add(step);
    add(reading.way_out);
    return told;
  }

  tests::Reader reader_;
};

TEST_F(ReadingTest, NamesWhereEachLinkLeads) {
  EXPECT_EQ(Told(), "Opening (Opening page): screen -> area Screen; Exit -> ;");
  EXPECT_TRUE(reader_.Click({"screen"}));
  EXPECT_EQ(
      Told(),
      "First (Screen, page 1): go -> page Second; to -> glossary; it -> document a.pdf; Back -> opening "
      "page;");
  EXPECT_EQ(reader_.Screen().reading.back, reader_.Screen().reading.way_out);
  EXPECT_TRUE(reader_.Click({"go"}));
  EXPECT_EQ(Told(),
            "Second (Screen, page 2): last -> page First; First  -> page First; Back -> opening page;");
  EXPECT_EQ(reader_.Screen().reading.back, reader_.Screen().reading.trail.at(0));
  EXPECT_EQ(reader_.Screen().reading.left_by, nullptr);
  EXPECT_TRUE(reader_.Click({"First "}));
  const host::Reading& returned = reader_.Screen().reading;
  EXPECT_NE(returned.left_by, nullptr) << "back by the trail";
  EXPECT_EQ(returned.left_by, returned.columns.at(0).at(0).at(0).link);
}

TEST_F(ReadingTest, TheExitButtonComesBackWhenMemoryDoes) {
  EXPECT_TRUE(reader_.Click({"screen"}));
  reader_.desktop.out_of_pictures = true;
  EXPECT_TRUE(reader_.Click({"go"}));
  reader_.desktop.out_of_pictures = false;
  reader_.Viewer().ShowPage("1");
  EXPECT_TRUE(reader_.Click({"Back"}));
  EXPECT_FALSE(reader_.TakeMessages().empty());
}

}  // namespace
}  // namespace quill::nav
