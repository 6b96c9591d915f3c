// A hash for telling whether bytes are the ones that were seen before. It guards
// against accidents, not against people: whoever wants two texts with one hash can
// make them.
#pragma once

#include <cstdint>
#include <string_view>

namespace quill::base {

// Returns the 64-bit FNV-1a hash of `bytes`, as G. Fowler, L. C. Noll, K.-P. Vo and D.
// Eastlake define it in the Internet draft draft-eastlake-fnv.
std::uint64_t Hash64(std::string_view bytes);

}  // namespace quill::base
