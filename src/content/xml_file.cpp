#include "content/xml_file.h"

#include <exception>

#include "content/loader.h"
#include "host/desktop.h"
#include "host/exceptions.h"
#include "host/numbers.h"
#include "markup/exceptions.h"

namespace quill::content {
namespace {

// The bundle's folder `Contents`, null if a folder on the way isn't there.
std::shared_ptr<host::FolderItem> ContentsFolder() {
  std::shared_ptr<host::FolderItem> folder = host::GetFolderItem("");
  for (const char* const name : {"Quillmere.app", "Contents"}) {
    if (!folder || !folder->Exists()) return nullptr;
    folder = folder->Child(name);
  }
  return folder && folder->Exists() ? folder : nullptr;
}

// Sets `value` if `AppInfo` has such a child. One with nothing inside is a fault
// of the file: throws `OutOfBoundsException`.
void ReadHead(const markup::zkXMLElement& app_info, const char* name, std::string& value) {
  if (const auto element = app_info.GetElement(name)) value = element->GetContent(1)->GetData();
}

}  // namespace

bool zkXMLFileClass::Init() {
  try {
    return Open();
  } catch (const markup::zkXMLParsingException&) {
    host::MsgBox("Unable to parse " + TheFilename);
  } catch (const std::exception&) {
    // Nothing that a reader could mend; whoever asked says that it failed.
  }
  return false;
}

bool zkXMLFileClass::GetDocument(std::shared_ptr<Document> document) {
  if (!document || !Root) throw host::NilObjectException();
  myDocument = std::move(document);
  TheDocument = Root->GetElement("Document");
  if (!TheDocument) return false;
  LoadPages(*TheDocument, *myDocument);
  return true;
}

bool zkXMLFileClass::Open() {
  // The tree of an earlier file must never be saved to another.
  TheContainer = nullptr;
  Root = AppInfo = TheDocument = nullptr;
  if (!Locate()) return false;
  TheContainer = std::make_shared<markup::zkXMLContainer>(TheFile);
  Root = TheContainer->GetElement("Root");
  if (!Root) {
    host::MsgBox("No Root found in " + TheFilename);
    return false;
  }
  AppInfo = Root->GetElement("AppInfo");
  if (!AppInfo) {
    host::MsgBox("No AppInfo found in " + TheFilename);
    return false;
  }
  ReadAppInfo();
  return true;
}

// Sets `TheFile`.
bool zkXMLFileClass::Locate() {
  const std::shared_ptr<host::FolderItem> contents = ContentsFolder();
  if (!contents) return false;
  const std::shared_ptr<host::FolderItem> data = contents->TrueChild("Data");
  TheFile = data ? data->TrueChild(TheFilename) : nullptr;
  if (TheFile) return true;
  host::MsgBox("Unable to locate " + TheFilename + ".  Program Aborting.");
  host::Quit(0);
  return false;
}

void zkXMLFileClass::ReadAppInfo() {
  ReadHead(*AppInfo, "Application", AppName);
  ReadHead(*AppInfo, "Version", AppVersion);
  std::string last_page_id = host::Str(LastPageID);
  ReadHead(*AppInfo, "LastPageID", last_page_id);
  LastPageID = host::IntVal(last_page_id);
}

}  // namespace quill::content
