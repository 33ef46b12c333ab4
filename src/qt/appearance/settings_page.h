// SettingsPageForm: one page of the settings, built from the table of controls. Each control writes what a
// person does to it into the dialog's values at once and tells so.
#pragma once

#include "appearance/frmSettings.h"

#include <QHash>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace quill {

class ColorButton;

class SettingsPageForm : public QWidget {
public:
    // letters: mnemonics that are in use on every page.
    SettingsPageForm(frmSettings& dialog, SettingsPage page, const QString& letters,
                     std::function<void()> changed);

    void Fill();       // the controls show the dialog's values
    void ShowState();  // what can be used, and whether the hotkey is refused
    void MarkHotkey(); // the keyboard is on it, its character selected
    QWidget* First() const { return first_; }
    int LeadWidth() const; // of the captions at the left, wanted and given
    void SetLeadWidth(int width);

private:
    void GiveLetters(const QString& letters);
    void Add(const SettingsControl& control);
    void Place(const SettingsControl& control, QWidget* widget);
    void PlaceBeside(QWidget* widget);
    QWidget* Make(const SettingsControl& control);
    QWidget* MakeCheckBox(const SettingsControl& control);
    QWidget* MakeList(const SettingsControl& control);
    QWidget* MakeOptions(const SettingsControl& control);
    QWidget* MakeTextBox(const SettingsControl& control);
    QWidget* MakeColorBox();
    QWidget* MakeWarning(const SettingsControl& control);
    void Name(const SettingsControl& control, QWidget* widget);
    QString Caption(const char* told) const; // with the letter that it got here
    void Changed(const SettingsControl& control);

    frmSettings& dialog_;
    const frmMain& main_;
    SettingsPage page_;
    std::function<void()> changed_;
    QHash<QString, QString> captions_; // as told -> as shown
    QGridLayout* grid_;
    int rowHeight_; // the same for each, whatever stands in it
    int row_ = -1;
    QCheckBox* lead_ = nullptr;    // the check box that what follows beside it depends on
    QHBoxLayout* parts_ = nullptr; // of the row, where several stand beside its caption
    QWidget* first_ = nullptr;
    QLineEdit* txtHotkey_ = nullptr;
    QWidget* txtGlobalHotkey_ = nullptr;
    std::vector<std::function<void()>> fills_;
    std::vector<std::pair<QCheckBox*, QWidget*>> dependents_;
    bool filling_ = false;
};

} // namespace quill
