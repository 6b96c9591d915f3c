// File types that a program makes known to its host.
#pragma once

#include <string>

namespace quill::host {

// The host's table of known types; each name stands once. A second registration
// of a name replaces the first.
void RuntimeRegisterFileType(const std::string& name, const std::string& creator, const std::string& type,
                             const std::string& extension);
void RuntimeDeregisterFileType(const std::string& name, const std::string& creator, const std::string& type,
                               const std::string& extension);
bool IsFileTypeRegistered(const std::string& name);

// One type of file. Changing a property takes it out of the host's table until
// it is registered again; so does its end.
class FileType {
 public:
  FileType() = default;
  ~FileType() { Deregister(); }
  FileType(const FileType&) = delete;
  FileType& operator=(const FileType&) = delete;

  const std::string& Name() const { return mName; }
  const std::string& MacCreator() const { return mMacCreator; }
  const std::string& MacType() const { return mMacType; }
  const std::string& Extensions() const { return mExtension; }
  bool IsRegistered() const { return mRegistered; }

  void SetName(const std::string& name) { Set(mName, name); }
  void SetMacCreator(const std::string& creator) { Set(mMacCreator, creator); }
  void SetMacType(const std::string& type) { Set(mMacType, type); }
  void SetExtensions(const std::string& extension) { Set(mExtension, extension); }

  void Register();
  void Deregister();

  // Registers the type and gives its name.
  std::string ToString();

 private:
  void Set(std::string& property, const std::string& value);

  std::string mName;
  std::string mMacCreator;
  std::string mMacType;
  std::string mExtension;
  bool mRegistered = false;
};

}  // namespace quill::host
