// The application object: what every window needs to know. There is one, made
// at start-up and kept to the end; whoever needs it is handed a reference.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "app/mode_table.h"
#include "app/pictures.h"
#include "content/bundle.h"
#include "content/document.h"
#include "host/application.h"

namespace quill::app {

class App final : public host::Application {
 public:
  // Length of the file name tables. What lies behind the last mode stays empty.
  static constexpr std::size_t kSlots = 11;

  // What `Init` sets `fontsize` and `fontheightoffset` to.
  static constexpr std::int32_t kFontSize = 12;
  static constexpr std::int32_t kFontHeightOffset = 15;

  // `modes`, at most `kSlots` rows, must outlive the application.
  explicit App(Modes modes = kModes) : modes_(modes) {}

  void Event_Open() override { Init(); }

  // Returns the column (from 1) that field 0 to 5 of a page's text stands in; 0
  // for any other field. Fields count through the layouts: 0 is the one column, 1
  // and 2 the two, 3 to 5 the three. No program of ours calls this.
  static std::int32_t GetColumnFromField(std::int32_t field);

  // Returns the field of column `column` (from 1) in a page of `columns` columns; 0
  // for a column outside the layout and for a layout that doesn't exist. No
  // program of ours calls this.
  static std::int32_t GetFieldFromColumn(std::int32_t column, std::int32_t columns);

  // A place for a breakpoint: the glossary passes it before it draws.
  void debugmethod() {}

  // Fills the file name tables and the settings of text; clears `TestMode`.
  void Init();

  // Returns the version text from the application's bundle; empty if it holds none.
  static std::string LongVersion() { return content::BundleVersion(); }

  // Ours, not the domain's:

  // The table of modes, and the row of the current one.
  Modes AllModes() const { return modes_; }
  const Mode& CurrentMode() const { return modes_[static_cast<std::size_t>(mode)]; }

  // Announces a step in a message box where `TestMode` is set.
  void Trace(const std::string& step) const;

  // The domain's:

  // The documents of the current mode: its pages and its glossary entries. Null
  // until the first load; replaced, never changed, by every later one.
  std::shared_ptr<content::Document> doc;
  std::shared_ptr<content::Document> glossary;

  bool TestMode = false;

  // Content and glossary file of each mode.
  std::array<std::string, kSlots> QMRFileName;
  std::array<std::string, kSlots> GlossaryFileName;

  std::int32_t mode = 0;              // an index of the table of modes
  std::int32_t fontsize = 0;          // points, of page text, glossary and links
  std::int32_t fontheightoffset = 0;  // pixels from a link button's top to its base line

  // Ours, not the domain's:
  Pictures pictures;

 private:
  Modes modes_;
};

}  // namespace quill::app
