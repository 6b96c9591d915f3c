#include "app/app.h"

#include "host/desktop.h"

namespace quill::app {
namespace {

struct FieldPlace {
  std::int32_t column;
  std::int32_t columns;
};

// Where each field of a page's text stands.
constexpr std::array<FieldPlace, 6> kFields = {{{1, 1}, {1, 2}, {2, 2}, {1, 3}, {2, 3}, {3, 3}}};

}  // namespace

void App::Init() {
  TestMode = false;
  Trace("App open");
  for (std::size_t i = 0; i < modes_.size(); ++i) {
    QMRFileName.at(i) = modes_[i].content_file;
    GlossaryFileName.at(i) = modes_[i].glossary_file;
  }
  fontsize = kFontSize;
  fontheightoffset = kFontHeightOffset;
}

std::int32_t App::GetColumnFromField(std::int32_t field) {
  const bool known = field >= 0 && field < static_cast<std::int32_t>(kFields.size());
  return known ? kFields[static_cast<std::size_t>(field)].column : 0;
}

std::int32_t App::GetFieldFromColumn(std::int32_t column, std::int32_t columns) {
  for (std::size_t field = 0; field < kFields.size(); ++field) {
    if (kFields[field].column == column && kFields[field].columns == columns)
      return static_cast<std::int32_t>(field);
  }
  return 0;
}

void App::Trace(const std::string& step) const {
  if (TestMode) host::MsgBox(step);
}

}  // namespace quill::app
