// The form of frmInternetShortcut: shows its value, and leads what is typed and pressed to it.
#pragma once

#include "qt/core/form.h"

class QCheckBox;
class QFormLayout;
class QLineEdit;

namespace quill {

class frmInternetShortcut;
class Mnemonics;

class frmInternetShortcutForm : public Form {
public:
    frmInternetShortcutForm(frmInternetShortcut& dialog, QWidget* parent);

protected:
    void WriteBack() override;
    void accept() override; // may leave it open for the next address
    void showEvent(QShowEvent* event) override;

private:
    void NameClose();
    void AddFields(Mnemonics& mnemonics);
    QCheckBox* AddCheck(const QString& name, const QString& caption, const std::string& tip, bool checked);
    void ShowValue(); // with the caret behind the address

    frmInternetShortcut& dialog_;
    QLineEdit* txtAddress_;
    QLineEdit* txtLabel_;
    QCheckBox* chkFavIcon_ = nullptr;
    QCheckBox* chkKeepOpen_ = nullptr;
};

} // namespace quill
