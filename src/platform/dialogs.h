// Dialogs: forms over plain values. The logic side of a dialog is a class under its own name that holds the
// value and the rules; the form only shows it, and calls its OK and Cancel. Every call runs a loop of its
// own, like every question; the caller tests again that the program is not exiting and its rows live. When
// the program is told to end, all of them return as cancelled.
#pragma once

#include "platform/geometry.h"

#include <optional>
#include <string>

namespace quill {

class frmConProperties;
class frmEditLink;
class frmInternetShortcut;
class frmSettings;

struct FileQuestion {
    std::string Title;
    std::string FilterCaption = "All Files (*.*)";
    std::string Folder; // where it opens; empty: where the toolkit sees fit
};

// A text as a value, edited in a box of several lines; lines end in LF.
struct TextQuestion {
    std::string Title;
    std::string Caption; // the prompt
    std::string Text;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    // True: accepted.
    virtual bool Show(frmConProperties& dialog) = 0;
    virtual bool Show(frmSettings& dialog) = 0;
    virtual bool Show(frmEditLink& dialog) = 0;
    virtual bool Show(frmInternetShortcut& dialog) = 0;
    virtual bool Show(TextQuestion& question) = 0; // untouched when it was cancelled
    virtual std::optional<std::string> OpenFile(const FileQuestion& question) = 0; // nothing: cancelled
    virtual std::optional<std::string> OpenFolder(const FileQuestion& question) = 0;
    virtual std::optional<Color> ChooseColor(Color now, const std::string& title) = 0;
};

} // namespace quill
