// Open-documents requests to other applications: an event with a class, an id
// and a target, whose direct object is a list of files.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/files.h"

namespace quill::host {

class AppleEventDescList {
 public:
  // A null item stands for no document, which keeps the event from being sent.
  void AppendFolderItem(std::shared_ptr<FolderItem> item) { items_.push_back(std::move(item)); }

  const std::vector<std::shared_ptr<FolderItem>>& Items() const { return items_; }

 private:
  std::vector<std::shared_ptr<FolderItem>> items_;
};

class AppleEvent {
 public:
  AppleEvent(std::string event_class, std::string event_id, std::string target)
      : event_class_(std::move(event_class)), event_id_(std::move(event_id)), target_(std::move(target)) {}

  // The parameter under that keyword; "----" is the direct object.
  void SetDescListParam(const std::string& keyword, AppleEventDescList list) {
    lists_[keyword] = std::move(list);
  }

  // Hands the documents of the direct object to the target. False if the event
  // is no open-documents event, if there is no document to hand over, if one
  // doesn't exist, or if no application could be started.
  bool Send() const;

 private:
  std::string event_class_;
  std::string event_id_;
  std::string target_;
  std::map<std::string, AppleEventDescList> lists_;
};

// An event of class and id, for the application with that creator code.
std::unique_ptr<AppleEvent> NewAppleEvent(const std::string& event_class, const std::string& event_id,
                                          const std::string& target);

}  // namespace quill::host
