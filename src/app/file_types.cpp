#include "app/file_types.h"

namespace quill::app {
namespace {

void Make(host::FileType& type, const char* name, const char* extension, const char* mac_type,
          const char* creator) {
  type.SetName(name);
  type.SetExtensions(extension);
  type.SetMacType(mac_type);
  type.SetMacCreator(creator);
  type.ToString();
}

}  // namespace

FileTypes::FileTypes() {
  Make(pRTF, "RTF", ".rtf", "RTF", "MSWD");
  Make(pQMRFile, "QMRFile", ".txt", "text", "Qmrx");
}

}  // namespace quill::app
