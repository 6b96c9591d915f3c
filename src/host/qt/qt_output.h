// A file in the making: it is written beside the old one and put in its place when
// all of it is on the disk. Whatever comes between, one of the two is there whole.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/files.h"

namespace quill::host {

class DiskOutput final : public TextOutputStream {
 public:
  enum class Rights {
    kOwnerAlone,  // mode 600; folders that are missing are made with 700
    kAsBefore,    // those of the file that it replaces, or what is usual
  };

  // Null if nothing can be made there: in a folder that can't be written to, over a
  // file that can't be, over anything that isn't a regular file. A link is followed.
  static std::unique_ptr<DiskOutput> Make(const std::filesystem::path& path, Rights rights);

  ~DiskOutput() override;
  DiskOutput(const DiskOutput&) = delete;
  DiskOutput& operator=(const DiskOutput&) = delete;

  void Write(const std::string& text) override;
  bool Close() override;

 private:
  DiskOutput(std::filesystem::path target, std::filesystem::path draft, int file)
      : target_(std::move(target)), draft_(std::move(draft)), file_(file) {}

  bool Finish();

  std::filesystem::path target_;
  std::filesystem::path draft_;  // what is being written
  int file_;                     // -1 when closed
  bool failed_ = false;
};

// Removes the drafts that processes left behind which have come to a sudden end: those
// of the file at `path`, and of files beside it whose names begin with its name, as
// that of a text kept with the date does.
void SweepDrafts(const std::filesystem::path& path);

}  // namespace quill::host
