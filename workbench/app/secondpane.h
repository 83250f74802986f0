#pragma once

class wxSplitterWindow;

namespace workbench {
/// Keeps the second pane of a splitter at this size, in pixels, or at what a person's hand makes of it, as far as the
/// splitter has room. The place is wished for anew with each size: the window gets several before it is on the screen,
/// some of them tiny, and a sash must not stay where one of those pressed it.
void keepSecondPane(wxSplitterWindow& splitter, int size);
} // namespace workbench
