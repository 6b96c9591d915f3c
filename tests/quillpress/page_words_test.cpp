#include "quillpress/page_words.h"

#include <gtest/gtest.h>

#include "host/numbers.h"
#include "support/reader.h"

namespace quill::quillpress {
namespace {

// The tool knows the measures of the viewer's window by heart; here they are held
// against each other.
TEST(PageWordsTest, LaysOutAsTheViewerDoes) {
  std::vector<tests::TestPage> pages(192, {"Plain", {"a\nb"}});
  pages[1] = {"Three", {"a word", "\tb. c", "d"}, {{0, 6, "1"}, {1, 2, "1", 3, 2}}};
  for (const std::int32_t mode : {1, 2}) {
    tests::Reader reader;
    reader.SetPages(static_cast<std::size_t>(mode), pages);
    reader.Viewer().ChooseMode(mode);
    for (const char* const number : {"1", "191", "0191"}) {
      reader.Viewer().ShowPage(number);
      const content::Page& page = *reader.App().doc->GetPage(host::IntVal(number));
      const auto layout =
          render::LayOutPage(page, ViewerSettings(page, mode, number), reader.desktop.Metrics());
      EXPECT_NE(reader.Viewer().Dump().find(layout.Dump()), std::string::npos) << mode << " " << number;
    }
  }
}

}  // namespace
}  // namespace quill::quillpress
