// Computer: the whole fake computer, wired together, with the folders of an ordinary user. It survives the
// process that runs on it: Reboot-like restarts keep the tree and forget the process.
//
//     fake::Computer computer;
//     frmMain Main(computer.MakePlatform());
#pragma once

#include "fake/clipboard.h"
#include "fake/clock.h"
#include "fake/counters.h"
#include "fake/dialogs.h"
#include "fake/drags.h"
#include "fake/files.h"
#include "fake/hotkeys.h"
#include "fake/images.h"
#include "fake/instance.h"
#include "fake/places.h"
#include "fake/questions.h"
#include "fake/session.h"
#include "fake/shell.h"
#include "fake/texts.h"
#include "fake/tray.h"
#include "fake/web.h"
#include "fake/windows.h"
#include "fake/work.h"
#include "fake/zip.h"
#include "platform/platform.h"

namespace quill::fake {

inline const std::string SettingsFolder = "/home/user/.config/Quillmere";

struct Computer {
    Computer();
    Computer(const Computer&) = delete;
    Computer& operator=(const Computer&) = delete;

    Platform MakePlatform() { return MakePlatform(Files); }
    Platform MakePlatform(quill::Files& files); // with another file tree, as the disk's own
    void EndProcess(); // timers, jobs, windows and the attached workspace are gone; disk and logs stay

    FakeFiles Files;
    FakePlaces Places;
    FakeClock Clock;
    FakeInstance Instance;
    FakeSession Session;
    FakeWindows Windows;
    FakeShell Shell{Files, Clock};
    FakeQuestions Questions;
    FakeDialogs Dialogs;
    FakeDrags Drags;
    FakeTexts Texts;
    FakeCatalogue Catalogue;
    FakeImages Images;
    FakeWorker Worker;
    FakeZip Zip{Files};
    FakeTray Tray;
    FakeHotkeys Hotkeys;
    FakeCounters Counters;
    FakeClipboard Clipboard;
    FakeWeb Web;
};

} // namespace quill::fake
