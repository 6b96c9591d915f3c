#include "host/qt/qt_contrast.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

namespace quill::host {
namespace {

constexpr QLatin1String kService("org.freedesktop.portal.Desktop");
constexpr QLatin1String kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1String kSection("org.freedesktop.appearance");
constexpr QLatin1String kKey("contrast");
constexpr uint kHigher = 1;

// The portal's older call wraps its answer twice.
bool IsHigh(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value.toUInt() == kHigher;
}

}  // namespace

DesktopContrast::DesktopContrast(std::function<void(bool high)> changed) : changed_(std::move(changed)) {
  if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return;
  QDBusConnection bus = QDBusConnection::sessionBus();
  // The toolkit's macro keeps blanks, with which the bus finds no slot.
  const QByteArray slot = QByteArray(SLOT(Take(QString, QString, QDBusVariant))).replace(" ", "");
  bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this, slot.constData());
  QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
  call << QString(kSection) << QString(kKey);
  auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
    const QDBusPendingReply<QDBusVariant> reply = *done;
    if (!reply.isError() && IsHigh(reply.value().variant())) changed_(true);
    done->deleteLater();
  });
}

void DesktopContrast::Take(const QString& section, const QString& key, const QDBusVariant& value) {
  if (section == kSection && key == kKey) changed_(IsHigh(value.variant()));
}

}  // namespace quill::host
