// What libFuzzer calls: the attack that the variable QUILL_ATTACK names.
#include <cstdint>
#include <cstdlib>

#include "fuzz/attack.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string_view name = std::getenv("QUILL_ATTACK");
  for (const quill::tests::Attack& attack : quill::tests::kAttacks) {
    if (attack.name == name) attack.run({reinterpret_cast<const char*>(data), size});
  }
  return 0;
}
