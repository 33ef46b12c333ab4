// The fake computer's session: no display, no loop. Run plays what the test put into OnRun and then returns.
#pragma once

#include "platform/session.h"

#include <functional>
#include <optional>

namespace quill::fake {

class FakeSession : public Session {
public:
    Status OpenDisplay() override {
        ++DisplayOpened;
        return DisplayFailure ? Status(*DisplayFailure) : Status();
    }
    void Attach(frmMain& main) override {
        Attached = &main;
        QuitCode.reset(); // what an earlier process ended with
        if (OnAttach) OnAttach(&main);
    }
    void Detach() override {
        Attached = nullptr;
        if (OnAttach) OnAttach(nullptr);
    }
    int Run() override {
        ++Runs;
        if (OnRun && !QuitCode) OnRun();
        return QuitCode.value_or(NeverQuit);
    }
    void Quit(int code) override {
        if (!QuitCode) QuitCode = code;
        if (OnQuit) OnQuit();
    }
    void ProcessPending() override {
        ++Pendings;
        if (OnPending) OnPending();
    }
    void ShowSplashNow() override {
        ++SplashesShown;
        if (OnSplash) OnSplash();
    }
    bool ReducedMotion() const override { return LessMotion; }
    Color AccentColor() const override { return Accent; }
    void PrintOut(const std::string& text) override { Out += text; }
    void PrintError(const std::string& text) override { Err += text; }

    static constexpr int NeverQuit = -1; // what Run returns when OnRun ended and nobody called Quit

    std::optional<Failure> DisplayFailure; // OpenDisplay fails with it
    bool LessMotion = false;
    Color Accent = 0xD47800;
    int DisplayOpened = 0;
    frmMain* Attached = nullptr;
    int Runs = 0;
    int Pendings = 0;
    int SplashesShown = 0;
    std::optional<int> QuitCode;
    std::string Out, Err;
    std::function<void()> OnRun; // the scene that is played inside the loop
    std::function<void()> OnQuit, OnPending, OnSplash;
    std::function<void(frmMain*)> OnAttach; // null when detached
};

} // namespace quill::fake
