#include "render/entry_layout.h"

#include "base/numbers.h"
#include "base/text.h"
#include "render/page_geometry.h"

namespace quill::render {
namespace {

// The pen that walks an entry.
class EntryFlow {
 public:
  EntryFlow(const EntryMargins& margins, const host::TextFace& face, host::FontMetrics& metrics)
      : margins_(margins),
        face_(face),
        metrics_(metrics),
        line_height_(metrics.TextHeight(face)),
        y_(margins.top) {}

  void Paragraph(std::string_view paragraph) {
    x_ = margins_.left;
    y_ = base::AddSaturating(y_, line_height_);
    for (const std::string_view field : base::Fields(paragraph, ' ')) {
      if (!field.empty()) Word(field);
      x_ = base::AddSaturating(x_, width_);
    }
    y_ = base::AddSaturating(y_, line_height_);
  }

  std::vector<EntryWord> words;

 private:
  void Word(std::string_view word) {
    width_ = base::ToInt32(metrics_.StringWidth(face_, std::string(word) + " "));
    if (margins_.right < base::AddSaturating(x_, width_)) {
      x_ = margins_.left;
      y_ = base::ToInt32(y_ + kLineStep * line_height_);
    }
    words.push_back({std::string(word), x_, y_});
  }

  const EntryMargins& margins_;
  const host::TextFace& face_;
  host::FontMetrics& metrics_;
  const std::int32_t line_height_;
  std::int32_t x_ = 0;
  std::int32_t y_;
  std::int32_t width_ = 0;  // of the last word measured, with its blank
};

}  // namespace

std::vector<EntryWord> LayOutEntry(std::string_view text, const EntryMargins& margins,
                                   const host::TextFace& face, host::FontMetrics& metrics) {
  EntryFlow flow(margins, face, metrics);
  for (const std::string_view paragraph : base::Fields(text, '\n')) flow.Paragraph(paragraph);
  return std::move(flow.words);
}

}  // namespace quill::render
