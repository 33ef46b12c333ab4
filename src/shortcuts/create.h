// Creation of shortcuts and pictures: the rows behind everything that can be started or looked at.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

// A shortcut in the making: what a path or an address would become.
struct NewShortcut {
    std::int16_t Type = TypeFile;
    std::string Path; // as it is stored
    std::string Caption;
    std::string Parameters, StartIn; // from a link file
    bool Followed = false;           // a link file was left behind for what it stands for
};

// By [ExtractURLs] a link file is followed, but for a Folder Connector, which shows the files themselves.
// Nothing of the path is cut: blanks at its end belong to a name that exists.
NewShortcut ShortcutForFile(const frmMain& Main, const std::string& path, Parent target);
NewShortcut ShortcutForAddress(const std::string& label, const std::string& address);
int AddShortcut(frmMain& Main, NewShortcut shortcut, Parent target, Point position); // its index

// Both append one row; its index is NextShortcutIndex - 1 afterwards. The limits are the callers' business.
// While the workspace loads the path is taken as it is written; otherwise blanks and a separator at its end
// go, and a link file is followed.
void AddFile(frmMain& Main, const std::string& path, Parent target, Point position);
void AddURL(frmMain& Main, Parent target, const std::string& label, const std::string& address,
            Point position);
// The row and its frame; Missing is set when the file can't be read as a picture. ok is false only for a
// manual add of a missing file.
void AddPicture(frmMain& Main, const std::string& path, Parent target, const Rect& place, bool& ok);
void DeleteShortcut(frmMain& Main, int Index);
void DeletePicture(frmMain& Main, int Index);
// The label in the colour, size and weight that the record and its parent say; to be measured again.
void ApplyShortcutStyle(frmMain& Main, int Index);
void TakeShortcutStyle(frmMain& Main, int Index); // the same for the painter: marks nothing
// Colour of its caption: its own, or that of where it lies.
Color ShortcutInk(const frmMain& Main, int Index);
std::string WithoutEndSeparator(std::string path); // the root keeps its own
// Caption of a path: the file name without ".lnk", ".exe", ".url" in any case.
std::string CaptionOfPath(const std::string& path);
// "@" in front is the mount point that holds the program; the older form with a drive's colon and
// backslashes is understood. Any other path comes back as it is.
std::string ExpandDriveMarker(const frmMain& Main, const std::string& path);
std::string ToRelativePath(const frmMain& Main, const std::string& path);
bool ShouldUseRelativePath(const frmMain& Main, const std::string& path);
std::string StoredPath(const frmMain& Main, const std::string& path); // with the marker where that is so
// The path as the file tree knows it: the marker expanded, and a "file://" address decoded, which is how a
// path stands in the files that a line can't hold.
std::string ResolvedPath(const frmMain& Main, const std::string& path);

} // namespace quill
