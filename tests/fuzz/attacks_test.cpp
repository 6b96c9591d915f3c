#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>

#include "fuzz/attack.h"
#include "support/tree_dump.h"

namespace quill::tests {
namespace {

// A seed with parts of others in place of its own, and bytes of any kind.
std::string Mutated(const std::vector<std::string>& seeds, std::mt19937& random) {
  const auto below = [&](std::size_t count) { return random() % count; };
  std::string bytes = seeds[below(seeds.size())];
  for (std::size_t changes = below(8); changes > 0; --changes) {
    const std::string& other = seeds[below(seeds.size())];
    const std::string part = other.substr(below(other.size() + 1), below(40));
    const std::string any(below(3), static_cast<char>(below(256)));
    bytes.replace(below(bytes.size() + 1), below(20), below(2) == 0 ? any : part);
  }
  return bytes;
}

std::vector<std::string> SeedsOf(std::string_view attack) {
  std::vector<std::string> seeds;
  for (const auto& file : std::filesystem::directory_iterator(std::string(QUILL_SEEDS).append(attack)))
    seeds.push_back((std::ostringstream() << std::ifstream(file.path()).rdbuf()).str());
  std::sort(seeds.begin(), seeds.end());
  return seeds;
}

void RunOnce(const Attack& attack, const std::string& input) try {
  attack.run(input);
} catch (const std::exception& failure) {
  FAIL() << attack.name << " of " << Quoted(input) << ": " << failure.what();
}

// As many as take about half a second each. They are the same each time, so that a change that has nothing to
// do with them doesn't fail; another number gives others, and script/attack goes on for as long as you like.
// The number is told beforehand, so that it is there after a crash too.
constexpr std::size_t kInputs = 800;

TEST(Attacks, FindNothing) {
  const char* const given = std::getenv("QUILL_FUZZ_SEED");
  const auto number = given != nullptr ? static_cast<unsigned>(std::stoul(given)) : 1U;
  for (const Attack& attack : kAttacks) {
    std::cout << attack.name << ": QUILL_FUZZ_SEED=" << number << std::endl;
    std::mt19937 random(number);
    const std::vector<std::string> seeds = SeedsOf(attack.name);
    for (std::size_t i = 0; i < kInputs && !HasFailure(); ++i)
      RunOnce(attack, i < seeds.size() ? seeds[i] : Mutated(seeds, random));
  }
}

}  // namespace
}  // namespace quill::tests
