#include "qt/shortcuts/started.h"

#include "qt/shortcuts/first_window.h"
#include "qt/shortcuts/launch_scope.h"

namespace quill {
namespace {

std::string FileName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

} // namespace

StartNotice::StartNotice(const std::string& caption, const std::string& program, Feedback feedback)
    : name_(FileName(program)), token_(AnnounceStart(caption, program, feedback)) {}

StartNotice::~StartNotice() {
    if (!runs_) EndStartNotice(token_);
}

void StartNotice::Runs(int process, int show) {
    runs_ = true;
    GiveScope(name_, process);
    FollowFirstWindow({process, token_, show});
}

} // namespace quill
