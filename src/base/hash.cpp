#include "base/hash.h"

namespace quill::base {
namespace {

constexpr std::uint64_t kOffsetBasis = 0xCBF29CE484222325;
constexpr std::uint64_t kPrime = 0x100000001B3;

}  // namespace

std::uint64_t Hash64(std::string_view bytes) {
  std::uint64_t hash = kOffsetBasis;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
  return hash;
}

}  // namespace quill::base
