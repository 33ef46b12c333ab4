// Marks: what the logic has changed and the screen does not show yet. Logic only ever adds; the screen side
// takes all of them once a turn of its event loop. This is the only way from the tables to the screen.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace quill {

struct MarkSet {
    bool Everything = false;     // every surface, place and stacking
    bool Workspace = false;      // picBack with the shortcuts lying on it and the title row
    bool Stacking = false;       // the order of ZOrderList
    bool Splash = false;         // the splash's progress text
    bool Overlay = false;        // what lies over everything: its place and its picture
    bool Tip = false;            // frmTip: its text
    bool MiniDock = false;       // frmMiniDock: its colour
    bool MiniToolbar = false;    // frmMiniToolbar: what it shows
    bool JumpTo = false;         // PicJumpToLink: its place, its field and its picture
    bool QuickLaunch = false;    // frmQuickLaunch: what it shows
    std::vector<int> Containers; // place, visibility and content; may hold an index twice
    std::vector<int> Pictures;
    int EditNote = -1;      // the note box of this container is to take the keyboard; -1: none
    std::vector<int> Notes; // text or looks of the note box
    bool Empty() const {
        return !Everything && !Workspace && !Stacking && !Splash && !Overlay && !Tip && !MiniDock &&
               !MiniToolbar && !JumpTo && !QuickLaunch && EditNote == -1 && Containers.empty() &&
               Pictures.empty() && Notes.empty();
    }
};

class Marks {
public:
    void Everything() { pending_.Everything = true, Added(); }
    void Workspace() { pending_.Workspace = true, Added(); }
    void Stacking() { pending_.Stacking = true, Added(); }
    void Splash() { pending_.Splash = true, Added(); }
    void Overlay() { pending_.Overlay = true, Added(); }
    void Tip() { pending_.Tip = true, Added(); }
    void MiniDock() { pending_.MiniDock = true, Added(); }
    void MiniToolbar() { pending_.MiniToolbar = true, Added(); }
    void JumpTo() { pending_.JumpTo = true, Added(); }
    void QuickLaunch() { pending_.QuickLaunch = true, Added(); }
    void Container(int index) { pending_.Containers.push_back(index), Added(); }
    void Picture(int index) { pending_.Pictures.push_back(index), Added(); }
    void EditNote(int index) { pending_.EditNote = index, Added(); }
    void Note(int index) { pending_.Notes.push_back(index), Added(); }

    const MarkSet& Pending() const { return pending_; }
    MarkSet Take() {
        MarkSet taken;
        std::swap(taken, pending_);
        return taken;
    }

    // Called at the first mark after a Take, so that the screen side can arrange for a turn.
    std::function<void()> Wake;

private:
    void Added() {
        const bool first = !awake_;
        awake_ = true;
        if (first && Wake) Wake();
    }
    MarkSet pending_;
    bool awake_ = false;

    friend struct MarkTurn;
};

// Taken by the screen side: what is pending, and the next mark wakes again.
struct MarkTurn {
    explicit MarkTurn(Marks& marks) : Set(marks.Take()) { marks.awake_ = false; }
    MarkSet Set;
};

} // namespace quill
