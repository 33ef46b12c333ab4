#include "qt/containers/frmConProperties.h"

#include "core/tr.h"
#include "qt/containers/color_button.h"
#include "qt/containers/tile_preview.h"
#include "qt/core/beside.h"
#include "qt/core/choice_box.h"
#include "qt/core/convert.h"
#include "qt/core/plain_tip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace quill {
namespace {

constexpr int nameWidth = 260, numberWidth = 80; // pixels

} // namespace

frmConPropertiesForm::frmConPropertiesForm(frmConProperties& dialog, Looks& looks, QWidget* parent)
    : Form(Text(dialog.Title()), parent), dialog_(dialog), main_(dialog.Workspace()),
      mnemonics_(TakenMnemonics()) {
    setObjectName(QStringLiteral("frmConProperties"));
    if (!dialog.IsForSeveral()) AddFields(looks);
    AddColors();
    ShowColors();
    LeaveContainerFree();
    if (txtContainerName_ == nullptr) {
        cboColors_->setFocus();
        return;
    }
    txtContainerName_->setFocus();
    txtContainerName_->selectAll();
}

// What the colours do is seen on the container itself.
void frmConPropertiesForm::LeaveContainerFree() {
    const auto place = dialog_.PlaceOnScreen();
    if (!place) return;
    const QRect container = PixelRect(*place);
    const QScreen* screen = QGuiApplication::screenAt(container.center());
    if (screen == nullptr) return;
    const auto spot = PlaceBeside(container, sizeHint(), screen->availableGeometry());
    if (spot) move(*spot);
}

// The label's mnemonic leads to the field.
void frmConPropertiesForm::AddField(QFormLayout& fields, const QString& caption, QWidget* field) {
    fields.addRow(mnemonics_.Give(caption), field);
    field->setAccessibleName(QString(caption).remove(QLatin1Char(':')));
}

void frmConPropertiesForm::AddFields(Looks& looks) {
    auto* box = new QWidget;
    auto* fields = new QFormLayout(box);
    fields->setContentsMargins({});
    txtContainerName_ = new QLineEdit(Text(dialog_.txtContainerName));
    txtContainerName_->setMinimumWidth(nameWidth);
    AddField(*fields, Text(Tr(main_, "Name:")), txtContainerName_);
    QWidget* icon = IconRow(looks);
    auto* label = new QLabel(Text(Tr(main_, "Icon:")));
    label->setMinimumHeight(icon->sizeHint().height());
    fields->addRow(label, icon);
    cboShrinkSize_ = new QComboBox;
    for (const auto& step : {Tr(main_, "Normal"), Tr(main_, "Small"), Tr(main_, "Tiny")})
        cboShrinkSize_->addItem(Text(step));
    cboShrinkSize_->setCurrentIndex(dialog_.cboShrinkSize);
    AddField(*fields, Text(Tr(main_, "Shrink Size:")), cboShrinkSize_);
    txtSpacing_ = new QLineEdit(Text(dialog_.txtSpacing));
    txtSpacing_->setMaximumWidth(numberWidth);
    AddField(*fields, Text(Tr(main_, "Line Spacing in Pixels (4 to 30):")), txtSpacing_);
    chkSpacebarFlip_ = new QCheckBox(mnemonics_.Give(Text(Tr(main_, "Spacebar Flip"))));
    chkSpacebarFlip_->setChecked(dialog_.chkSpacebarFlip);
    chkSpacebarFlip_->setToolTip(
        PlainTip(Text(Tr(main_, "Set the container for Spacebar Flip when 'Selected' is chosen from Settings "
                                ">> Keyboard Navigation"))));
    fields->addRow(chkSpacebarFlip_);
    chkHideToolbar_ = new QCheckBox(mnemonics_.Give(Text(Tr(main_, "Hide Toolbar"))));
    chkHideToolbar_->setChecked(dialog_.chkHideToolbar);
    fields->addRow(chkHideToolbar_);
    AddRow(box);
}

QWidget* frmConPropertiesForm::IconRow(Looks& looks) {
    auto* row = new QWidget;
    auto* parts = new QHBoxLayout(row);
    parts->setContentsMargins({});
    preview_ = new TilePreview(looks);
    auto* button = new QPushButton(mnemonics_.Give(Text(Tr(main_, "Select Icon"))));
    button->setObjectName(QStringLiteral("PicJumpToIcon"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this] {
        dialog_.PicJumpToIcon_Click();
        ShowColors();
    });
    parts->addWidget(preview_);
    parts->addWidget(button);
    parts->addStretch();
    return row;
}

ColorButton* frmConPropertiesForm::Picker(PickedColor which, const QString& name) {
    const QString caption = Text(dialog_.CaptionOf(which));
    auto* button = new ColorButton(mnemonics_.Give(caption));
    button->setObjectName(name);
    button->setAccessibleName(caption);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, which] {
        dialog_.PickColor(which);
        ShowColors();
    });
    pickers_.emplace_back(which, button);
    return button;
}

void frmConPropertiesForm::AddColors() {
    auto* own = new QGroupBox(Text(Tr(main_, "Container Colors")));
    auto* parts = new QVBoxLayout(own);
    auto* choice = new QFormLayout;
    cboColors_ = new ChoiceBox;
    FillColors();
    AddField(*choice, Text(Tr(main_, "Colors:")), cboColors_);
    parts->addLayout(choice);
    auto* pair = new QHBoxLayout;
    pair->addWidget(Picker(PickedColor::Fore, QStringLiteral("picFore")));
    pair->addWidget(Picker(PickedColor::Back, QStringLiteral("picBackColor")));
    parts->addLayout(pair);
    AddRow(own);
    if (!dialog_.HasTextColors()) return;
    auto* texts = new QGroupBox(Text(dialog_.TextColorsCaption()));
    auto* text = new QHBoxLayout(texts);
    text->addWidget(Picker(PickedColor::ForeText, QStringLiteral("picForeText")));
    text->addWidget(Picker(PickedColor::BackText, QStringLiteral("picBackText")));
    AddRow(texts);
}

void frmConPropertiesForm::FillColors() {
    cboColors_->setObjectName(QStringLiteral("CboColors"));
    for (const auto& entry : dialog_.ColorEntries()) cboColors_->addItem(Text(entry));
    const auto* model = qobject_cast<QStandardItemModel*>(cboColors_->model());
    for (int entry = 0; model != nullptr && entry < cboColors_->count(); ++entry)
        if (frmConProperties::IsColorSeparator(entry)) model->item(entry)->setEnabled(false);
    cboColors_->setPlaceholderText(Text(Tr(main_, "Choose...")));
    cboColors_->setCurrentIndex(-1);
    connect(cboColors_, &QComboBox::activated, this, [this](int entry) {
        dialog_.CboColors_Click(entry);
        ShowColors();
    });
}

void frmConPropertiesForm::ShowColors() {
    for (const auto& [which, button] : pickers_) button->Show(dialog_.ColorOf(which));
    if (preview_ != nullptr) preview_->Show(dialog_.Icon(), dialog_.ColorOf(PickedColor::Back));
}

void frmConPropertiesForm::WriteBack() {
    if (txtContainerName_ == nullptr) return;
    dialog_.txtContainerName = Bytes(txtContainerName_->text());
    dialog_.txtSpacing = Bytes(txtSpacing_->text());
    dialog_.cboShrinkSize = cboShrinkSize_->currentIndex();
    dialog_.chkSpacebarFlip = chkSpacebarFlip_->isChecked();
    dialog_.chkHideToolbar = chkHideToolbar_->isChecked();
}

QString frmConPropertiesForm::Refusal() {
    const QString wrong = Text(dialog_.OKButton_Click());
    if (!wrong.isEmpty() && txtContainerName_ != nullptr) txtContainerName_->setFocus();
    return wrong;
}

} // namespace quill
