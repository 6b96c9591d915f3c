#include "render/page_reading.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "base/text.h"

namespace quill::render {
namespace {

bool SameLook(const ReadRun& a, const ReadRun& b) {
  return a.bold == b.bold && a.italic == b.italic && a.underline == b.underline && a.link == b.link;
}

// Words and links of a layout come in the order of the text, so that one walk over
// each of them serves all paragraphs.
class PageReader {
 public:
  PageReader(const content::Page& page, const PageLayout& layout) : page_(page), layout_(layout) {}

  std::vector<ReadColumn> Read();

 private:
  ReadParagraph Paragraph(std::string_view text);
  void TakeStyles(std::vector<ReadRun>& fields);
  void TakeLinks(std::vector<ReadRun>& fields);

  const content::Page& page_;
  const PageLayout& layout_;
  std::int32_t column_ = 1;  // from 1
  std::size_t paragraph_ = 0;
  std::size_t word_ = 0;  // index of the next word of the layout
  std::size_t link_ = 0;  // the same of its links
};

std::vector<ReadColumn> PageReader::Read() {
  std::vector<ReadColumn> columns;
  for (; column_ <= std::min(page_.GetColumns(), 3); ++column_) {
    ReadColumn& column = columns.emplace_back();
    paragraph_ = 0;
    for (const std::string_view text : base::Fields(page_.GetText(column_), '\n')) {
      column.push_back(Paragraph(text));
      ++paragraph_;
    }
  }
  return columns;
}

// A blank between two fields goes with the words that are no link.
ReadParagraph PageReader::Paragraph(std::string_view text) {
  std::vector<ReadRun> fields;
  for (const std::string_view field : base::Fields(text, ' ')) fields.push_back({.text = std::string(field)});
  TakeStyles(fields);
  TakeLinks(fields);
  ReadParagraph runs;
  for (ReadRun& field : fields) {
    if (runs.empty()) {
      runs.push_back(std::move(field));
    } else if (SameLook(runs.back(), field)) {
      runs.back().text += " " + field.text;
    } else if (!field.link) {
      field.text.insert(0, " ");
      runs.push_back(std::move(field));
    } else {
      if (runs.back().link) runs.emplace_back();
      runs.back().text += ' ';
      runs.push_back(std::move(field));
    }
  }
  return runs;
}

void PageReader::TakeStyles(std::vector<ReadRun>& fields) {
  for (; word_ < layout_.words.size(); ++word_) {
    const PlacedWord& word = layout_.words[word_];
    if (word.column != column_ || word.field.paragraph != paragraph_) return;
    ReadRun& run = fields[word.field.field];
    run.bold = word.bold;
    run.italic = word.italic;
    run.underline = word.underline;
  }
}

// Where a link starts among the words of another, the words from there on are its.
void PageReader::TakeLinks(std::vector<ReadRun>& fields) {
  for (; link_ < layout_.links.size(); ++link_) {
    const PlacedLink& link = layout_.links[link_];
    if (link.column != column_ || link.field.paragraph != paragraph_) return;
    if (!link.shown) continue;
    const std::size_t end =
        std::min(fields.size(), link.field.field + static_cast<std::size_t>(std::max(link.fields, 1)));
    for (std::size_t i = link.field.field; i < end; ++i)
      fields[i] = {.text = std::move(fields[i].text), .link = link.index};
  }
}

}  // namespace

std::vector<ReadColumn> ReadPage(const content::Page& page, const PageLayout& layout) {
  return PageReader(page, layout).Read();
}

}  // namespace quill::render
