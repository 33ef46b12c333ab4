// Favicon: the small picture of a website, fetched once and kept in the settings folder's icon cache. It is
// fetched beside all else; what comes is only kept when it is a picture, and no failure is told.
#pragma once

#include "core/frmMain.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quill {

inline constexpr std::uint64_t LargestFavicon = 1024 * 1024; // bytes

// Where a site keeps its picture; empty where the address has no host. Names and passwords in the address
// are not passed on.
std::string FaviconAddress(std::string_view address);
// The shortcut's Icon is the cached file when it has come, and the workspace is saved. A shortcut that died
// or changed meanwhile is left.
void FetchFavicon(frmMain& Main, int Index);
// For the web addresses among the selected shortcuts. Saved once, when the last of them has come or failed.
void mnuDownloadFavIcon_Click(frmMain& Main);

} // namespace quill
