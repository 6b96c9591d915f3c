#include "host/qt/qt_application.h"

#include <exception>

namespace quill::host {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& exception) {
    report_(exception.what());
  } catch (...) {
    report_("unknown exception");
  }
  return false;
}

}  // namespace quill::host
