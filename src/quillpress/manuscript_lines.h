// From what is found in content files to the lines of their manuscripts.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "search/index.h"

namespace quill::quillpress {

// A line of a manuscript; 0 if the manuscript doesn't hold what was found.
struct ManuscriptLine {
  std::string file;  // its path, that of the folder before its name
  int line = 0;      // from 1
};

// The manuscripts of a folder, each of which is read when it is first asked for. They
// are called after the areas, in lower case: "screen.md" and "screen_glossary.md".
class ManuscriptLines {
 public:
  explicit ManuscriptLines(std::filesystem::path folder) : folder_(std::move(folder)) {}

  // Returns the first line of the hit's page on which a word of the query stands, else
  // that of its title. None for a page that the manuscript has not, or by another title.
  // Throws `FileComplaint` if the manuscript can't be read.
  ManuscriptLine LineOf(const search::Hit& hit, const search::Query& query);

 private:
  struct PagePlace {
    std::string title;  // UTF-8
    int line = 0;
  };
  struct Manuscript {
    std::vector<std::string> lines;
    std::vector<PagePlace> pages;
  };

  const Manuscript& Read(const std::string& name);

  std::filesystem::path folder_;
  std::map<std::string, Manuscript> manuscripts_;
};

}  // namespace quill::quillpress
