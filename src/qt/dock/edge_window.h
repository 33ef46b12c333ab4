// What stands behind the windows that lie at the edge of the screen beside the workspace: the bar and the
// strip. They lie over everything, to the pixel, also thin and beyond the screen; the mouse is for them, the
// keyboard never is.
#pragma once

class QWidget;

namespace quill::qt {

// To be called once, before the widget is first shown.
void MakeEdgeWindow(QWidget& window);

// Says again that it is on top, as when something else has come above it.
void KeepOnTop(QWidget& window);

} // namespace quill::qt
