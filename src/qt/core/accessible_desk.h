// AccessibleDesk: what the workspace tells to assistive technology. Surfaces get interfaces of their own
// kind. While nobody listens that is all; once somebody does, every turn of marks is followed by the news in
// it: what came and went, changed names and states, and where the keyboard is.
#pragma once

#include "core/surfaces.h"
#include "qt/core/attachment.h"

#include <QAccessible>
#include <QObject>

#include <functional>

namespace quill {

struct MarkSet;
class SurfaceWidget;

class AccessibleDesk : private QAccessible::ActivationObserver {
public:
    using SurfaceFinder = std::function<SurfaceWidget*(SurfaceId)>; // null: it has no widget

    AccessibleDesk(const Attachment& attached, SurfaceFinder find);
    ~AccessibleDesk();
    AccessibleDesk(const AccessibleDesk&) = delete;
    AccessibleDesk& operator=(const AccessibleDesk&) = delete;

    void Follow(const MarkSet& set); // after the screen is what the tables say

private:
    void accessibilityActiveChanged(bool active) override;
    void FollowAll();
    void FollowSurface(SurfaceId id);
    void FollowFocus();
    void TellFocus();

    const Attachment& attached_;
    SurfaceFinder find_;
    QObject signals_;
    ElementId focus_; // as it was told last; None while it is not shown
    SurfaceId focusSurface_;
};

} // namespace quill
