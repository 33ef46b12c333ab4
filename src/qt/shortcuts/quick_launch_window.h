// What stands behind the window of frmQuickLaunch. It is of the workspace's own native kind, since that one
// alone lies above a workspace that is on top, stays where it is put and takes the keyboard by a request on
// every desktop. Its keys are led to the logic, and until it has the keyboard those that are still typed into
// the workspace.
#pragma once

class QWidget;

namespace quill {

struct Attachment;

// To be called once, before the widget is first shown.
void MakeQuickLaunchWindow(QWidget& window, const Attachment& attached);

} // namespace quill
