#include "quillpress/build_command.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "base/numbers.h"
#include "base/text.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

constexpr const char* kGlossary = "# First {#first}\n\na\n\n# Second {#second}\n\nb\n";

// A folder of its own, which goes with the test.
struct BuildTest : testing::Test {
  BuildTest() { fs::create_directories(folder); }
  ~BuildTest() override { fs::remove_all(folder); }

  void Write(const std::string& name, const std::string& text) const { std::ofstream(folder / name) << text; }

  // Status and errors, without the path of the folder.
  std::string Run(const std::string& manuscript, const std::string& output) const {
    std::ostringstream errors;
    const int status = Build(folder / manuscript, folder / output, errors);
    return base::ReplaceAll(base::Str(status) + " " + errors.str(), folder.string() + "/", "");
  }

  const fs::path folder = fs::temp_directory_path() / ("press_" + std::to_string(std::random_device()()));
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

TEST_F(BuildTest, FailsOnFilesThatCantBeReadOrWritten) {
  Write("a.md", "# A\n");
  fs::create_directories(folder / "a.xml/b");
  EXPECT_EQ(Run("none.md", "b.xml"), "2 none.md: can't be read\n");
  EXPECT_EQ(Run("a.md", "a.md"), "2 a.md: this is the manuscript itself; nothing was written\n");
  EXPECT_EQ(Run("a.md", "a.xml"), "2 a.xml: can't be written\n");
  EXPECT_EQ(Run("a.md", "a.md/b.xml"), "2 a.md/b.xml: can't be written\n");
}

}  // namespace
}  // namespace quill::quillpress
