#include "qt/appearance/settings_form.h"

#include "core/tr.h"
#include "qt/appearance/settings_page.h"
#include "qt/appearance/told_letters.h"
#include "qt/core/convert.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quill {
namespace {

constexpr QSize frameRoom{20, 50}; // pixels that a window manager may put around

// As large as its page wants to be; it scrolls only where the screen is smaller.
class PageScroll : public QScrollArea {
public:
    explicit PageScroll(QWidget* page) {
        setWidget(page);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        page->setAutoFillBackground(false); // the tab's own ground shows
        viewport()->setAutoFillBackground(false);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

frmSettingsForm::frmSettingsForm(frmSettings& dialog, QWidget* parent)
    : Form(Text(dialog.Title()), parent), dialog_(dialog), tabs_(new QTabWidget) {
    setObjectName(QStringLiteral("frmSettings"));
    AddApply();
    AddPages();
    ShowState();
    Show(dialog_.Page());
    FitScreen();
}

void frmSettingsForm::FitScreen() {
    resize(sizeHint().boundedTo(screen()->availableSize() - frameRoom));
}

void frmSettingsForm::AddApply() {
    cmdApply_ = AddButton(Text(Tr(dialog_.Workspace(), "A&pply")));
    cmdApply_->setObjectName(QStringLiteral("cmdApply"));
    connect(cmdApply_, &QPushButton::clicked, this, [this] {
        dialog_.cmdApply_Click();
        ShowOutcome();
    });
}

void frmSettingsForm::AddPages() {
    const auto& main = dialog_.Workspace();
    auto* words = new QLabel(Text(Tr(main, "Go over each setting with the mouse to find out more")));
    words->setTextFormat(Qt::PlainText);
    Rows().addWidget(words);
    Rows().addWidget(tabs_);
    tabs_->setObjectName(QStringLiteral("lblTab"));
    tabs_->tabBar()->setToolTip(Text(Tr(main, "Ctrl+Tab to switch tabs")));
    QString letters = TakenMnemonics();
    QStringList captions;
    for (const auto& page : SettingsPages()) captions += Text(Tr(main, page.Caption));
    captions = GiveToldLetters(captions, letters);
    for (const auto& caption : captions) letters += MarkedLetter(caption);
    for (const auto& page : SettingsPages()) {
        auto* form = new SettingsPageForm(dialog_, page.Page, letters, [this] { ShowState(); });
        form->setObjectName(QLatin1String(page.Name));
        tabs_->addTab(new PageScroll(form), captions[static_cast<qsizetype>(pages_.size())]);
        pages_.push_back(form);
    }
    AlignPages();
}

// What stands beside the captions begins at the same place on every page.
void frmSettingsForm::AlignPages() {
    int width = 0;
    for (const auto* page : pages_) width = std::max(width, page->LeadWidth());
    for (auto* page : pages_) page->SetLeadWidth(width);
}

void frmSettingsForm::Show(SettingsPage page) {
    const auto names = SettingsPages();
    for (std::size_t tab = 0; tab < names.size(); ++tab) {
        if (names[tab].Page != page) continue;
        tabs_->setCurrentIndex(static_cast<int>(tab));
        if (dialog_.IsHotkeyEmphasized())
            pages_[tab]->MarkHotkey();
        else
            pages_[tab]->First()->setFocus();
    }
}

void frmSettingsForm::ShowState() {
    cmdApply_->setEnabled(dialog_.cmdApplyEnabled());
}

// What was applied may stand otherwise than it was typed.
void frmSettingsForm::ShowOutcome() {
    for (auto* page : pages_) page->Fill();
    ShowState();
    if (dialog_.IsHotkeyEmphasized()) Show(SettingsPage::FrameKBNavigation);
}

void frmSettingsForm::accept() {
    if (dialog_.cmdOK_Click()) return QDialog::accept();
    ShowOutcome();
}

} // namespace quill
