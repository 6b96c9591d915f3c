// What windows and canvases say of themselves to a screen reader.
#pragma once

namespace quill::host {

// Makes the controls known to the toolkit's accessibility; once in a run.
void AnnounceControls();

}  // namespace quill::host
