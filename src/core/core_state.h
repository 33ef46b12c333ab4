// The core's own part of the workspace's state: how the program was started, the window and its title row.
#pragma once

#include "core/surfaces.h"
#include "core/views.h"
#include "platform/windows.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quill {

// What the command line asked for. The forms with "/" follow position rules on the lower-cased text, the
// usual spellings stand in any order.
struct StartOptions {
    std::string CommandLine; // lower-cased and trimmed
    bool Backup = false, Silent = false, Help = false, HelpBox = false, Version = false;
    bool NoSplash = false, LoadRss = false, QuietFeedNames = false, Toggle = false;
    std::string Unknown; // first switch with "--" that nobody knows; empty = none
};

// A picture of the button set that is loaded.
struct ButtonImage {
    std::string Name; // "rss", "lock", "unlock" or "dock"
    std::string File;
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
    Element ImgLock{{}, false};        // in picMoveMe; shown for a moment when a brief unlock is over
    Element FrameLinkGroup{{}, false}; // on picBack, below the title; sized by what it shows
    bool TitleActive = true;
    std::string WallpaperFile;            // resolved; empty = none
    Size WallpaperSize;                   // natural; 0 by 0 until it is first painted
    std::vector<ButtonImage> ButtonFiles; // of the set; what it lacks is drawn from a symbol
    std::string SplashText;
    std::int64_t SplashSince = 0; // GetTickCount when the load began
    bool SplashVisible = false;
    ElementId Focus;   // the element that the keyboard is on; Kind None: none
    ElementId Pressed; // the element of the last press, until the release
    SurfaceId PressedSurface;
    Point PressedAt;           // where on the desktop it was
    SurfaceId FocusSurface;    // and where it lies
    bool FocusVisible = false; // the keyboard was used last, so the focus is shown
};

} // namespace quill
