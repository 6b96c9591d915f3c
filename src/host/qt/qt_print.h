// A window's text on paper, black on white.
#pragma once

class QPagedPaintDevice;
class QWidget;

namespace quill::host {

struct QtReading;

// Asks where to print and prints; nothing if the user changes their mind. `owner`
// is the window that asks.
void PrintWithDialog(QWidget& owner, const QtReading& reading);

// Prints the text on one sheet of `device`: title above, the words of links
// underlined, where it is found below. A long text is set smaller.
void PrintOn(QPagedPaintDevice& device, const QtReading& reading);

}  // namespace quill::host
