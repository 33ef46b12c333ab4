// Creation of shortcuts and pictures: the rows behind everything that can be started or looked at.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

// Both append one row; its index is NextShortcutIndex - 1 afterwards. The limits are the callers' business.
void AddFile(frmMain& Main, const std::string& path, Parent target, Point position);
void AddURL(frmMain& Main, Parent target, const std::string& label, const std::string& address,
            Point position);
// The row and its frame; Missing is set when the file can't be read as a picture. ok is false only for a
// manual add of a missing file.
void AddPicture(frmMain& Main, const std::string& path, Parent target, const Rect& place, bool& ok);
void DeleteShortcut(frmMain& Main, int Index);
void DeletePicture(frmMain& Main, int Index);
// Caption of a path: the file name without ".lnk", ".exe", ".url" in any case.
std::string CaptionOfPath(const std::string& path);
std::string ExpandDriveMarker(const frmMain& Main, const std::string& path);
std::string ToRelativePath(const frmMain& Main, const std::string& path);
bool ShouldUseRelativePath(const frmMain& Main, const std::string& path);

} // namespace quill
