// How words on the page stand out that the reader has looked for.
#include <algorithm>
#include <map>
#include <tuple>

#include "base/numbers.h"
#include "base/text.h"
#include "host/desktop.h"
#include "nav/display_window.h"

namespace quill::nav {
namespace {

// Of a word, from its base line and its ends, in pixels.
constexpr std::int32_t kAbove = 13;
constexpr std::int32_t kHeight = 18;
constexpr std::int32_t kBeside = 2;

struct Piece {
  std::string text;
  base::Rect place;
};

// Words as they are read: by column, paragraph and field.
using Pieces = std::map<std::tuple<std::int32_t, std::size_t, std::size_t>, Piece>;

base::Rect PlaceOf(double x, std::int32_t base_line, double width) {
  return {base::AddSaturating(base::ToInt32(x), -kBeside), base::AddSaturating(base_line, -kAbove),
          base::AddSaturating(base::ToInt32(width), 2 * kBeside), kHeight};
}

// A button's label hides the words of the flow that it stands over.
void AddLink(const render::PlacedLink& link, const host::TextFace& face, Pieces& pieces) {
  host::FontMetrics& metrics = host::Desktop::Current().Metrics();
  const std::int32_t base_line = base::AddSaturating(link.top, metrics.TextHeight(face));
  double x = link.left;
  std::size_t field = link.field.field;
  for (const std::string_view word : base::Fields(link.text, ' ')) {
    const double width = metrics.StringWidth(face, word);
    pieces[{link.column, link.field.paragraph, field++}] = {std::string(word), PlaceOf(x, base_line, width)};
    x += width + metrics.StringWidth(face, " ");
  }
}

void AddWord(const render::PlacedWord& word, host::TextFace face, Pieces& pieces) {
  face.Bold = word.bold;
  face.Italic = word.italic;
  const double width = host::Desktop::Current().Metrics().StringWidth(face, word.text);
  pieces.try_emplace({word.column, word.field.paragraph, word.field.field},
                     Piece{word.text, PlaceOf(word.x, word.y, width)});
}

}  // namespace

void DisplayWindow::Mark(const Finder& finder) {
  host::TextFace face;
  face.TextFont = Font;
  face.TextSize = app_.fontsize;
  Pieces pieces;
  for (const render::PlacedLink& link : layout_.links)
    if (link.shown) AddLink(link, face, pieces);
  for (const render::PlacedWord& word : layout_.words) AddWord(word, face, pieces);
  std::string text;
  for (const auto& [at, piece] : pieces) text += piece.text + " ";
  const std::vector<std::pair<std::size_t, std::size_t>> found = finder(text);
  std::vector<base::Rect> marks;
  std::size_t begin = 0;
  auto range = found.begin();
  for (const auto& [at, piece] : pieces) {
    const std::size_t end = begin + piece.text.size();
    while (range != found.end() && range->second <= begin) ++range;
    if (range != found.end() && range->first < end) marks.push_back(piece.place);
    begin = end + 1;
  }
  Stext.SetMarks(marks);
}

}  // namespace quill::nav
