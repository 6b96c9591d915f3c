// One open content file: finds it in the bundle, has it parsed, reads its head
// and keeps its tree.
//
//   Root
//     AppInfo
//       Application, Version, LastPageID       text, each may be missing
//     Document
//       Page [Columns]                         1, 2 or 3; one column if missing
//         PageID                               place among the pages, from 0
//         Title
//         Text                                 one for each column
//         Links                                may be missing
//           Link [Column]                      from 1; column 1 if missing
//             Offset, Length, LinkToPage
//             LinkType, Filename               type 0 and no file if missing
//
// Names match in any case of letters, and children in any order; only that among
// elements of one name counts. Text is ISO 8859-1 whatever the file may say, and
// nothing of it is trimmed.
//
// The calls come in this order: constructor, `Init`, and when that gave true,
// `GetDocument`.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "content/document.h"
#include "host/files.h"
#include "markup/container.h"

namespace quill::content {

class zkXMLFileClass {
 public:
  // Takes the file's name inside the bundle's folder `Data`; touches no file.
  explicit zkXMLFileClass(std::string file_name) { SetFilename(std::move(file_name)); }

  void SetFilename(std::string file_name) { TheFilename = std::move(file_name); }

  // Finds and parses the file and reads its head. False if that fails, after a
  // message box where the reader can do something about it. A file that isn't
  // there ends the program besides.
  bool Init();

  // Appends the file's pages to `document`, which the caller has made empty, and
  // keeps it. False, with nothing appended, if the file has no element
  // `Document`. Throws `NilObjectException` without a document or before `Init`.
  bool GetDocument(std::shared_ptr<Document> document);

  // The file's head; empty and 0 where it says nothing.
  const std::string& GetAppName() const { return AppName; }
  const std::string& GetAppVersion() const { return AppVersion; }
  std::int32_t GetLastPageID() const { return LastPageID; }

 private:
  bool Open();
  bool Locate();
  void ReadAppInfo();

  std::shared_ptr<host::FolderItem> TheFile;
  std::shared_ptr<markup::zkXMLContainer> TheContainer;
  std::shared_ptr<markup::zkXMLElement> Root;
  std::string TheFilename;
  std::string AppName;
  std::string AppVersion;
  std::shared_ptr<markup::zkXMLElement> TheDocument;
  std::int32_t LastPageID = 0;
  std::shared_ptr<markup::zkXMLElement> AppInfo;
  std::shared_ptr<Document> myDocument;
};

}  // namespace quill::content
