// What the names in a manuscript's links stand for: the number that a content file
// holds as a link's target. It knows the pages of the manuscript and of those
// beside it by their names; it knows nothing of words and offsets.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "authoring/manuscript/manuscript.h"
#include "authoring/press/neighbours.h"

namespace quill::authoring {

// The ids of a manuscript's pages by their names. A page's id is its index.
class PageNames {
 public:
  // Null stands for a manuscript that isn't there.
  explicit PageNames(const Manuscript* manuscript);

  bool HasManuscript() const { return has_manuscript_; }

  // None if no page bears the name.
  std::optional<std::int32_t> IdOf(const std::string& name) const;

 private:
  bool has_manuscript_;
  std::unordered_map<std::string, std::int32_t> ids_;
};

// For one manuscript, which must outlive it, as must the neighbours and the
// diagnostics.
class TargetResolver {
 public:
  TargetResolver(const Manuscript& manuscript, const Neighbours& neighbours, Diagnostics& diagnostics);

  // The number for the target of `run`, 0 for a target that has none. Where the
  // target can't be found or can't be linked to, adds a diagnostic and returns 0 or
  // what was found.
  std::int32_t NumberFor(const Run& run);

 private:
  std::int32_t PageNumber(const Run& run);
  std::int32_t Find(const PageNames& names, const Run& run, const std::string& where, std::int32_t first);
  void CheckFileName(const Run& run);
  void Diagnose(const Run& run, std::string sentence);

  Diagnostics& diagnostics_;
  const PageNames pages_;
  const PageNames entries_;
  const PageNames lives_;
  const bool opening_;    // the manuscript is that of the opening page
  const bool has_notes_;  // a link of it leads to the notes pad
};

}  // namespace quill::authoring
