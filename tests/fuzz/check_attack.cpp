// The check of any bytes as content: it ends, and what it tells programs is JSON.
#include <QJsonDocument>
#include <sstream>

#include "authoring/check/checker.h"
#include "fuzz/attack.h"
#include "host/memory/memory_desktop.h"

namespace quill::tests {

void AttackCheck(std::string_view bytes) {
  host::MemoryDesktop desktop;
  const auto modes = app::Modes(app::kModes).first(2);
  for (const app::Mode& mode : modes) {
    for (const std::string_view name : {mode.content_file, mode.glossary_file})
      desktop.files.AddFile(std::string("Quillmere.app/Contents/Data/").append(name), std::string(bytes));
  }
  std::ostringstream told;
  const auto result = authoring::Check({.modes = modes}, told);
  if (!result.report) return;
  authoring::WriteText(*result.report, told);
  std::ostringstream json;
  authoring::WriteJson(*result.report, json);
  Require(!QJsonDocument::fromJson(QByteArray::fromStdString(json.str())).isNull(), "no JSON: " + json.str());
}

}  // namespace quill::tests
