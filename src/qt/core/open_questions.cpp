#include "qt/core/open_questions.h"

#include "core/frmMain.h"
#include "dock/docking.h"

#include <QDialog>
#include <QPointer>

#include <utility>

namespace quill {
namespace {

void Cancel(QWidget& question) {
    if (auto* dialog = qobject_cast<QDialog*>(&question))
        dialog->done(QDialog::Rejected);
    else
        question.close();
}

} // namespace

void OpenQuestions::CancelAll() {
    const auto open = open_; // each is taken off by its own end
    for (auto cancel = open.rbegin(); cancel != open.rend(); ++cancel) (*cancel)();
}

OpenQuestions::Entry::Entry(OpenQuestions& questions, QWidget& widget)
    : Entry(questions, [question = QPointer<QWidget>(&widget)] {
          if (question) Cancel(*question);
      }) {}

OpenQuestions::Entry::Entry(OpenQuestions& questions, std::function<void()> cancel) : questions_(questions) {
    questions_.open_.push_back(std::move(cancel));
    if (questions_.attached_.Main != nullptr)
        pause_ = std::make_unique<DialogPause>(*questions_.attached_.Main);
}

OpenQuestions::Entry::~Entry() {
    questions_.open_.pop_back();
    if (questions_.open_.empty() && questions_.AllClosed) questions_.AllClosed();
}

} // namespace quill
