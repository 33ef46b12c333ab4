#include "qt/appearance/settings_page.h"

#include "core/tr.h"
#include "qt/appearance/told_letters.h"
#include "qt/containers/color_button.h"
#include "qt/core/convert.h"
#include "qt/core/plain_tip.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QShortcutEvent>
#include <QStyle>

#include <algorithm>

namespace quill {
namespace {

constexpr int numberWidth = 64, characterWidth = 36, addressWidth = 260, leastListWidth = 110; // pixels
constexpr int longestNumber = 10; // in characters; a longer text is an address

// A button whose letter acts at once. The toolkit shows it pressed for a moment first, and a key that comes
// meanwhile, as Return, would find the box unchanged.
template <class Button> class AtOnce : public Button {
public:
    using Button::Button;

protected:
    bool event(QEvent* event) override {
        const bool letter = event->type() == QEvent::Shortcut;
        if (!letter || static_cast<QShortcutEvent*>(event)->isAmbiguous()) return Button::event(event);
        this->setFocus(Qt::ShortcutFocusReason);
        this->click();
        return true;
    }
};

// Tab stops at the option that is on; the arrows lead to the others.
void StopAtChosen(const QButtonGroup& group) {
    if (group.checkedButton() == nullptr) return;
    for (auto* option : group.buttons())
        option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

// A number, a character or an address.
int WidthOf(const SettingsControl& control) {
    if (control.TextLimit == 1) return characterWidth;
    return control.TextLimit > longestNumber ? addressWidth : numberWidth;
}

QHBoxLayout* BareRow(QWidget* row) {
    auto* parts = new QHBoxLayout(row);
    parts->setContentsMargins({});
    return parts;
}

} // namespace

SettingsPageForm::SettingsPageForm(frmSettings& dialog, SettingsPage page, const QString& letters,
                                   std::function<void()> changed)
    : dialog_(dialog), main_(dialog.Workspace()), page_(page), changed_(std::move(changed)),
      grid_(new QGridLayout(this)), rowHeight_(QComboBox().sizeHint().height()) {
    GiveLetters(letters);
    for (const auto& control : SettingsControls())
        if (control.Page == page_) Add(control);
    grid_->setColumnStretch(1, 1);
    grid_->setRowStretch(row_ + 1, 1);
    Fill();
}

// Entries of a list have no letters, those of options have.
void SettingsPageForm::GiveLetters(const QString& letters) {
    QStringList told;
    for (const auto& control : SettingsControls()) {
        if (control.Page != page_ || control.Kind == SettingsControlKind::Warning) continue;
        const bool options = control.Kind == SettingsControlKind::Options;
        if (!options && control.Caption[0] != '\0') told += Text(Tr(main_, control.Caption));
        for (const auto& entry : EntriesOf(control))
            if (options) told += Text(Tr(main_, entry.Caption));
    }
    const auto given = GiveToldLetters(told, letters);
    for (qsizetype place = 0; place < told.size(); ++place) captions_.insert(told[place], given[place]);
}

QString SettingsPageForm::Caption(const char* told) const {
    const QString text = Text(Tr(main_, told));
    return captions_.value(text, text);
}

void SettingsPageForm::Changed(const SettingsControl& control) {
    if (filling_) return;
    dialog_.Option_Click();
    if (control.Follow != nullptr) {
        control.Follow(dialog_.Controls);
        Fill();
    }
    ShowState();
    changed_();
}

void SettingsPageForm::Fill() {
    filling_ = true;
    for (const auto& fill : fills_) fill();
    filling_ = false;
    ShowState();
}

void SettingsPageForm::ShowState() {
    for (const auto& [lead, widget] : dependents_) widget->setEnabled(lead->isChecked());
    if (txtGlobalHotkey_ != nullptr) txtGlobalHotkey_->setVisible(dialog_.txtGlobalHotkeyVisible());
}

void SettingsPageForm::MarkHotkey() {
    if (txtHotkey_ == nullptr) return;
    txtHotkey_->setFocus();
    txtHotkey_->selectAll();
}

int SettingsPageForm::LeadWidth() const {
    int width = 0;
    for (int row = 0; row <= row_; ++row)
        width = std::max(width, grid_->itemAtPosition(row, 0)->sizeHint().width());
    return width;
}

void SettingsPageForm::SetLeadWidth(int width) {
    grid_->setColumnMinimumWidth(0, width);
}

// ---- placing

void SettingsPageForm::Add(const SettingsControl& control) {
    QWidget* widget = Make(control);
    widget->setObjectName(QLatin1String(control.Name));
    Name(control, widget);
    Place(control, widget);
    if (first_ == nullptr) first_ = widget;
}

// The bridge of assistive technology tells a list by what is chosen in it; what it is for follows as its
// description.
void SettingsPageForm::Name(const SettingsControl& control, QWidget* widget) {
    const QString tip = Text(Tr(main_, control.Tip));
    const char* told = control.Spoken[0] != '\0' ? control.Spoken : control.Caption;
    const QString name = WithoutLetter(Text(Tr(main_, told))).remove(QLatin1Char(':'));
    widget->setToolTip(PlainTip(tip));
    widget->setAccessibleName(name);
    widget->setAccessibleDescription(tip.isEmpty() ? name : tip);
}

// A check box stands alone, or what belongs to it beside it; everything else has a label.
void SettingsPageForm::Place(const SettingsControl& control, QWidget* widget) {
    if (control.Beside) return PlaceBeside(widget);
    ++row_;
    parts_ = nullptr;
    grid_->setRowMinimumHeight(row_, rowHeight_);
    lead_ = qobject_cast<QCheckBox*>(widget);
    if (lead_ != nullptr) return grid_->addWidget(widget, row_, 0);
    auto* label = new QLabel(Caption(control.Caption));
    label->setToolTip(widget->toolTip());
    if (control.Kind != SettingsControlKind::Options) label->setBuddy(widget);
    grid_->addWidget(label, row_, 0);
    grid_->addWidget(widget, row_, 1, Qt::AlignLeft);
}

void SettingsPageForm::PlaceBeside(QWidget* widget) {
    if (parts_ == nullptr) {
        auto* row = new QWidget;
        parts_ = BareRow(row);
        parts_->addStretch();
        if (auto* alone = grid_->itemAtPosition(row_, 1)) parts_->insertWidget(0, alone->widget());
        grid_->addWidget(row, row_, 1);
    }
    parts_->insertWidget(parts_->count() - 1, widget);
    if (lead_ != nullptr) dependents_.emplace_back(lead_, widget);
}

// ---- making

QWidget* SettingsPageForm::Make(const SettingsControl& control) {
    switch (control.Kind) {
    case SettingsControlKind::CheckBox:
        return MakeCheckBox(control);
    case SettingsControlKind::List:
        return MakeList(control);
    case SettingsControlKind::Options:
        return MakeOptions(control);
    case SettingsControlKind::TextBox:
        return MakeTextBox(control);
    case SettingsControlKind::ColorBox:
        return MakeColorBox();
    case SettingsControlKind::Warning:
        return MakeWarning(control);
    }
    return new QWidget;
}

QWidget* SettingsPageForm::MakeCheckBox(const SettingsControl& control) {
    auto* box = new AtOnce<QCheckBox>(Caption(control.Caption));
    const auto field = control.Check;
    fills_.emplace_back([this, box, field] { box->setChecked(dialog_.Controls.chkSettings.*field); });
    connect(box, &QCheckBox::toggled, this, [this, field, &control](bool on) {
        dialog_.Controls.chkSettings.*field = on;
        Changed(control);
    });
    return box;
}

QWidget* SettingsPageForm::MakeList(const SettingsControl& control) {
    auto* list = new QComboBox;
    list->setMinimumWidth(leastListWidth);
    for (const auto& entry : EntriesOf(control)) list->addItem(Text(Tr(main_, entry.Caption)));
    const auto field = control.Choice;
    fills_.emplace_back([this, list, field] { list->setCurrentIndex(dialog_.Controls.*field); });
    connect(list, &QComboBox::currentIndexChanged, this, [this, field, &control](int place) {
        if (filling_) return;
        dialog_.Controls.*field = place;
        Changed(control);
    });
    return list;
}

QWidget* SettingsPageForm::MakeOptions(const SettingsControl& control) {
    auto* row = new QWidget;
    auto* parts = BareRow(row);
    auto* group = new QButtonGroup(row);
    for (const auto& entry : control.Entries) {
        auto* option = new AtOnce<QRadioButton>(Caption(entry.Caption));
        const QString tip = Text(Tr(main_, entry.Tip));
        option->setToolTip(PlainTip(tip));
        option->setAccessibleDescription(tip);
        group->addButton(option, static_cast<int>(group->buttons().size()));
        parts->addWidget(option);
    }
    const auto field = control.Choice;
    fills_.emplace_back([this, group, field] {
        if (auto* option = group->button(dialog_.Controls.*field)) option->setChecked(true);
        StopAtChosen(*group);
    });
    connect(group, &QButtonGroup::idToggled, this, [this, field, &control](int place, bool on) {
        if (filling_ || !on) return;
        dialog_.Controls.*field = place;
        Changed(control);
    });
    return row;
}

QWidget* SettingsPageForm::MakeTextBox(const SettingsControl& control) {
    auto* box = new QLineEdit;
    box->setMaxLength(control.TextLimit);
    box->setFixedWidth(WidthOf(control));
    if (control.TextLimit == 1) box->setAlignment(Qt::AlignCenter);
    if (control.Text == &SettingsValues::txtHotkey) txtHotkey_ = box;
    const auto field = control.Text;
    fills_.emplace_back([this, box, field] {
        const QString text = Text(dialog_.Controls.*field);
        if (box->text() == text) return; // the caret stays
        box->setText(text);
        box->setCursorPosition(0);
    });
    connect(box, &QLineEdit::textEdited, this, [this, field, &control](const QString& text) {
        dialog_.Controls.*field = Bytes(text);
        Changed(control);
    });
    return box;
}

QWidget* SettingsPageForm::MakeColorBox() {
    auto* button = new ColorButton({});
    button->setAutoDefault(false);
    fills_.emplace_back([this, button] { button->Show(dialog_.Controls.picDockBorder); });
    connect(button, &QPushButton::clicked, this, [this, button] {
        dialog_.picDockBorder_Click();
        button->Show(dialog_.Controls.picDockBorder);
        ShowState();
        changed_();
    });
    return button;
}

QWidget* SettingsPageForm::MakeWarning(const SettingsControl& control) {
    auto* row = new QWidget;
    auto* parts = BareRow(row);
    auto* sign = new QLabel;
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    auto* words = new QLabel(Text(Tr(main_, control.Caption)));
    QFont bold = words->font();
    bold.setBold(true);
    words->setFont(bold);
    parts->addWidget(sign);
    parts->addWidget(words);
    // Its place is kept while it does not show, so that nothing jumps when it does.
    QSizePolicy keeps = row->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    row->setSizePolicy(keeps);
    txtGlobalHotkey_ = row;
    return row;
}

} // namespace quill
