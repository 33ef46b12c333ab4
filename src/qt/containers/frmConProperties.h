// The form of frmConProperties: shows its value, and leads what is pressed to it.
#pragma once

#include "containers/con_properties.h"
#include "qt/core/form.h"
#include "qt/core/mnemonics.h"

#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

namespace quill {

class ColorButton;
class TilePreview;
struct Looks;

class frmConPropertiesForm : public Form {
public:
    frmConPropertiesForm(frmConProperties& dialog, Looks& looks, QWidget* parent);

protected:
    void WriteBack() override;
    QString Refusal() override;

private:
    void AddFields(Looks& looks);
    void AddColors();
    QWidget* IconRow(Looks& looks);
    void AddField(QFormLayout& fields, const QString& caption, QWidget* field);
    QWidget* Pickers(PickedColor fore, PickedColor back);
    ColorButton* Picker(PickedColor which, const QString& name);
    void FillColors();
    void LeaveContainerFree();
    void ShowColors();

    frmConProperties& dialog_;
    const frmMain& main_;
    Mnemonics mnemonics_;
    QLineEdit* txtContainerName_ = nullptr; // these are null when several containers are edited
    QLineEdit* txtSpacing_ = nullptr;
    QComboBox* cboShrinkSize_ = nullptr;
    QCheckBox* chkSpacebarFlip_ = nullptr;
    QCheckBox* chkHideToolbar_ = nullptr;
    TilePreview* preview_ = nullptr;
    QComboBox* cboColors_ = nullptr;
    std::vector<std::pair<PickedColor, ColorButton*>> pickers_;
};

} // namespace quill
