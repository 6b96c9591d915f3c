#include "authoring/json.h"

#include <cstdio>

namespace quill::authoring {

std::string JsonString(std::string_view utf8) {
  std::string json = "\"";
  for (const char c : utf8) {
    if (c == '"' || c == '\\') {
      json += {'\\', c};
    } else if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      json += escape;
    } else {
      json += c;
    }
  }
  return json + "\"";
}

std::string Member(const char* name, const std::string& json) {
  return std::string("\"") + name + "\": " + json;
}

std::string Member(const char* name, std::int32_t number) { return Member(name, std::to_string(number)); }

}  // namespace quill::authoring
