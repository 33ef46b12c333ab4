// The core's own part of the workspace's state: how the program was started, the window and its title row.
#pragma once

#include "core/views.h"
#include "platform/windows.h"

#include <string>

namespace quill {

// What the command line asked for. The forms with "/" follow position rules on the lower-cased text, the
// usual spellings stand in any order.
struct StartOptions {
    std::string CommandLine; // lower-cased and trimmed
    bool Backup = false, Silent = false, Help = false, HelpBox = false, Version = false;
    bool NoSplash = false, LoadRss = false, QuietFeedNames = false, Toggle = false;
    std::string Unknown; // first switch with "--" that nobody knows; empty = none
};

// The window and what lies on picBack beside the objects. Places in Place are relative to the window.
struct WorkspaceView {
    Rect Window;      // frmMain on the virtual desktop
    Rect RestoreRect; // the one before it was maximised
    bool Visible = false;
    WindowState State = WindowState::Normal;
    Element picBack; // the surface
    quill::Color BackColor = 0x1A1306;
    quill::Color ForeColor = 0xFFFFFF;
    quill::Color FrameColor = 0; // behind picBack, what shows as the border
    Element picMoveMe;           // title row, in picBack
    quill::Color MoveMeColor = 0;
    Element lblCaption; // in picMoveMe
    std::string Caption;
    quill::Color CaptionForeColor = 0xFFFFFF;
    Element PicDock, PicLockToolbar, PicUnLockToolbar, PicMenu; // in picMoveMe
    bool TitleActive = true;
    std::string WallpaperFile; // resolved; empty = none
    std::string SplashText;
};

} // namespace quill
