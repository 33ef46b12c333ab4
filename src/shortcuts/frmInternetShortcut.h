// frmInternetShortcut: the dialog that adds web addresses, one or several in a row. Each stands, settled and
// saved, as soon as it is accepted, so that closing the dialog takes nothing back. Title "Add URL".
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>

namespace quill {

class frmInternetShortcut {
public:
    // Filled from the clipboard where that holds an address. at is where the first one goes; each further one
    // lies a step to the right and below.
    frmInternetShortcut(frmMain& main, Parent to, Point at);
    frmInternetShortcut(const frmInternetShortcut&) = delete;
    frmInternetShortcut& operator=(const frmInternetShortcut&) = delete;

    // The value.
    std::string txtAddress, txtLabel;
    bool chkFavIcon = false, chkKeepOpen = false;

    // What a person does.
    void txtAddress_Change(); // the label follows
    bool OKButton_Click();    // true: the dialog closes; false: it is ready for the next address

    static std::string Title(const frmMain& Main);
    static std::string LabelOf(std::string_view address);
    const frmMain& Workspace() const { return Main; }
    int Added() const { return added_; } // how many

private:
    void Begin(std::string address);
    void Add(const std::string& address);

    frmMain& Main;
    Parent to_;
    Point at_;
    int added_ = 0;
};

} // namespace quill
