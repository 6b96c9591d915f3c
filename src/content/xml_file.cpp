#include "content/xml_file.h"

#include <exception>

#include "base/exceptions.h"
#include "base/numbers.h"
#include "base/text_converter.h"
#include "content/bundle.h"
#include "content/loader.h"
#include "host/desktop.h"
#include "markup/exceptions.h"

namespace quill::content {
namespace {

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
    host::MsgBox("Unable to parse " + ShownName());
  } catch (const std::exception&) {
    // Nothing that a reader could mend; whoever asked says that it failed.
  }
  return false;
}

bool zkXMLFileClass::GetDocument(std::shared_ptr<Document> document) {
  if (!document || !Root) throw base::NilObjectException();
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
    host::MsgBox("No Root found in " + ShownName());
    return false;
  }
  AppInfo = Root->GetElement("AppInfo");
  if (!AppInfo) {
    host::MsgBox("No AppInfo found in " + ShownName());
    return false;
  }
  ReadAppInfo();
  return true;
}

std::string zkXMLFileClass::ShownName() const { return base::Utf8ToMacRoman(TheFilename); }

// Sets `TheFile`.
bool zkXMLFileClass::Locate() {
  if (!BundleContents()) return false;
  TheFile = ContentFile(TheFilename);
  if (TheFile) return true;
  host::MsgBox("Unable to locate " + ShownName() + ".  Program Aborting.");
  host::Quit(0);
  return false;
}

void zkXMLFileClass::ReadAppInfo() {
  ReadHead(*AppInfo, "Application", AppName);
  ReadHead(*AppInfo, "Version", AppVersion);
  std::string last_page_id = base::Str(LastPageID);
  ReadHead(*AppInfo, "LastPageID", last_page_id);
  LastPageID = base::IntVal(last_page_id);
}

}  // namespace quill::content
