#include "host/qt/qt_view.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSettings>
#include <QStyleHints>
#include <algorithm>
#include <utility>

#include "host/qt/qt_places.h"

namespace quill::host {
namespace {

constexpr const char* kZoomKey = "zoom";
constexpr const char* kContrastKey = "high_contrast";

QString PlaceKey(const QString& title) { return QLatin1String("places/") + title; }

}  // namespace

// Whatever the file says, what is taken from it makes sense.
QtView::QtView(const std::filesystem::path& file) {
  if (file.empty()) return;
  const QString path = QString::fromStdString(file.string());
  QDir().mkpath(QFileInfo(path).path());
  settings_ = std::make_unique<QSettings>(path, QSettings::IniFormat);
  bool is_number = false;
  const int zoom = settings_->value(QLatin1String(kZoomKey)).toInt(&is_number);
  if (is_number) zoom_ = std::clamp(zoom, kSmallestZoom, kLargestZoom);
  const QVariant contrast = settings_->value(QLatin1String(kContrastKey));
  if (contrast.isValid()) high_contrast_ = contrast.toBool();
}

QtView::~QtView() = default;

void QtView::SetZoom(int percent) {
  zoom_ = std::clamp(percent, kSmallestZoom, kLargestZoom);
  if (settings_) settings_->setValue(QLatin1String(kZoomKey), zoom_);
  Tell();
}

void QtView::SetHighContrast(bool on) {
  high_contrast_ = on;
  if (settings_) settings_->setValue(QLatin1String(kContrastKey), on);
  Tell();
}

void QtView::SetDesktopContrast(bool high) {
  desktop_contrast_ = high;
  Tell();
}

void QtView::Tell() {
  if (settings_) settings_->sync();
  for (Listener* listener : std::vector(listeners_)) listener->ViewChanged();
}

std::optional<QRect> QtView::PlaceOf(const QString& title) const {
  const QRect place = settings_ ? settings_->value(PlaceKey(title)).toRect() : QRect();
  return place.isValid() ? std::optional(place) : std::nullopt;
}

void QtView::KeepPlace(const QString& title, const QRect& place) {
  if (settings_) settings_->setValue(PlaceKey(title), place);
}

int ZoomStepFrom(int percent, bool larger) {
  const int step = QtView::kZoomStep;
  const int next = larger ? (percent / step + 1) * step : (percent + step - 1) / step * step - step;
  return std::clamp(next, QtView::kSmallestZoom, QtView::kLargestZoom);
}

std::filesystem::path ViewFile() {
  const std::filesystem::path folder = StateFolder();
  return folder.empty() ? folder : folder / "view.ini";
}

}  // namespace quill::host
