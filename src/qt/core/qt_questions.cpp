#include "qt/core/qt_questions.h"

#include "qt/core/box_text.h"
#include "qt/core/convert.h"
#include "qt/core/frmInput.h"

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

namespace quill {
namespace {

constexpr int iconFlags = 16 | 32 | 64;

QMessageBox::Icon IconOf(int flags) {
    switch (flags & iconFlags) {
    case BoxCritical:
        return QMessageBox::Critical;
    case BoxQuestion:
        return QMessageBox::Question;
    case BoxWarning:
        return QMessageBox::Warning;
    case BoxInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

bool IsYesNo(int flags) {
    return (flags & BoxYesNo) != 0;
}

void SetButtons(QMessageBox& box, int flags) {
    if (!IsYesNo(flags)) return box.setStandardButtons(QMessageBox::Ok);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
}

int AnswerOf(const QMessageBox& box, int flags) {
    const auto* clicked = box.clickedButton();
    if (!IsYesNo(flags)) return clicked != nullptr ? AnswerOk : AnswerCancel;
    return clicked != nullptr && clicked == box.button(QMessageBox::Yes) ? AnswerYes : AnswerNo;
}

QString LineText(const MenuLine& line) {
    return line.Key.empty() ? Text(line.Caption) : Text(line.Caption) + QLatin1Char('\t') + Text(line.Key);
}

void Fill(QMenu& menu, const std::vector<MenuLine>& lines) {
    for (const auto& line : lines) {
        if (line.Caption == "-") {
            menu.addSeparator();
            continue;
        }
        if (!line.Children.empty()) {
            QMenu* below = menu.addMenu(Text(line.Caption));
            below->setEnabled(line.Enabled);
            Fill(*below, line.Children);
            continue;
        }
        QAction* action = menu.addAction(LineText(line));
        action->setEnabled(line.Enabled);
        action->setCheckable(line.Checkable);
        action->setChecked(line.Checked);
        action->setData(line.Id);
    }
}

} // namespace

int QtQuestions::MsgBox(const std::string& text, int flags, const std::string& title) {
    const int cancelled = IsYesNo(flags) ? AnswerNo : AnswerCancel;
    if (open_.IsEnding()) return cancelled;
    QMessageBox box(asker_.Owner());
    box.setTextFormat(Qt::PlainText);
    box.setText(BoxText(Text(text)));
    box.setWindowTitle(Text(title));
    box.setIcon(IconOf(flags));
    if (flags & BoxSystemModal) box.setWindowFlag(Qt::WindowStaysOnTopHint);
    SetButtons(box, flags);
    asker_.Ask(box);
    return open_.IsEnding() ? cancelled : AnswerOf(box, flags);
}

bool QtQuestions::AskInput(InputQuestion& question) {
    if (open_.IsEnding()) return false;
    frmInput form(question, asker_.Owner());
    return asker_.Ask(form) == QDialog::Accepted;
}

int QtQuestions::PopupMenu(const std::vector<MenuLine>& lines, Point place) {
    if (open_.IsEnding() || lines.empty()) return -1;
    QMenu menu(asker_.Owner());
    Fill(menu, lines);
    const OpenQuestions::Entry entry(open_, menu);
    // A line that assistive technology presses is triggered behind the back of the loop.
    const QAction* chosen = nullptr;
    QObject::connect(&menu, &QMenu::triggered, &menu, [&](QAction* line) {
        chosen = line;
        menu.close();
    });
    menu.exec(PixelPoint(place));
    return chosen != nullptr && !open_.IsEnding() ? chosen->data().toInt() : -1;
}

} // namespace quill
