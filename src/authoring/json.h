// JSON as the tool writes it for programs: parts put together as text, a member or
// an item at a time. It reads none.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quill::authoring {

// `utf8` as a string of JSON.
std::string JsonString(std::string_view utf8);

// "name": value. `json` is a value already.
std::string Member(const char* name, const std::string& json);
std::string Member(const char* name, std::int32_t number);

}  // namespace quill::authoring
