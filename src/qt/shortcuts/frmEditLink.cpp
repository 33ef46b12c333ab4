#include "qt/shortcuts/frmEditLink.h"

#include "core/tr.h"
#include "qt/appearance/told_letters.h"
#include "qt/containers/color_button.h"
#include "qt/core/choice_box.h"
#include "qt/core/convert.h"
#include "qt/core/plain_tip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>

#include <array>

namespace quill {
namespace {

constexpr int textWidth = 300, sizeWidth = 56, styleGap = 12; // pixels

// In the order in which they choose their letters; there are more captions than letters.
constexpr std::array captions{"Save and Open",
                              "&Prompt for Parameters",
                              "&Administrator",
                              "&Confirm",
                              "&Tag Start",
                              "&Reset",
                              "Windows file properties",
                              "Name:",
                              "Target:",
                              "Parameters:",
                              "&Command",
                              "Icon:",
                              "Comment:",
                              "Speed Launch:",
                              "Run:",
                              "Bold Font:",
                              "Font Size:",
                              "Start in:",
                              "Tags:",

                              "Font Color:",
                              "&Apply style (Font/Color) to all selected shortcuts",
                              "&Cancel"};

// The one letter leads to a field whatever it is called.
QString WithLetter(const QString& caption, QChar letter) {
    const qsizetype at = letter.isNull() ? -1 : caption.indexOf(letter, 0, Qt::CaseInsensitive);
    return at < 0 ? caption : QString(caption).insert(at, QLatin1Char('&'));
}

} // namespace

frmEditLinkForm::frmEditLinkForm(frmEditLink& dialog, QWidget* parent)
    : Form(Text(dialog.Caption()), parent), dialog_(dialog), main_(dialog.Workspace()) {
    setObjectName(QStringLiteral("frmEditLink"));
    GiveLetters();
    NameButtons();
    AddError();
    AddTarget();
    AddAdvanced();
    AddStyle();
    ShowValue();
    FocusFirst();
}

QString frmEditLinkForm::Said(const char* english) const {
    return Text(Tr(main_, english));
}

QString frmEditLinkForm::Caption(const char* english) const {
    return captions_.value(QLatin1String(english));
}

void frmEditLinkForm::GiveLetters() {
    QStringList told{Text(dialog_.OkCaption())};
    for (const char* caption : captions) told += Said(caption);
    const QStringList given = GiveToldLetters(told, QString());
    captions_.insert(QStringLiteral("OK"), given.front());
    for (std::size_t at = 0; at < captions.size(); ++at)
        captions_.insert(QLatin1String(captions[at]), given[static_cast<qsizetype>(at) + 1]);
}

void frmEditLinkForm::NameButtons() {
    auto* buttons = findChild<QDialogButtonBox*>();
    auto* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdEditOK"));
    Label(*ok, "OK");
    auto* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cmdEditCancel"));
    Label(*cancel, "&Cancel");
    auto* properties = AddButton(Caption("Windows file properties"));
    properties->setObjectName(QStringLiteral("cmdProperties"));
    properties->setAutoDefault(false);
    connect(properties, &QPushButton::clicked, this,
            [this] { Do([this] { dialog_.cmdProperties_Click(); }); });
    if (dialog_.IsClone()) return;
    auto* saveOpen = AddButton(Caption("Save and Open"));
    saveOpen->setObjectName(QStringLiteral("cmdEditSaveOpen"));
    connect(saveOpen, &QPushButton::clicked, this, [this] {
        saveOpen_ = true;
        accept();
        saveOpen_ = false;
    });
}

// ---- parts

void frmEditLinkForm::Label(QAbstractButton& button, const char* english) const {
    button.setText(Caption(english));
}

// Shown where nothing is written yet.
void frmEditLinkForm::Hint(QLineEdit& line, const char* english) const {
    line.setPlaceholderText(Said(english));
}

// The bridge of assistive technology tells a field by its name; what it is for follows as its description.
void frmEditLinkForm::Name(QWidget* widget, const char* name, const QString& spoken, const QString& tip) {
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(QString(spoken).remove(QLatin1Char(':')));
    widget->setToolTip(PlainTip(tip));
    widget->setAccessibleDescription(tip);
}

QLineEdit* frmEditLinkForm::AddText(const char* name, LinkField field, std::string LinkProperties::*value,
                                    const char* caption, const char* tip) {
    auto* line = new QLineEdit;
    Name(line, name, Said(caption), tip[0] != '\0' ? Said(tip) : QString());
    texts_.push_back({line, value, field, QString()});
    return line;
}

QCheckBox* frmEditLinkForm::AddCheck(const char* name, LinkField field, bool LinkProperties::*value,
                                     const char* caption, const char* tip) {
    auto* box = new QCheckBox;
    Name(box, name, WithoutLetter(Said(caption)), tip[0] != '\0' ? Said(tip) : QString());
    checks_.push_back({box, value, field, dialog_.IsMixed(field)});
    box->setTristate(checks_.back().Mixed);
    return box;
}

QComboBox* frmEditLinkForm::AddList(const char* name, const char* caption, const QStringList& entries,
                                    LinkField field, const char* tip) {
    auto* list = new QComboBox;
    list->addItems(entries);
    Name(list, name, Said(caption), Said(tip));
    connect(list, &QComboBox::activated, this, [this, field] { dialog_.Touch(field); });
    return list;
}

QPushButton* frmEditLinkForm::AddBrowse(const char* name, const char* spoken, void (frmEditLink::*browse)()) {
    auto* button = new QPushButton(Said("Browse..."));
    button->setAutoDefault(false);
    Name(button, name, Said(spoken), QString());
    connect(button, &QPushButton::clicked, this,
            [this, browse] { Do([this, browse] { (dialog_.*browse)(); }); });
    return button;
}

// The label's letter leads to the first of the two.
QHBoxLayout* frmEditLinkForm::AddPair(QFormLayout& fields, const char* caption, QWidget* first,
                                      QWidget* second) {
    auto* both = new QWidget;
    auto* parts = new QHBoxLayout(both);
    parts->setContentsMargins({});
    parts->addWidget(first);
    parts->addWidget(second);
    auto* label = new QLabel(Caption(caption));
    label->setBuddy(first);
    fields.addRow(label, both);
    return parts;
}

QFormLayout* frmEditLinkForm::AddGroup(const char* caption) {
    auto* group = new QGroupBox(Said(caption));
    auto* fields = new QFormLayout(group);
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddRow(group);
    return fields;
}

// What the system said is another's text, however long.
void frmEditLinkForm::AddError() {
    if (dialog_.lblError().empty()) return;
    auto* row = new QWidget;
    auto* parts = new QHBoxLayout(row);
    parts->setContentsMargins({});
    auto* sign = new QLabel;
    const int side = style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(side));
    auto* error = new QLabel(Text(dialog_.lblError()));
    error->setObjectName(QStringLiteral("lblError"));
    error->setTextFormat(Qt::PlainText);
    error->setWordWrap(true);
    error->setTextInteractionFlags(Qt::TextSelectableByMouse);
    parts->addWidget(sign, 0, Qt::AlignTop);
    parts->addWidget(error, 1);
    AddRow(row);
}

void frmEditLinkForm::AddTarget() {
    auto* box = new QWidget;
    target_ = new QFormLayout(box);
    target_->setContentsMargins({});
    target_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    txtLabel_ = AddText("txtLabel", LinkField::Label, &LinkProperties::txtLabel, "Name:", "");
    txtLabel_->setMinimumWidth(textWidth);
    target_->addRow(Caption("Name:"), txtLabel_);
    txtPath_ = AddText("txtPath", LinkField::Path, &LinkProperties::txtPath, "Target:", "");
    pathRow_ = AddPair(*target_, "Target:", txtPath_,
                       AddBrowse("CmdBrowse", "Browse for the target", &frmEditLink::CmdBrowse_Click))
                   ->parentWidget();
    txtParam_ = AddText("txtParam", LinkField::Parameters, &LinkProperties::txtParam, "Parameters:", "");
    lblParam_ = new QLabel;
    lblParam_->setBuddy(txtParam_);
    target_->addRow(lblParam_, txtParam_);
    auto* start = AddText("txtStartIn", LinkField::StartIn, &LinkProperties::txtStartIn,
                          "Start in:", "Start in folder");
    Hint(*start, "Specify a working directory");
    AddPair(
        *target_, "Start in:", start,
        AddBrowse("cmdBrowseStartIn", "Browse for the start folder", &frmEditLink::cmdBrowseStartIn_Click));
    cboRun_ = AddList("cboRun", "Run:", {Said("Normal window"), Said("Minimized"), Said("Maximized")},
                      LinkField::RunIn, "Initial window state");
    ChkCommand_ = AddCheck("ChkCommand", LinkField::Command, &LinkProperties::ChkCommand, "&Command",
                           "Enter a command to execute instead of a shortcut (Command Prompt)");
    Label(*ChkCommand_, "&Command");
    connect(ChkCommand_, &QCheckBox::clicked, this, [this] { Do([this] { dialog_.ChkCommand_Click(); }); });
    AddPair(*target_, "Run:", cboRun_, ChkCommand_)->addStretch();
    lblRelativePath_ = new QLabel;
    lblRelativePath_->setObjectName(QStringLiteral("lblRelativePath"));
    lblRelativePath_->setTextFormat(Qt::PlainText);
    lblRelativePath_->setWordWrap(true);
    target_->addRow(lblRelativePath_);
    AddRow(box);
}

void frmEditLinkForm::AddAdvanced() {
    auto* fields = AddGroup("Advanced");
    auto* icon = AddText("txtIcon", LinkField::Icon, &LinkProperties::txtIcon,
                         "Icon:", "Show using an icon from a different file");
    AddPair(*fields, "Icon:", icon,
            AddBrowse("cmdChooseFileIcon", "Browse for the icon", &frmEditLink::cmdChooseFileIcon_Click));
    auto* tags = AddText("txtTags", LinkField::Tags, &LinkProperties::txtTags,
                         "Tags:", "Use commas to separate multiple tags");
    Hint(*tags, "Separate with commas");
    cboTags_ = new ChoiceBox;
    Name(cboTags_, "cboTags", Said("Existing Tags"), QString());
    for (const auto& tag : dialog_.cboTags()) cboTags_->addItem(Text(tag));
    cboTags_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboTags_->setMinimumContentsLength(static_cast<int>(cboTags_->itemText(0).size()));
    connect(cboTags_, &QComboBox::activated, this, [this](int entry) {
        Do([this, entry] { dialog_.cboTags_Click(entry); });
        cboTags_->setCurrentIndex(0);
    });
    AddPair(*fields, "Tags:", tags, cboTags_);
    fields->addRow(Caption("Comment:"), AddText("txtTip", LinkField::Tip, &LinkProperties::txtTip, "Comment:",
                                                "Comment to show when hovering over the shortcut's icon"));
    QStringList digits{QString()};
    for (int digit = 1; digit <= SpeedLaunchSlots; ++digit) digits += QString::number(digit);
    cboSpeedLaunch_ = AddList("cboSpeedLaunch", "Speed Launch:", digits, LinkField::SpeedLaunch,
                              "The number that starts this shortcut when it is typed on the workspace");
    auto* tagStart = AddCheck("chkTagStart", LinkField::TagStart, &LinkProperties::chkTagStart, "&Tag Start",
                              "A click starts every shortcut that has one of these tags");
    Label(*tagStart, "&Tag Start");
    AddPair(*fields, "Speed Launch:", cboSpeedLaunch_, tagStart)->addStretch();
    AddCheckRow(*fields);
}

void frmEditLinkForm::AddCheckRow(QFormLayout& fields) {
    struct Row {
        const char* Name;
        LinkField Field;
        bool LinkProperties::*Value;
        const char* Caption;
        const char* Tip;
    };
    constexpr Row rows[] = {
        {"chkPromptForParameters", LinkField::PromptParameters, &LinkProperties::chkPromptForParameters,
         "&Prompt for Parameters", ""},
        {"chkAdminPriv", LinkField::Admin, &LinkProperties::chkAdminPriv, "&Administrator",
         "Require elevation when launching the shortcut"},
        {"chkConfirm", LinkField::Confirm, &LinkProperties::chkConfirm, "&Confirm",
         "Prompt for confirmation before launch"},
    };
    auto* parts = new QHBoxLayout;
    for (const auto& row : rows) {
        auto* box = AddCheck(row.Name, row.Field, row.Value, row.Caption, row.Tip);
        box->setText(Caption(row.Caption));
        parts->addWidget(box);
    }
    parts->addStretch();
    fields.addRow(parts);
}

void frmEditLinkForm::AddStyle() {
    auto* fields = AddGroup("Style");
    auto* parts = new QHBoxLayout;
    const auto add = [&](const char* caption, QWidget* field) {
        auto* label = new QLabel(Caption(caption));
        label->setBuddy(field);
        parts->addWidget(label);
        parts->addWidget(field);
        parts->addSpacing(styleGap);
    };
    add("Bold Font:", AddCheck("ChkBold", LinkField::Bold, &LinkProperties::ChkBold, "Bold Font:", ""));
    auto* size = AddText("txtSize", LinkField::Size, &LinkProperties::txtSize, "Font Size:", "");
    size->setFixedWidth(sizeWidth);
    add("Font Size:", size);
    PicLinkColor_ = new ColorButton(QString());
    PicLinkColor_->setAutoDefault(false);
    Name(PicLinkColor_, "PicLinkColor", Said("Font Color:"), Said("Click to select color"));
    connect(PicLinkColor_, &QPushButton::clicked, this,
            [this] { Do([this] { dialog_.PicLinkColor_Click(); }); });
    add("Font Color:", PicLinkColor_);
    parts->addStretch();
    auto* reset = new QPushButton(Caption("&Reset"));
    reset->setObjectName(QStringLiteral("cmdReset"));
    reset->setAutoDefault(false);
    connect(reset, &QPushButton::clicked, this, [this] { Do([this] { dialog_.cmdReset_Click(); }); });
    parts->addWidget(reset);
    fields->addRow(parts);
    if (!dialog_.IsForSeveral()) return;
    chkApplyStyle_ = new QCheckBox(Caption("&Apply style (Font/Color) to all selected shortcuts"));
    chkApplyStyle_->setObjectName(QStringLiteral("chkApplyStyle"));
    fields->addRow(chkApplyStyle_);
}

// ---- the value

void frmEditLinkForm::Do(const std::function<void()>& act) {
    WriteBack();
    act();
    ShowValue();
}

void frmEditLinkForm::ShowValue() {
    for (auto& text : texts_) {
        const QString shown = Text(dialog_.*text.Value);
        if (text.Line->text() != shown) text.Line->setText(shown);
        text.Shown = text.Line->text(); // a field may not hold all of it
    }
    for (auto& check : checks_) {
        const bool open = check.Mixed && check.Box->checkState() == Qt::PartiallyChecked;
        if (!open) check.Box->setChecked(dialog_.*check.Value);
    }
    cboRun_->setCurrentIndex(dialog_.cboRun);
    cboSpeedLaunch_->setCurrentIndex(dialog_.cboSpeedLaunch);
    PicLinkColor_->Show(dialog_.ShownColor());
    ShowCommand();
}

// A command has no target, and its field another name.
void frmEditLinkForm::ShowCommand() {
    const bool command = ChkCommand_->checkState() == Qt::Checked;
    target_->setRowVisible(pathRow_, !command);
    const QString parameters = Caption("Parameters:");
    const QString line = Said("Command:");
    lblParam_->setText(command ? WithLetter(line, MarkedLetter(parameters)) : parameters);
    lblParam_->setToolTip(PlainTip(Text(dialog_.ParamTip())));
    Name(txtParam_, "txtParam", Text(dialog_.ParamCaption()), Text(dialog_.ParamFieldTip()));
    const QString relative = Text(dialog_.lblRelativePath());
    lblRelativePath_->setText(relative);
    target_->setRowVisible(lblRelativePath_, !relative.isEmpty());
}

// What is to be mended after a failed start is the target; otherwise it is mostly the name.
void frmEditLinkForm::FocusFirst() {
    for (auto& check : checks_)
        if (check.Mixed) check.Box->setCheckState(Qt::PartiallyChecked);
    ShowCommand();
    auto* first = txtLabel_;
    if (!dialog_.lblError().empty()) first = dialog_.ChkCommand ? txtParam_ : txtPath_;
    first->setFocus();
    first->selectAll();
}

void frmEditLinkForm::WriteBack() {
    for (const auto& text : texts_) {
        if (text.Line->text() != text.Shown) dialog_.*text.Value = Bytes(text.Line->text());
        dialog_.Touch(text.Field, text.Line->isModified());
    }
    for (const auto& check : checks_) {
        const bool open = check.Box->checkState() == Qt::PartiallyChecked;
        if (!open) dialog_.*check.Value = check.Box->isChecked();
        dialog_.Touch(check.Field, check.Mixed && !open);
    }
    dialog_.cboRun = cboRun_->currentIndex();
    dialog_.cboSpeedLaunch = cboSpeedLaunch_->currentIndex();
    if (chkApplyStyle_ != nullptr) dialog_.chkApplyStyle = chkApplyStyle_->isChecked();
}

// A box that was pressed by its letter still shows the press when Enter follows fast.
void frmEditLinkForm::accept() {
    for (const auto& check : checks_)
        if (check.Box->isDown()) check.Box->click();
    Form::accept();
}

QString frmEditLinkForm::Refusal() {
    return Text(saveOpen_ ? dialog_.cmdEditSaveOpen_Click() : dialog_.cmdEditOK_Click());
}

} // namespace quill
