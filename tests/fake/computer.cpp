#include "fake/computer.h"

namespace quill::fake {

namespace {

constexpr const char* Beside[] = {"emptyicon.ico",   "note.ico",         "reminder.ico",
                                  "rss.ico",         "rss-small.ico",    "rss-small2.ico",
                                  "rss-small_t.ico", "rss-small_t2.ico", "alarm.wav"};

} // namespace

Computer::Computer() {
    for (const auto& [which, folder] : Places.Folders) Files.PutFolder(folder);
    for (const char* name : Beside) Files.Put(Places.Data + "/" + name, "data");
    Files.Put(Places.Program + "/quillmere", "program", 0700);
    Files.Put(Places.Program + "/Reloader", "program", 0700);
    Files.PutFolder(Places.Data + "/Skin/Buttons/Modern Dark");
    Files.LogRoot = SettingsFolder + "/";
    Session.OnQuit = [this] { Questions.Ending = true; };
}

Platform Computer::MakePlatform(quill::Files& files) {
    return {files, Places,    Clock,  Instance, Session, Windows, Shell,   Questions, Dialogs,   Drags,
            Texts, Catalogue, Images, Worker,   Zip,     Tray,    Hotkeys, Counters,  Clipboard, Web};
}

void Computer::EndProcess() {
    Clock.StopEverything();
    Worker.Drop();
    Session.Attached = nullptr;
    Questions.Ending = false;
    Windows.EndProcess();
    Tray.ShellTrayRemove();
    Hotkeys.UnregisterHotKey();
    Counters.CloseQuery();
    Web.EndProcess();
}

} // namespace quill::fake
