// The fake computer's dialogs: a scene of the test plays the person, with the dialog in hand; what nobody
// prepared is cancelled and counted.
#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <functional>
#include <vector>

namespace quill::fake {

class FakeDialogs : public Dialogs {
public:
    bool Show(frmConProperties& dialog) override { return Play(OnConProperties, dialog); }
    bool Show(frmSettings& dialog) override { return Play(OnSettings, dialog); }
    bool Show(frmEditLink& dialog) override { return Play(OnEditLink, dialog); }
    bool Show(frmInternetShortcut& dialog) override { return Play(OnInternetShortcut, dialog); }
    bool Show(TextQuestion& question) override { return Play(OnText, question); }
    std::optional<std::string> OpenFolder(const FileQuestion& question) override {
        FileQuestions.push_back(question);
        return Next(Folders);
    }
    std::optional<std::string> OpenFile(const FileQuestion& question) override {
        FileQuestions.push_back(question);
        return Next(Files);
    }
    std::optional<Color> ChooseColor(Color now, const std::string&) override {
        ColorsAsked.push_back(now);
        return Next(Colors);
    }

    // True: accepted.
    std::function<bool(frmConProperties&)> OnConProperties;
    std::function<bool(frmSettings&)> OnSettings;
    std::function<bool(frmEditLink&)> OnEditLink;
    std::function<bool(frmInternetShortcut&)> OnInternetShortcut;
    std::function<bool(TextQuestion&)> OnText;
    std::deque<std::optional<std::string>> Files; // answers in order; nothing: cancelled
    std::deque<std::optional<std::string>> Folders;
    std::deque<std::optional<Color>> Colors;
    std::vector<FileQuestion> FileQuestions;
    std::vector<Color> ColorsAsked;
    int Unexpected = 0;

private:
    template <class Scene, class Dialog> bool Play(const Scene& scene, Dialog& dialog) {
        if (scene) return scene(dialog);
        ++Unexpected;
        return false;
    }
    template <class Answer> Answer Next(std::deque<Answer>& answers) {
        if (answers.empty()) {
            ++Unexpected;
            return std::nullopt;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace quill::fake
