// The content that ships, opened as the reader opens it: whatever a link promises must be there.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "host/numbers.h"

namespace quill::content {
namespace {

const std::filesystem::path kContent = QUILL_CONTENT_DIR;

Document Opened(const std::string& name, std::int32_t at_least) {
  std::ostringstream bytes;
  bytes << std::ifstream(kContent / name, std::ios::binary).rdbuf();
  host::MemoryDesktop desktop;
  desktop.files.AddFile("Quillmere.app/Contents/Data/" + name, bytes.str());
  zkXMLFileClass file(name);
  const auto document = std::make_shared<Document>();
  EXPECT_TRUE(file.Init() && file.GetDocument(document)) << name;
  EXPECT_EQ(file.GetLastPageID(), document->GetUbound()) << name;
  EXPECT_GE(document->GetUbound() + 1, at_least) << name;
  for (std::int32_t i = 0; i <= document->GetUbound(); ++i) {
    EXPECT_EQ(document->GetPageByOffset(i)->GetPageID(), host::Str(i)) << name << ": the id is not the place";
  }
  return *document;
}

// The area's documents are made from that folder. The opening page has none; its links lead to modes and,
// from 100 on, into Bio.
void ExpectKeptPromises(const std::string& name, const std::string& glossary_name,
                        const std::string& documents, std::int32_t notes = 0) {
  const Document pages = Opened(name, documents.empty() ? 1 : 8);
  const Document glossary = Opened(glossary_name, documents.empty() ? 1 : 8);
  const auto leads_somewhere = [&](const Link& link) {
    const std::int32_t to = host::IntVal(link.GetLinkToPage());
    const std::filesystem::path file = link.GetFilename();
    if (link.GetType() > 2 && link.GetType() < 9) return true;  // words in another style
    if (documents.empty())
      return to > 100 ? Opened("BioQMR.xml", 8).GetPage(to - 100) != nullptr : to > 0 && to < 5;
    if (link.GetType() == 0) return pages.GetPage(to) != nullptr && (to > 0 || notes-- > 0);
    if (link.GetType() == 1) return glossary.GetPage(to) != nullptr;
    if (link.GetType() != 9 || file.extension() != ".pdf") return false;
    return exists(kContent / "../documents" / documents / file.stem().concat(".md"));
  };
  for (std::int32_t i = 0; i <= pages.GetUbound(); ++i) {
    std::vector<std::shared_ptr<Link>> links;
    pages.GetPageByOffset(i)->GetLinks(links);
    for (const auto& link : links) {
      EXPECT_TRUE(leads_somewhere(*link))
          << name << ", page " << i << ", column " << link->GetColumn() << ", offset " << link->GetOffset()
          << ": nothing at \"" << link->GetLinkToPage() << "\" " << link->GetFilename();
    }
  }
  EXPECT_EQ(notes, 0) << name << ": links to page 0, which in Screen alone open the notes";
}

TEST(Bundle, KeepsWhatItsLinksPromise) {
  ExpectKeptPromises("initQMR.xml", "initglossary.xml", "");
  ExpectKeptPromises("ScreenQMR.xml", "ScreenGlossary.xml", "beside", 1);
  ExpectKeptPromises("StageQMR.xml", "StageGlossary.xml", "beside");
  ExpectKeptPromises("TVQMR.xml", "TVGlossary.xml", "beside");
  ExpectKeptPromises("wgaqmr.xml", "wgaGlossary.xml", "bundle");
  ExpectKeptPromises("BioQMR.xml", "BioGlossary.xml", "beside");
}

}  // namespace
}  // namespace quill::content
