#include "render/page_geometry.h"

#include <gtest/gtest.h>

#include "host/graphics.h"
#include "render/link_style.h"

namespace quill::render {
namespace {

TEST(PageGeometryTest, DividesThePageBetweenItsColumns) {
  PageGeometry geometry;
  geometry.SetMargins(3, 640);
  EXPECT_EQ(geometry.LeftMargin, (std::array{30, 30, 223, 416}));
  EXPECT_EQ(geometry.RightMargin, (std::array{610, 223, 416, 609}));
  geometry.SetMargins(2, 640);
  EXPECT_EQ(geometry.LeftMargin, (std::array{30, 30, 320, 416})) << "the third column's stay";
  EXPECT_EQ(geometry.RightMargin, (std::array{610, 320, 610, 609}));
  geometry.SetMargins(4, 640);
  EXPECT_EQ(geometry.RightMargin, (std::array{610, 320, 610, 609})) << "no such layout";
  geometry.SetMargins(1, 640);
  EXPECT_EQ(geometry.RightMargin[1], 610);
}

TEST(LinkStyleTest, EachTypeStartsFromClearFlags) {
  struct Row {
    std::int32_t type;
    bool bold, italic, underline;
  };
  host::TextFace face;
  face.Bold = face.Italic = face.Underline = true;
  for (const Row& row : {Row{3, false, true, false}, Row{4, true, false, false}, Row{5, true, true, false},
                         Row{6, false, false, true}, Row{7, false, true, true}, Row{8, true, false, true}}) {
    SetLinkStyle(row.type, face);
    EXPECT_EQ(face.Bold, row.bold) << row.type;
    EXPECT_EQ(face.Italic, row.italic) << row.type;
    EXPECT_EQ(face.Underline, row.underline) << row.type;
  }
}

}  // namespace
}  // namespace quill::render
