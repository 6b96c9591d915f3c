// How the user has set the windows: the zoom, the contrast, and where they stand.
// Kept from run to run in a file of the desktop's state folder, apart from the
// user's own words, and lost without harm.
#pragma once

#include <QRect>
#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

class QSettings;

namespace quill::host {

class QtView {
 public:
  // Percent. Every step between the ends is a multiple of the step.
  static constexpr int kSmallestZoom = 50;
  static constexpr int kLargestZoom = 300;
  static constexpr int kZoomStep = 25;
  static constexpr int kActualSize = 100;

  // Told when zoom or contrast have changed.
  class Listener {
   public:
    virtual ~Listener() = default;
    virtual void ViewChanged() = 0;
  };

  // With an empty `file` nothing is kept.
  explicit QtView(const std::filesystem::path& file);
  ~QtView();

  int Zoom() const { return zoom_; }
  bool HighContrast() const { return high_contrast_.value_or(desktop_contrast_); }

  // A zoom outside the ends becomes the nearest.
  void SetZoom(int percent);
  void SetHighContrast(bool on);

  // What the desktop as a whole has been set to; counts until the user says
  // otherwise of this program.
  void SetDesktopContrast(bool high);

  // Place and size of the window of that title when it was last seen.
  std::optional<QRect> PlaceOf(const QString& title) const;
  void KeepPlace(const QString& title, const QRect& place);

  // A listener stays until it is removed.
  void AddListener(Listener& listener) { listeners_.push_back(&listener); }
  void RemoveListener(Listener& listener) { std::erase(listeners_, &listener); }

 private:
  void Tell();

  std::unique_ptr<QSettings> settings_;  // null where nothing is kept
  int zoom_ = kActualSize;
  std::optional<bool> high_contrast_;  // as the user has said
  bool desktop_contrast_ = false;
  std::vector<Listener*> listeners_;
};

// The next step above or below `percent`, which need not be a step itself, inside
// the ends.
int ZoomStepFrom(int percent, bool larger);

// The file for that state in the user's state folder; empty if there is no such folder.
std::filesystem::path ViewFile();

}  // namespace quill::host
