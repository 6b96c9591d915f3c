#include "nav/history.h"

#include <gtest/gtest.h>

namespace quill::nav {
namespace {

History Trail(std::size_t steps) {
  History history;
  for (std::size_t i = 0; i < steps; ++i) history.Append(std::to_string(i + 1));
  return history;
}

TEST(HistoryTest, RowOffersTheFirstPageAndTheLastTwoBeforeTheOneOnShow) {
  using Row = std::vector<TrailButton>;
  EXPECT_EQ(Trail(0).Row(), Row{});
  EXPECT_EQ(Trail(1).Row(), (Row{{0, 0, ""}}));
  EXPECT_EQ(Trail(2).Row(), (Row{{0, 0, ""}}));
  EXPECT_EQ(Trail(4).Row(), (Row{{0, 0, ""}, {1, 1, "> "}, {2, 2, "> "}}));
  EXPECT_EQ(Trail(5).Row(), (Row{{0, 0, ""}, {2, 2, "...> "}, {3, 3, "> "}}));
  EXPECT_EQ(Trail(21).Row(), (Row{{0, 0, ""}, {18, 18, "...> "}, {19, 19, "> "}}));
  EXPECT_EQ(Trail(22).Row(), (Row{{0, 0, ""}, {18, 19, "...> "}, {19, 20, "> "}})) << "beyond the pool";
}

TEST(HistoryTest, CutsBackToTheLastStepOnAPage) {
  struct Case {
    std::vector<std::string> trail;
    std::string page;
    std::vector<std::string> left;
  };
  for (const Case& row : {Case{{"1", "4", "7"}, "1", {}}, Case{{"1", "4", "1", "7"}, "1", {"1", "4"}},
                          Case{{"1", "4"}, "4", {"1"}}, Case{{"1", "4"}, "04", {}}, Case{{}, "1", {}}}) {
    History history;
    for (const std::string& page : row.trail) history.Append(page);
    history.ResetHistory(row.page);
    EXPECT_EQ(history.Pages(), row.left);
  }
}

}  // namespace
}  // namespace quill::nav
