// The outside world as the logic sees it: one port a subject, each told in its own header. The Qt backend and
// the fake computer of the tests are the two implementations.
//
//   files.h      the file tree                 session.h    display, event loop, standard streams
//   places.h     folders, mount points         windows.h    top-level windows, monitors, cursor
//   clock.h      time, timers, frames          questions.h  boxes, inputs, menus
//   instance.h   the one running copy          texts.h      fonts, measuring, catalogue
//   shell.h      starting things               drawing.h    canvas and images
//   work.h       jobs off the thread           zip.h        archives
//   dialogs.h    forms                         drags.h      drag and drop
//   tray.h       the notification area         hotkeys.h    a key of the whole desktop
//   counters.h   memory and processors      clipboard.h  what was copied
//   web.h        what is fetched from other machines
#pragma once

namespace quill {

class Files;
class Places;
class Clock;
class Instance;
class Session;
class Windows;
class Shell;
class Questions;
class Dialogs;
class Drags;
class Texts;
class Catalogue;
class Images;
class Worker;
class Zip;
class Tray;
class Hotkeys;
class Counters;
class Clipboard;
class Web;

struct Platform {
    quill::Files& Files;
    quill::Places& Places;
    quill::Clock& Clock;
    quill::Instance& Instance;
    quill::Session& Session;
    quill::Windows& Windows;
    quill::Shell& Shell;
    quill::Questions& Questions;
    quill::Dialogs& Dialogs;
    quill::Drags& Drags;
    quill::Texts& Texts;
    quill::Catalogue& Catalogue;
    quill::Images& Images;
    quill::Worker& Worker;
    quill::Zip& Zip;
    quill::Tray& Tray;
    quill::Hotkeys& Hotkeys;
    quill::Counters& Counters;
    quill::Clipboard& Clipboard;
    quill::Web& Web;
};

} // namespace quill
