// Content files for tests, from the few things a test cares about.
#pragma once

#include <string>
#include <vector>

#include "base/numbers.h"

namespace quill::tests {

struct TestLink {
  int offset = 0;
  int length = 0;
  std::string target;
  int type = 0;
  int column = 1;
  std::string filename = {};
};

struct TestPage {
  std::string title;
  std::vector<std::string> columns;
  std::vector<TestLink> links = {};
};

inline std::string Element(const std::string& name, const std::string& value) {
  return "<" + name + ">" + value + "</" + name + ">";
}

inline std::string LinkXml(const TestLink& link) {
  return "<Link Column=\"" + base::Str(link.column) + "\">" + Element("Offset", base::Str(link.offset)) +
         Element("Length", base::Str(link.length)) + Element("LinkToPage", link.target) +
         Element("LinkType", base::Str(link.type)) + Element("Filename", link.filename) + "</Link>";
}

inline std::string PageXml(const TestPage& page, std::size_t id) {
  std::string xml = "<Page Columns=\"" + std::to_string(page.columns.size()) + "\">" +
                    Element("PageID", std::to_string(id)) + Element("Title", page.title);
  for (const std::string& text : page.columns) xml += Element("Text", text);
  xml += "<Links>";
  for (const TestLink& link : page.links) xml += LinkXml(link);
  return xml + "</Links></Page>";
}

// A content file whose pages have the ids 0, 1, 2 and so on.
inline std::string ContentXml(const std::vector<TestPage>& pages) {
  std::string xml = "<Root><AppInfo/><Document>";
  for (std::size_t id = 0; id < pages.size(); ++id) xml += PageXml(pages[id], id);
  return xml + "</Document></Root>";
}

}  // namespace quill::tests
