// What a desktop must know of the program that runs on it: names that are the
// program's own, handed in once when the desktop is made.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace quill::host {

struct Product {
  std::string name;  // in titles of message boxes

  // Programs on the path, by the creator code of the application that they stand
  // for. Every other code stands for the desktop's own opener of documents.
  std::map<std::string, std::string> companions;

  // The pictures stored with the program: their names, by resource id.
  std::map<std::int32_t, std::string> pictures;
};

}  // namespace quill::host
