// QtDialogs: the forms over the dialogs of the logic, and the toolkit's own choosers of files and colours.
// The desktop's choosers are not used: they know nothing of a workspace that lies above all windows.
#pragma once

#include "platform/dialogs.h"
#include "qt/core/asker.h"

namespace quill {

class QtDialogs : public Dialogs {
public:
    QtDialogs(const DisplayHolder& display, OpenQuestions& open) : display_(display), asker_(display, open) {}

    bool Show(frmConProperties& dialog) override;
    bool Show(frmSettings& dialog) override;
    bool Show(frmEditLink& dialog) override;
    bool Show(frmInternetShortcut& dialog) override;
    bool Show(TextQuestion& question) override;
    std::optional<std::string> OpenFile(const FileQuestion& question) override;
    std::optional<std::string> OpenFolder(const FileQuestion& question) override;
    std::optional<Color> ChooseColor(Color now, const std::string& title) override;

private:
    const DisplayHolder& display_;
    Asker asker_;
};

} // namespace quill
