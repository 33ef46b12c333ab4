// Attachment: the workspace that the toolkit's events go to, shared by all parts of the backend. It exists
// before the display is opened and after it is closed; Main is null whenever nothing is attached.
#pragma once

namespace quill {

struct frmMain;

struct Attachment {
    frmMain* Main = nullptr;
    bool Ending = false; // told to end: every question is answered as cancelled from now on

    bool Alive() const; // attached, and its tables stand
};

} // namespace quill
