// The form of frmEditLink: shows its value, and leads what is pressed to it. Of several shortcuts a box that
// they do not agree on is neither ticked nor empty, and stays as each has it until it is pressed.
#pragma once

#include "qt/core/form.h"
#include "shortcuts/properties.h"

#include <QHash>

#include <functional>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QHBoxLayout;
class QLineEdit;

namespace quill {

class ColorButton;

class frmEditLinkForm : public Form {
public:
    frmEditLinkForm(frmEditLink& dialog, QWidget* parent);

protected:
    void WriteBack() override;
    QString Refusal() override;
    void accept() override;

private:
    // What no field can show as it is must not be harmed by being shown: only what was typed is taken.
    struct TextField {
        QLineEdit* Line = nullptr;
        std::string LinkProperties::*Value = nullptr;
        LinkField Field = LinkField::Label;
        QString Shown;
    };
    struct CheckField {
        QCheckBox* Box = nullptr;
        bool LinkProperties::*Value = nullptr;
        LinkField Field = LinkField::Label;
        bool Mixed = false;
    };

    void GiveLetters();
    void NameButtons();
    void AddError();
    void AddTarget();
    void AddAdvanced();
    void AddStyle();
    void AddCheckRow(QFormLayout& fields);
    QFormLayout* AddGroup(const char* caption);
    QHBoxLayout* AddPair(QFormLayout& fields, const char* caption, QWidget* first, QWidget* second);
    QLineEdit* AddText(const char* name, LinkField field, std::string LinkProperties::*value,
                       const char* caption, const char* tip);
    QCheckBox* AddCheck(const char* name, LinkField field, bool LinkProperties::*value, const char* caption,
                        const char* tip);
    QComboBox* AddList(const char* name, const char* caption, const QStringList& entries, LinkField field,
                       const char* tip);
    QPushButton* AddBrowse(const char* name, const char* spoken, void (frmEditLink::*browse)());
    void Name(QWidget* widget, const char* name, const QString& spoken, const QString& tip);
    void Label(QAbstractButton& button, const char* english) const;
    void Hint(QLineEdit& line, const char* english) const;
    QString Said(const char* english) const;    // as a person reads it
    QString Caption(const char* english) const; // with the letter that it has here
    void Do(const std::function<void()>& act);  // the dialog acts on what stands in the form
    void ShowValue();
    void ShowCommand();
    void FocusFirst();

    frmEditLink& dialog_;
    const frmMain& main_;
    QHash<QString, QString> captions_; // in English -> as shown
    std::vector<TextField> texts_;
    std::vector<CheckField> checks_;
    QFormLayout* target_ = nullptr;
    QWidget* pathRow_ = nullptr;
    QLabel* lblParam_ = nullptr;
    QLabel* lblRelativePath_ = nullptr;
    QLineEdit* txtLabel_ = nullptr;
    QLineEdit* txtPath_ = nullptr;
    QLineEdit* txtParam_ = nullptr;
    QComboBox* cboRun_ = nullptr;
    QComboBox* cboTags_ = nullptr;
    QComboBox* cboSpeedLaunch_ = nullptr;
    QCheckBox* ChkCommand_ = nullptr;
    QCheckBox* chkApplyStyle_ = nullptr; // null when one shortcut is edited
    ColorButton* PicLinkColor_ = nullptr;
    bool saveOpen_ = false; // that button was pressed
};

} // namespace quill
