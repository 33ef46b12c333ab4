#include "qt/core/asker.h"

#include "qt/dock/native_window.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

namespace quill {

QWidget* Asker::Owner() const {
    if (QWidget* dialog = QApplication::activeModalWidget()) return dialog;
    auto& main = display_.Get().Stage.Main();
    return main.isVisible() ? &main : nullptr;
}

// The workspace is of a kind to which many window managers do not give the keyboard back by themselves.
int Asker::Ask(QDialog& dialog) {
    QWidget* owner = Owner();
    auto& main = display_.Get().Stage.Main();
    const OpenQuestions::Entry entry(open_, dialog);
    if (main.isVisible()) qt::PrepareDialogAbove(dialog, main);
    if (owner != nullptr && owner != &main && dialog.windowHandle() != nullptr)
        dialog.windowHandle()->setTransientParent(owner->windowHandle());
    const int answer = dialog.exec();
    if (open_.IsEnding()) return QDialog::Rejected;
    if (owner != nullptr) qt::TakeFocus(*owner);
    return answer;
}

} // namespace quill
