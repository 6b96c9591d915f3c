#include "host/file_type.h"

#include <gtest/gtest.h>

#include <functional>

namespace quill::host {
namespace {

TEST(FileType, AnyChangeTakesItOutOfTheTable) {
  const std::function<void(FileType&)> changes[] = {
      [](FileType& type) { type.SetExtensions(".txt"); },
      [](FileType& type) { type.SetMacType("text"); },
      [](FileType& type) { type.SetMacCreator("Qmrx"); },
      [](FileType& type) { type.SetName("Other"); },
  };
  for (const auto& change : changes) {
    FileType type;
    type.SetName("Notes");
    EXPECT_EQ(type.ToString(), "Notes");
    EXPECT_TRUE(IsFileTypeRegistered("Notes"));
    change(type);
    EXPECT_FALSE(type.IsRegistered());
    EXPECT_FALSE(IsFileTypeRegistered("Notes"));
    type.Register();
    EXPECT_TRUE(IsFileTypeRegistered(type.Name()));
  }
  EXPECT_FALSE(IsFileTypeRegistered("Notes")) << "gone with its object";
  EXPECT_FALSE(IsFileTypeRegistered("Other"));
}

}  // namespace
}  // namespace quill::host
