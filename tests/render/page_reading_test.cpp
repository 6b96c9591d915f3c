#include "render/page_reading.h"

#include <gtest/gtest.h>

#include "app/mode_table.h"
#include "content/link_types.h"
#include "host/memory/memory_graphics.h"
#include "render/page_settings.h"
#include "support/texts.h"

namespace quill::render {
namespace {

// The runs of a paragraph in brackets, before a link its index, behind bold words a b.
std::string Dump(const ReadParagraph& paragraph) {
  std::string dump;
  for (const ReadRun& run : paragraph)
    dump += (run.link ? std::to_string(*run.link) : "") + "[" + run.text + "]" + (run.bold ? "b" : "");
  return dump + "\n";
}

// A line for each paragraph of a page with that text, and "z" in its second column.
std::string Read(const std::string& text) {
  content::Page page("0", "T", text, "z");
  page.AddLink("0", "3", "1", content::link_type::kPage, 1);
  page.AddLink("8", "5", "2", 4, 1);
  page.AddLink("0", "1", "3", content::link_type::kGlossary, 2);
  host::FixedMetrics metrics;
  const PageLayout layout = LayOutPage(page, PageSettings(app::kModes[1], 2, "1"), metrics);
  std::string dump;
  for (const ReadColumn& column : ReadPage(page, layout))
    for (const ReadParagraph& paragraph : column) dump += Dump(paragraph);
  return dump;
}

TEST(PageReadingTest, KeepsTheTextAndTellsItsLinks) {
  tests::ExpectEach(Read, {{"one two ", "0[one][ two ]\n2[z]\n", "a blank goes with plain words"},
                           {"on two x y", "0[on two][ x y]\n2[z]\n"},
                           {"one two bo ld e", "0[one][ two][ bo ld]b[ e]\n2[z]\n"},
                           {"one\n\n\ttwo", "0[one]\n\n[\ttwo]\n2[z]\n", "empty paragraphs and tabs stay"},
                           {"", "2[z]\n", "a column without text has no paragraph"}});
}

}  // namespace
}  // namespace quill::render
