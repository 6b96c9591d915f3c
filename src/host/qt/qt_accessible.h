// What the controls say of themselves to a screen reader: a canvas with a label
// is a button that can be pressed, a line of text is text.
#pragma once

namespace quill::host {

// Makes the controls known to the toolkit's accessibility; once in a run.
void AnnounceControls();

}  // namespace quill::host
