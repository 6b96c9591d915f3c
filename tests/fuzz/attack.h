// The attacks: each runs a part of the program on hostile bytes and requires what must hold whatever they
// are. libFuzzer drives them for as long as one likes (fuzzer.cpp, script/attack), and the tests for less
// than a second each, on changes of their seeds (attacks_test.cpp). What an attack has found becomes a row in
// the tests of the unit at fault.
//
// An attack is a function of its bytes alone, so that an input fails each time or never. Where it needs
// several inputs it cuts them off the head of its bytes.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quill::tests {

using AttackFunction = void(std::string_view bytes);
AttackFunction AttackCheck, AttackContent, AttackEdit, AttackEndTags, AttackManuscript, AttackNotes,
    AttackParse, AttackReader, AttackReferences;

struct Attack {
  std::string_view name;  // the folder of its seeds, too
  AttackFunction* run;
};

inline constexpr Attack kAttacks[] = {
    {"check", AttackCheck},      {"content", AttackContent},       {"edit", AttackEdit},
    {"end_tags", AttackEndTags}, {"manuscript", AttackManuscript}, {"notes", AttackNotes},
    {"parse", AttackParse},      {"reader", AttackReader},         {"references", AttackReferences}};

// What an attack has broken, with what is wrong.
inline void Require(bool holds, const std::string& what) {
  if (!holds) throw std::logic_error(what);
}

inline void RequireSame(const std::string& is, const std::string& must_be) {
  Require(is == must_be, "is\n" + is + "\nand must be\n" + must_be);
}

// Cuts off what stands before the first NUL, and that too.
inline std::string TakeText(std::string_view& bytes) {
  std::string text(bytes.substr(0, bytes.find('\0')));
  bytes.remove_prefix(std::min(bytes.size(), text.size() + 1));
  return text;
}

// Cuts off a byte and returns a number from 0 to `count` - 1, at most 255; 0 if there is none.
inline std::size_t TakeNumber(std::string_view& bytes, std::size_t count) {
  if (bytes.empty()) return 0;
  const auto byte = static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(1);
  return byte % count;
}

constexpr const char* kAttackedFile = "Quillmere.app/Contents/Data/a.xml";

}  // namespace quill::tests
