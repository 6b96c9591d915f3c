// Runs the tool as its users do, and the folders that it works on.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "app/mode_table.h"
#include "support/content_xml.h"
#include "support/temporary_folder.h"

namespace quill::tests {

namespace fs = std::filesystem;

inline std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteFile(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

// The text of a content file with a whole head.
inline std::string FileXml(const std::vector<TestPage>& pages) {
  std::string xml = ContentXml(pages);
  const std::string head = "<AppInfo>" + Element("Version", "1.3") +
                           Element("LastPageID", std::to_string(pages.size() - 1)) + "</AppInfo>";
  return xml.replace(xml.find("<AppInfo/>"), 10, head);
}

// A bundle in which nothing is wrong.
class Bundle {
 public:
  Bundle() {
    for (const app::Mode& mode : app::kModes) {
      Write(mode.content_file, {{"Cover", {"cover"}}, {"First", {"first"}}});
      Write(mode.glossary_file, {{"About", {"about"}}});
    }
    Write("initQMR.xml", {{"Opening", {"Stage Life"}, {{0, 5, "2", 2}, {6, 4, "101", 2}}}});
    Write("StageQMR.xml", {{"Cover", {"cover"}},
                           {"Way in",
                            {"Begin here with Next and a word of rehearsal\nThe Paper end"},
                            {{16, 4, "2"}, {35, 9, "1", 1}, {50, 5, "0", 9, 1, "p.pdf"}}},
                           {"Next", {"Last."}}});
    Write("StageGlossary.xml", {{"About", {"about"}}, {"Entry", {"entry"}}});
    Write("TVQMR.xml",
          {{"Cover", {"cover"}},
           {"First",
            {"one two three four five six seven eight", "middle", std::string(12, '\n') + "right"},
            {{0, 3, "1", 2}, {12, 5, "1", 2, 3}}}});
    Write("wgaqmr.xml", {{"Cover", {"cover"}}, {"First", {"first"}, {{0, 5, "0", 9, 1, "w.pdf"}}}});
    WriteFile(data / "w.pdf", "");
    WriteFile(folder / "Data/p.pdf", "");
  }

  void Write(std::string_view file, const std::vector<TestPage>& pages) const {
    WriteFile(data / file, FileXml(pages));
  }

  // Replaces the first `from` in a file by `to`.
  void Replace(const std::string& file, const std::string& from, const std::string& to) const {
    std::string xml = ReadFile(data / file);
    const std::size_t index = xml.find(from);
    ASSERT_NE(index, std::string::npos) << from;
    WriteFile(data / file, xml.replace(index, from.size(), to));
  }

  // Runs the tool with `arguments`, spelled for the shell, in the folder of the content
  // files. `before` is what the shell does first. The tool writes through pipes, so
  // that a limit on files doesn't silence it.
  Outcome Run(const std::string& arguments, const std::string& before = "true") const {
    WriteFile(folder / "run", "cd '" + data.string() + "'; set -o pipefail; { (" + before +
                                  " && exec '" QUILLPRESS "' " + arguments +
                                  ") 2>&1 >&3 3>&- | cat >../err; } 3>&1 | cat >../out");
    const int status = std::system(("bash '" + (folder / "run").string() + "'").c_str());
    return {WEXITSTATUS(status), ReadFile(data / "../out"), ReadFile(data / "../err")};
  }

  const TemporaryFolder folder;
  const fs::path data = folder / "Quillmere.app/Contents/Data";
};

}  // namespace quill::tests
