#include "qt/qt_platform.h"

#include "posix/counters_posix.h"
#include "posix/files_posix.h"
#include "posix/instance_posix.h"
#include "posix/places_posix.h"
#include "qt/appearance/qt_images.h"
#include "qt/appearance/qt_texts.h"
#include "qt/core/display.h"
#include "qt/core/open_questions.h"
#include "qt/core/qt_clock.h"
#include "qt/core/qt_dialogs.h"
#include "qt/core/qt_questions.h"
#include "qt/core/qt_session.h"
#include "qt/dock/qt_hotkeys.h"
#include "qt/dock/qt_tray.h"
#include "qt/dock/qt_windows.h"
#include "qt/shortcuts/gio_shell.h"
#include "qt/shortcuts/qt_clipboard.h"
#include "qt/shortcuts/qt_drags.h"
#include "qt/system/gettext_catalogue.h"
#include "qt/system/lib_zip.h"
#include "qt/system/qt_web.h"
#include "qt/system/qt_worker.h"

namespace quill::qt {

// In the order in which they need each other; they end in the opposite one.
struct QtPlatform::Parts {
    FilesPosix Files;
    PlacesPosix Places{PlacesSourcesOfSystem()};
    InstancePosix Instance{InstanceOptionsOfSystem()};
    LibZip Zip;
    GettextCatalogue Catalogue{Places};
    Attachment Attached;
    QtWorker Worker;
    DisplayHolder Display;
    OpenQuestions Open{Attached};
    QtClock Clock{Attached};
    QtSession Session{{Attached, Display, Open, Instance, Places, Worker}};
    QtWindows Windows{Attached, Display};
    GioShell Shell{Worker, Catalogue};
    QtQuestions Questions{Display, Open};
    QtDialogs Dialogs{Display, Open};
    QtDrags Drags{Attached, Display, Open};
    QtTexts Texts{Display};
    QtImages Images{Display};
    QtTray Tray{Attached, Display};
    QtHotkeys Hotkeys{Attached, Display};
    CountersPosix Counters;
    QtClipboard Clipboard{Display};
    QtWeb Web{Attached};

    // What runs on the thread works for the display, and ends before it.
    ~Parts() { Worker.Finish(); }
};

QtPlatform::QtPlatform(int&, char**) : parts_(std::make_unique<Parts>()) {}
QtPlatform::~QtPlatform() = default;

Platform QtPlatform::Ports() {
    auto& parts = *parts_;
    return {parts.Files,   parts.Places,    parts.Clock,     parts.Instance,  parts.Session,
            parts.Windows, parts.Shell,     parts.Questions, parts.Dialogs,   parts.Drags,
            parts.Texts,   parts.Catalogue, parts.Images,    parts.Worker,    parts.Zip,
            parts.Tray,    parts.Hotkeys,   parts.Counters,  parts.Clipboard, parts.Web};
}

} // namespace quill::qt
