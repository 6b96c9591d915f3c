#include "quillpress/build_command.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/numbers.h"
#include "base/text.h"
#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

namespace fs = tests::fs;

constexpr const char* kGlossary = "# First {#first}\n\na\n\n# Second {#second}\n\nb\n";

struct BuildTest : testing::Test {
  void Write(const std::string& name, const std::string& text) const {
    tests::WriteFile(folder / name, text);
  }

  // Status and errors, without the path of the folder.
  std::string Run(const std::string& manuscript, const std::string& output) const {
    std::ostringstream errors;
    const int status = Build(folder / manuscript, folder / output, errors);
    return base::ReplaceAll(base::Str(status) + " " + errors.str(), (folder / "").string(), "");
  }

  const tests::Folder folder;
};

TEST_F(BuildTest, WritesAllOrNothing) {
  Write("a.md", "# A\n\n[b](glossary:second)\n");
  EXPECT_EQ(Run("a.md", "a.xml"),
            "1 a.md:3: there is no glossary beside this manuscript to look for \"second\"\n");
  EXPECT_FALSE(fs::exists(folder / "a.xml"));
  Write("a_glossary.md", kGlossary);
  EXPECT_EQ(Run("a.md", "new/a.xml"), "0 ");
  EXPECT_EQ(Run("a_glossary.md", "b.xml"), "0 ");
  const auto size = fs::file_size(folder / "b.xml");
  Write("a_glossary.md", "# A\n\n**a**\n\n- b\n\n---\n");
  EXPECT_EQ(Run("a_glossary.md", "b.xml"),
            "1 a_glossary.md:1: a glossary entry has one column\n"
            "a_glossary.md:1: a glossary entry has no indents and no lists\n"
            "a_glossary.md:3: a glossary entry has no links and no styles\n");
  EXPECT_EQ(fs::file_size(folder / "b.xml"), size);
}

}  // namespace
}  // namespace quill::quillpress
