// Drawing: the canvas on which the logic paints a surface. Coordinates are twips from the surface's upper
// left corner; the canvas rounds edges to device pixels, so that neighbours meet without a seam at every
// scaling. A colour may be one of the system's (system_colors.h).
#pragma once

#include "platform/geometry.h"
#include "platform/texts.h"

#include <string>
#include <string_view>
#include <vector>

namespace quill {

enum class TextAlign { Left, Center, Right };

struct TextStyle {
    FontSpec Font;
    Color Ink = 0;
    TextAlign Align = TextAlign::Left;
    bool WordBreak = false;
    bool Elide = false; // cut with an ellipsis where it does not fit
    bool Clip = false;  // cut at the edges of its place
    bool VerticalCenter = false;
    bool Halo = false; // a soft edge in HaloColor, for text on a ground of changing brightness
    Color HaloColor = 0;
};

enum class PenStyle { Solid, Dash, Dot, DashDot, DashDotDot };

struct Pen {
    int Width = 0; // pixels, 0 for none
    Color Ink = 0;
    PenStyle Style = PenStyle::Solid;
};

// Where the icon of a file comes from. Empty File and Kind "": nothing.
struct IconSource {
    std::string File;      // the target itself, an .ico or image file; "https://" for what opens addresses
    std::string ThemeName; // a name of the icon theme, asked first when it is not empty
    bool IsImage = false;  // File is the image itself and not something that has an icon
};

class Canvas {
public:
    virtual ~Canvas() = default;

    // The part that is to be painted; what lies outside may be skipped.
    virtual Rect Exposed() const = 0;

    virtual void FillRect(const Rect& place, Color color, float opacity = 1) = 0;
    // The line runs inside the place, and the fill nowhere under it.
    virtual void RoundRect(const Rect& place, float radius, Color fill, Pen pen, float opacity = 1) = 0;
    virtual void Line(Point from, Point to, Pen pen) = 0;
    virtual void Text(const Rect& place, std::string_view text, const TextStyle& style) = 0;
    // One line of text that begins at a place and runs at an angle, counter-clockwise in tenths of a degree.
    virtual void RotatedText(Point at, std::string_view text, const TextStyle& style, int tenths) = 0;
    // A monochrome symbol of ours by its name ("lock", "fold" ...), tinted.
    virtual void Symbol(std::string_view name, const Rect& place, Color ink, float opacity = 1) = 0;
    // Icons and pictures are fetched when they are first seen; until then nothing is drawn and the place is
    // painted again when they come. False: not there (yet).
    virtual bool Icon(const IconSource& source, const Rect& place) = 0;
    virtual bool Picture(const std::string& path, const Rect& place) = 0;
    // Whether a picture would hide all that lies under it: it is there, and no part of it is see-through.
    virtual bool Hides(const std::string& /*path*/, const Rect& /*place*/) { return false; }
    // A button image of the current set ("lock", "dock" ...).
    virtual bool Button(const std::string& path, const Rect& place, Color fallbackInk,
                        std::string_view fallbackSymbol) = 0;

    virtual void PushClip(const Rect& place, float radius = 0) = 0;
    virtual void PopClip() = 0;
};

// What a picture or an icon looks like, row by row.
struct PixelGrid {
    int Width = 0, Height = 0;
    std::vector<Color> Colors; // -1 where it is transparent
};

class Images {
public:
    virtual ~Images() = default;

    // Natural size of a picture file in twips, read from its head. Width 0 when it can't be read as a
    // picture.
    virtual Size PictureSize(const std::string& path) const = 0;
    // The pixels of an icon at this size, fetched now; 0 by 0 when there is none.
    virtual PixelGrid PixelsOf(const IconSource& source, int edgePixels) const = 0;
    // Forgets what was fetched for a path, so that it is read again.
    virtual void Forget(const std::string& path) = 0;
};

} // namespace quill
