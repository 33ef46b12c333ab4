// Accessible elements: what of a surface is told to those who do not see it, and what they can do there by
// name. It is the walk over elements with the few that say nothing of their own left out: the surface itself
// stands for its ground, its frame and its image, and a shortcut's icon is part of its label. What has no
// place on the screen at the moment can still be described, as long as its object lives.
#pragma once

#include "core/frmMain.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

// In the order of the walk.
std::vector<ElementId> ToldElements(const frmMain& Main, SurfaceId surface);
// The told element at a point of the surface; Kind None where the surface itself is.
ElementId ToldElementAt(const frmMain& Main, SurfaceId surface, Point at);

struct ToldPlace {
    // Twips on the surface, a shortcut's icon and label together: what is seen, or where it would be.
    Rect Place;
    bool Scrolled = false; // out of its frame, and can be scrolled back
};
// Nothing while it does not show.
std::optional<ToldPlace> PlaceOfTold(const frmMain& Main, SurfaceId surface, ElementId element);
// Its object lives, and lies on this surface.
bool LiesOn(const frmMain& Main, SurfaceId surface, ElementId element);

// Element None: the surface itself, which bears its object's name. Tip: what a container's foot says.
ElementInfo DescribeTold(const frmMain& Main, SurfaceId surface, ElementId element);

// What can be done with an element, or (None) a surface, as it stands now: "Start", "Unfold", "Show Menu".
std::vector<std::string> ActionsOf(const frmMain& Main, SurfaceId surface, ElementId element);
// False: nothing of that name can be done there now. May ask a question or show a menu, so it waits for a
// person.
bool DoAction(frmMain& Main, SurfaceId surface, ElementId element, std::string_view action);
// Brings the keyboard to an element that it can be on.
bool FocusElement(frmMain& Main, SurfaceId surface, ElementId element);

} // namespace quill
