// The notes as the pad has them, without the pad:
//   quill_faulted_notes FOLDER        opens the notes in the folder
//   quill_faulted_notes FOLDER TEXT   and has TEXT typed, kept, and saved
// It prints what the pad would show and say; "unkept: TEXT" is the text that only the screen has any more.
#include <iostream>
#include <string>

#include "host/kept_notes.h"
#include "host/qt/qt_files.h"

int main(int argc, char** argv) {
  using namespace quill;
  const auto folder = host::DiskItem(argv[1]);
  host::KeptNotes notes(folder, "saved", {folder->Child("state"), folder->Child("second_state")});
  const auto opened = notes.Open();
  std::cout << "shown: " << opened.text << "\nwords: " << opened.words << std::endl;
  if (argc < 3) return 0;
  const std::string text = argv[2];
  notes.Keep(text);
  std::cout << "kept" << std::endl;
  const auto saved = notes.Save(text);
  std::cout << "said: " << saved.words << "\n";
  if (saved.lost) std::cout << "unkept: " << text << "\n";
}
