// Palette: colours and small shapes that the painters share, derived from the few colours that a person sets.
#pragma once

#include "core/frmMain.h"
#include "platform/drawing.h"

#include <string>
#include <string_view>

namespace quill {

inline constexpr double ReadableContrast = 4.5; // of a text to its ground
inline constexpr float CornerRadius = 8 * TwipsPerPixel;

Rect Inset(const Rect& rect, float by);
Rect Shifted(const Rect& rect, Point by);
// A square of this edge in the middle of a place.
Rect CenteredIn(const Rect& place, float edge);
void Outline(Canvas& canvas, const Rect& place, Color color, float width, float opacity = 1);

// Black or white, whichever is read better on this ground; 4.5 to 1 at least.
Color ExtremeOn(Color ground);

// The workspace's own colour of letters where it can be read on this ground, else black or white.
Color InkOn(const frmMain& Main, Color ground);

// The halo of a text where its ink alone does not stand out from the ground.
void AddHalo(TextStyle& style, Color ink, Color ground);

// The lines of a text that fit the height at most, so that a long note costs what is seen of it. Line ends
// are LF.
std::string FirstLines(std::string_view text, int count);

} // namespace quill
