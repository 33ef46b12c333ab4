#include "qt/shortcuts/frmInternetShortcut.h"

#include "core/tr.h"
#include "qt/core/convert.h"
#include "qt/core/mnemonics.h"
#include "qt/core/plain_tip.h"
#include "shortcuts/frmInternetShortcut.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace quill {
namespace {

constexpr int addressWidth = 360; // pixels
constexpr int longestText = 8192; // letters
constexpr char keepOpenLetter = 'K';

// Entering it selects its text, so that what is typed takes the place of what was proposed. The press of a
// mouse sets the caret after it has given the keyboard.
class ProposedText : public QLineEdit {
protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        QTimer::singleShot(0, this, [this] { selectAll(); });
    }
};

} // namespace

frmInternetShortcutForm::frmInternetShortcutForm(frmInternetShortcut& dialog, QWidget* parent)
    : Form(Text(frmInternetShortcut::Title(dialog.Workspace())), parent), dialog_(dialog),
      txtAddress_(new QLineEdit), txtLabel_(new ProposedText) {
    setObjectName(QStringLiteral("frmInternetShortcut"));
    NameClose();
    Mnemonics mnemonics(TakenMnemonics() + QLatin1Char(keepOpenLetter));
    AddFields(mnemonics);
    const auto& main = dialog.Workspace();
    chkFavIcon_ = AddCheck(QStringLiteral("chkFavIcon"), mnemonics.Give(Text(Tr(main, "Download Favicon"))),
                           Tr(main, "Download the website's custom icon"), dialog.chkFavIcon);
    chkKeepOpen_ = AddCheck(QStringLiteral("chkKeepOpen"), Text(Tr(main, "&Keep Open")),
                            Tr(main, "Keep this dialog open to quickly add more URLs"), dialog.chkKeepOpen);
    ShowValue();
}

void frmInternetShortcutForm::NameClose() {
    auto* close = findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
    close->setObjectName(QStringLiteral("CancelButton"));
    close->setText(Text(Tr(dialog_.Workspace(), "&Close")));
}

void frmInternetShortcutForm::AddFields(Mnemonics& mnemonics) {
    struct Row {
        const char* Name;
        std::string Caption;
        QLineEdit* Field;
    };
    const auto& main = dialog_.Workspace();
    const Row rows[] = {{"txtAddress", Tr(main, "Address:"), txtAddress_},
                        {"txtLabel", Tr(main, "Label:"), txtLabel_}};
    auto* box = new QWidget;
    auto* fields = new QFormLayout(box);
    fields->setContentsMargins({});
    for (const auto& row : rows) {
        row.Field->setObjectName(QLatin1String(row.Name));
        row.Field->setMaxLength(longestText);
        row.Field->setAccessibleName(Text(row.Caption).remove(QLatin1Char(':')));
        fields->addRow(mnemonics.Give(Text(row.Caption)), row.Field);
    }
    txtAddress_->setMinimumWidth(addressWidth);
    connect(txtAddress_, &QLineEdit::textChanged, this, [this](const QString& address) {
        dialog_.txtAddress = Bytes(address);
        dialog_.txtAddress_Change();
        txtLabel_->setText(Text(dialog_.txtLabel));
    });
    AddRow(box);
}

QCheckBox* frmInternetShortcutForm::AddCheck(const QString& name, const QString& caption,
                                             const std::string& tip, bool checked) {
    auto* check = new QCheckBox(caption);
    check->setObjectName(name);
    check->setToolTip(PlainTip(Text(tip)));
    check->setChecked(checked);
    AddRow(check);
    return check;
}

void frmInternetShortcutForm::ShowValue() {
    const QString label = Text(dialog_.txtLabel); // the field of the address proposes another
    txtAddress_->setText(Text(dialog_.txtAddress));
    txtLabel_->setText(label);
    txtAddress_->setFocus();
    txtAddress_->end(false);
}

// As it shows a dialog the toolkit selects its first field; here one types behind what stands there.
void frmInternetShortcutForm::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    QTimer::singleShot(0, txtAddress_, [this] { txtAddress_->end(false); });
}

void frmInternetShortcutForm::WriteBack() {
    dialog_.txtAddress = Bytes(txtAddress_->text());
    dialog_.txtLabel = Bytes(txtLabel_->text());
    dialog_.chkFavIcon = chkFavIcon_->isChecked();
    dialog_.chkKeepOpen = chkKeepOpen_->isChecked();
}

void frmInternetShortcutForm::accept() {
    WriteBack();
    if (dialog_.OKButton_Click()) return QDialog::accept();
    ShowValue();
}

} // namespace quill
