#include "host/file_type.h"

#include <set>

namespace quill::host {
namespace {

std::set<std::string>& RegisteredNames() {
  static std::set<std::string> names;
  return names;
}

}  // namespace

void RuntimeRegisterFileType(const std::string& name, const std::string& /*creator*/,
                             const std::string& /*type*/, const std::string& /*extension*/) {
  RegisteredNames().insert(name);
}

void RuntimeDeregisterFileType(const std::string& name, const std::string& /*creator*/,
                               const std::string& /*type*/, const std::string& /*extension*/) {
  RegisteredNames().erase(name);
}

bool IsFileTypeRegistered(const std::string& name) { return RegisteredNames().contains(name); }

void FileType::Register() {
  if (mRegistered) return;
  RuntimeRegisterFileType(mName, mMacCreator, mMacType, mExtension);
  mRegistered = true;
}

void FileType::Deregister() {
  if (!mRegistered) return;
  RuntimeDeregisterFileType(mName, mMacCreator, mMacType, mExtension);
  mRegistered = false;
}

std::string FileType::ToString() {
  Register();
  return mName;
}

void FileType::Set(std::string& property, const std::string& value) {
  Deregister();
  property = value;
}

}  // namespace quill::host
