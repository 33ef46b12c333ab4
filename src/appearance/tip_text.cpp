// What a tip says.
#include "appearance/tips.h"

#include "core/objects.h"
#include "core/tr.h"
#include "notes/notes.h"

#include <string_view>
#include <vector>

namespace quill {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t mostItems = 12;   // lines of names
constexpr std::size_t longestItem = 60; // code points
constexpr std::size_t noteLength = 100;
constexpr int noteLines = 8;
constexpr const char* ellipsis = "...";

bool Begins(char byte) { // a code point, and does not go on with one
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

// The first code points of a text, and whether that is less than all of it.
std::string_view FirstOf(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; at < text.size(); ++at)
        if (Begins(text[at]) && count-- == 0) break;
    return text.substr(0, at);
}

// In one line, whatever a name holds.
std::string Item(std::string_view name) {
    const auto first = FirstOf(name, longestItem);
    std::string item(first);
    for (char& letter : item)
        if (static_cast<unsigned char>(letter) < ' ') letter = ' ';
    return first.size() < name.size() ? item + ellipsis : item;
}

std::string FileName(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

// What a tag view hides is not told either.
Lines NamesOf(const frmMain& Main, int Index) {
    Lines names;
    EachShortcutIn(Main, InContainer(Index), [&](int link) {
        if (Main.LinkView(link).Visible && names.size() <= mostItems)
            names.push_back(Item(Main.Link(link).FullCaption));
    });
    for (const auto& row : Live(Main.Pictures)) {
        const auto& view = Main.PicView(row.Index);
        if (view.In == InContainer(Index) && names.size() <= mostItems)
            names.push_back(Item(FileName(Main.Pic(row.Index).Path)));
    }
    if (names.size() > mostItems) names.back() = ellipsis;
    return names;
}

// A feed has no data before its reader is there.
Lines HeadlinesOf(const frmMain& Main) {
    return {Tr(Main, "First few headlines:"), Tr(Main, "[Refresh RSS to see headlines]")};
}

std::string NoteExcerpt(std::string_view note) {
    std::string excerpt;
    int lines = 1;
    for (const char letter : FirstOf(CleanNoteText(note), noteLength)) {
        if (letter == '\n' && ++lines > noteLines) break;
        if (letter != '\r') excerpt += letter;
    }
    return excerpt;
}

void AddNote(const frmMain& Main, int Index, Lines& lines) {
    const auto& view = Main.ConView(Index);
    if (Main.Con(Index).Encrypted) {
        lines.push_back(Tr(Main, "* Encrypted Note *"));
    } else if (const auto excerpt = NoteExcerpt(view.ContainerNote.Text);
               view.PinPressed && !excerpt.empty()) {
        lines.emplace_back();
        lines.push_back(excerpt + ellipsis);
    }
}

void AddValue(const frmMain& Main, std::string_view pattern, const std::string& value, Lines& lines) {
    if (!value.empty()) lines.push_back(Tr(Main, pattern, value));
}

void AddFacts(const frmMain& Main, int Index, Lines& lines) {
    const auto& container = Main.Con(Index);
    if (container.IsReminder())
        AddValue(Main, "Date & Time: %1", container.ReminderRecord().ReadbleTimeString, lines);
    if (container.RSS && Main.Feed(Index).Filter)
        AddValue(Main, "Filter: %1", Item(Main.Feed(Index).FilterString), lines);
    if (!Main.ConView(Index).PinPressed) return; // the dates are the note's
    AddValue(Main, "Created: %1", container.CreationDate, lines);
    AddValue(Main, "Modified: %1", container.ModifyDate, lines);
}

Lines ItemsOf(const frmMain& Main, int Index) {
    auto lines = Main.Con(Index).RSS ? HeadlinesOf(Main) : NamesOf(Main, Index);
    AddNote(Main, Index, lines);
    AddFacts(Main, Index, lines);
    return lines;
}

// What a double-click on a tile does where it could start all that lies in it.
bool HoldsNothingToStart(const frmMain& Main, int Index) {
    return Main.Con(Index).RSS || Main.ConView(Index).PinPressed;
}

std::string_view OpeningGesture(const frmMain& Main, int Index) {
    if (!IsShrunk(Main, Index)) return "Double Click: Fold/Unfold";
    if (!Main.Settings.DblClickToStartAll) return "Click: Expand | Double-Click to Shrink";
    return HoldsNothingToStart(Main, Index) ? "Double Click: Expand" : "Double Click: Start all";
}

void AddGestures(const frmMain& Main, int Index, Lines& lines) {
    lines.emplace_back();
    lines.push_back(Tr(Main, OpeningGesture(Main, Index)));
    lines.push_back(Tr(Main, "Ctrl Click: Toggle Selection"));
    if (Main.Con(Index).RSS) lines.push_back(Tr(Main, "Shift Click: Refresh RSS (F5)"));
    lines.push_back(Tr(Main, "Right Click: Show Menu"));
    lines.push_back(Tr(Main, "Drag: Change Location (Ctrl+Z: Undo)"));
}

// What is said of the workspace's title first.
std::string HeadOfTitle(const frmMain& Main) {
    const auto& selected = Main.Links.SelectedShortcuts;
    if (selected.size() == 1 && IsLive(Main.Shortcuts, selected.front())) {
        const auto& link = Main.Link(selected.front());
        const auto& name = link.FullCaption.empty() ? FileName(link.Path) : link.FullCaption;
        return Tr(Main, "Selected Shortcut: %1", Item(name));
    }
    return Main.Settings.PreventWindowMovement ? Tr(Main, "WORKSPACE POSITION IS LOCKED")
                                               : Tr(Main, "Click and hold to move the workspace");
}

struct SwitchLine {
    std::string_view Pattern;
    bool SettingsRecord::*Setting;
};

constexpr SwitchLine titleSwitches[] = {
    {"Undock on Click: %1", &SettingsRecord::UndockOnClick},
    {"Undock Immediately: %1", &SettingsRecord::UndockImmediately},
    {"Grab Focus: %1", &SettingsRecord::GrabFocus},
    {"Center Mouse: %1", &SettingsRecord::CenterMouse},
};

// No empty line begins or ends it, and none follows another.
std::string Joined(const Lines& lines) {
    std::string text;
    bool gap = false;
    for (const auto& line : lines) {
        gap = gap || line.empty();
        if (line.empty()) continue;
        if (!text.empty()) text += gap ? "\n\n" : "\n";
        text += line;
        gap = false;
    }
    return text;
}

} // namespace

std::string TipOfContainer(const frmMain& Main, int Index) {
    if (!Main.Settings.ShowTips || !IsLive(Main.Containers, Index)) return {};
    auto lines = ItemsOf(Main, Index);
    if (Main.Settings.WhichTips == 0) AddGestures(Main, Index, lines);
    return Joined(lines);
}

std::string TipOfTitle(const frmMain& Main) {
    if (!Main.Settings.ShowTips || Main.Dock.Maximized) return {};
    Lines lines{HeadOfTitle(Main), ""};
    for (const auto& [pattern, setting] : titleSwitches)
        lines.push_back(Tr(Main, pattern, Tr(Main, Main.Settings.*setting ? "On" : "Off")));
    return Joined(lines);
}

} // namespace quill
