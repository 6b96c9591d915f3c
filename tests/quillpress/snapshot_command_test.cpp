#include <gmock/gmock.h>

#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(SnapshotTest, ShowsThePageAsPictureAndAsText) {
  const tests::Bundle bundle;
  const std::string command = "snapshot . --mode 2 --page 2 -o page.png";
  EXPECT_EQ(bundle.Run(command).out, "");
  EXPECT_EQ(tests::ReadFile(bundle.data / "page.png").substr(1, 3), "PNG");
  const std::string dump = bundle.Run(command + " --dump").out;
  EXPECT_THAT(dump, StartsWith("mode 2 page 2 \"Next\" trail 1 2\nLast. 30,"));
  const std::string labelled = bundle.Run(command + " --dump --offsets").out;
  EXPECT_THAT(labelled, HasSubstr("\n0 30,"));
  EXPECT_EQ(labelled.size() - dump.size(), std::string("0 30,86\n").size()) << labelled << "a label a word";
}

}  // namespace
}  // namespace quill::quillpress
