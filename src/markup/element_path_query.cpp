// Paths through a tree: steps separated by ".", each of them one call of a
// `GetElement`. Lookups, the case of letters and the count from 1 are theirs.
//
//   Root.Document.Page(3)    the third Page of the first Document of the first Root
//   Link(2, Type)            the second Link that has such an attribute
//   Link(2, Type, Page)      the second whose attribute has that value
//   a\.b                     one step: "\.", "\(", "\)", "\\" stand for themselves
//
// A number that reads as none is 0 and finds nothing. What stands behind a ")" is
// not looked at; a "(" that nothing closes takes the rest of the step.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "markup/element.h"

namespace quill::markup {
namespace {

// Each stands in a path, while that is taken apart, as the character with its
// place here, from 1, for a code. Dots are protected before backslashes: "\\." is
// a backslash and a protected dot, not an escaped backslash and a separator.
constexpr std::array kEscapes = {'.', '(', ')', '\\'};

std::string Protected(std::string_view path) {
  std::string result(path);
  char code = 1;
  for (const char escaped : kEscapes) {
    const std::array escape = {'\\', escaped};
    result = base::ReplaceAll(result, {escape.data(), escape.size()}, {&code, 1});
    ++code;
  }
  return result;
}

std::string Restored(std::string_view part) {
  std::string result(part);
  for (char& c : result) {
    if (c >= 1 && c <= static_cast<char>(kEscapes.size())) c = kEscapes[static_cast<std::size_t>(c) - 1];
  }
  return result;
}

std::shared_ptr<zkXMLElement> Step(const zkXMLElement& from, std::string_view step) {
  const std::size_t opening = step.find('(');
  const std::string name = Restored(step.substr(0, opening));
  if (opening == std::string_view::npos) return from.GetElement(name);

  const std::string_view behind = step.substr(opening + 1);
  const std::vector<std::string_view> arguments = base::Fields(behind.substr(0, behind.find(')')), ',');
  if (arguments.empty()) return from.GetElement(name);

  const auto argument = [&](std::size_t i) { return Restored(base::Trim(arguments[i])); };
  const std::int32_t number = base::IntVal(argument(0));
  if (arguments.size() == 1) return from.GetElement(name, number);
  if (arguments.size() == 2) return from.GetElement(name, number, argument(1));
  return from.GetElement(name, number, argument(1), argument(2));
}

}  // namespace

std::shared_ptr<zkXMLElement> zkXMLElement::GetDeepElement(std::string_view path) const {
  const std::string steps = Protected(path);
  std::string_view rest = steps;
  std::shared_ptr<zkXMLElement> reached;
  for (;;) {
    const std::size_t dot = rest.find('.');
    reached = Step(reached ? *reached : *this, rest.substr(0, dot));
    if (!reached || dot == std::string_view::npos) return reached;
    rest.remove_prefix(dot + 1);
  }
}

}  // namespace quill::markup
