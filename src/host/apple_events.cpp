#include "host/apple_events.h"

#include <algorithm>

#include "host/desktop.h"

namespace quill::host {

bool AppleEvent::Send() const {
  const auto direct = lists_.find("----");
  if (event_class_ != "aevt" || event_id_ != "odoc" || direct == lists_.end()) return false;
  const auto& items = direct->second.Items();
  const bool all_there =
      std::all_of(items.begin(), items.end(), [](const auto& item) { return item && item->Exists(); });
  if (items.empty() || !all_there) return false;
  return std::all_of(items.begin(), items.end(), [this](const auto& item) {
    return Desktop::Current().OpenDocument(target_, item->Path());
  });
}

std::unique_ptr<AppleEvent> NewAppleEvent(const std::string& event_class, const std::string& event_id,
                                          const std::string& target) {
  return std::make_unique<AppleEvent>(event_class, event_id, target);
}

}  // namespace quill::host
