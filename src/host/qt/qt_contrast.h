// Whether the user's desktop as a whole is set to high contrast.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <functional>

namespace quill::host {

// Asks the desktop's portal (org.freedesktop.portal.Settings, the key "contrast" of
// org.freedesktop.appearance) without waiting, and listens for changes. A desktop
// without a portal says nothing.
class DesktopContrast final : public QObject {
  Q_OBJECT

  std::function<void(bool high)> changed_;

 public:
  // `changed` is called from the event loop with what the desktop says.
  explicit DesktopContrast(std::function<void(bool high)> changed);

 private slots:
  void Take(const QString& section, const QString& key, const QDBusVariant& value);
};

}  // namespace quill::host
