// The form of frmSettings: its pages as tabs, and a button that applies without closing.
#pragma once

#include "appearance/frmSettings.h"
#include "qt/core/form.h"

#include <vector>

class QTabWidget;

namespace quill {

class SettingsPageForm;

class frmSettingsForm : public Form {
public:
    frmSettingsForm(frmSettings& dialog, QWidget* parent);

protected:
    void WriteBack() override {} // each control writes at once, into a value of the dialog's own
    void accept() override;

private:
    void AddPages();
    void AlignPages();
    void AddApply();
    void FitScreen();
    void Show(SettingsPage page);
    void ShowOutcome();
    void ShowState();

    frmSettings& dialog_;
    QTabWidget* tabs_;
    QPushButton* cmdApply_ = nullptr;
    std::vector<SettingsPageForm*> pages_; // in the order of the tabs
};

} // namespace quill
