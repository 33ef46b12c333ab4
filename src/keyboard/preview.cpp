#include "keyboard/preview.h"

#include "appearance/wallpaper.h"
#include "containers/selection.h"
#include "containers/shrink.h"
#include "core/tr.h"
#include "keyboard/history.h"
#include "keyboard/jump_to.h"
#include "keyboard/meaning.h"
#include "keyboard/path_walk.h"
#include "persistence/text_values.h"
#include "platform/shell.h"
#include "shortcuts/create.h"
#include "shortcuts/icons.h"

#include <utility>

namespace quill {
namespace {

constexpr std::string_view ownHint = "Open shortcuts, folders and URLs";

struct Look {
    std::string Name, Hint;
    JumpIcon Icon;
};

struct Typed {
    const TypedMeaning& Is;
    const std::string& Text;
};

JumpIcon ThemeIcon(const char* name, const char* symbol) {
    return {-1, {}, name, symbol};
}

JumpIcon OwnIcon() {
    return ThemeIcon("quillmere", "generic-program");
}

JumpIcon IconBeside(const frmMain& Main, const char* file, const char* symbol) {
    return {-1, FileBeside(Main, file), {}, symbol};
}

// A server may take its time to show an icon, or be gone; the place on the network stands for it meanwhile.
JumpIcon IconOfShortcut(const frmMain& Main, int Shortcut) {
    const auto& record = Main.Link(Shortcut);
    JumpIcon icon{Shortcut, {}, {}, std::string(GenericSymbol(record))};
    const bool isFile = !record.Command && record.ShortcutType != TypeUrl;
    if (isFile && Main.P.Shell.PathIsNetworkPath(ResolvedPath(Main, record.Path)))
        icon.ThemeName = "folder-remote";
    return icon;
}

std::string HintOfShortcut(const frmMain& Main, int Shortcut) {
    const auto& record = Main.Link(Shortcut);
    if (record.TagStart) return Tr(Main, "Tag Start: %1", record.Tags);
    if (!record.Tags.empty()) return Tr(Main, "Tags: %1", record.Tags);
    return Tr(Main, ownHint);
}

// ---- the look of each meaning

Look NothingLook(const frmMain& Main, const Typed&) {
    return {Tr(Main, "Keyboard Launcher"), Tr(Main, ownHint), OwnIcon()};
}

// A "t" that waits for its tag.
Look BegunLook(const frmMain& Main, const Typed&) {
    return {{}, Tr(Main, "Tag Start: t [tag name]"), OwnIcon()};
}

Look TagLook(const frmMain& Main, const Typed& typed) {
    return {typed.Is.Argument, Tr(Main, "Tag Start: t [tag name]"), OwnIcon()};
}

Look CalculatorLook(const frmMain& Main, const Typed&) {
    return {Tr(Main, "Calculator"), Tr(Main, "= expression: (x+x)*x/(x-x)..."),
            ThemeIcon("accessories-calculator", "generic-program")};
}

Look NoteLook(const frmMain& Main, const Typed& typed) {
    return {'"' + typed.Is.Argument + '"', Tr(Main, "Note: n [text]"),
            IconBeside(Main, "note.ico", "note-mark")};
}

Look ReminderLook(const frmMain& Main, const Typed&) {
    return {Tr(Main, "Quick Reminder"), Tr(Main, "Reminder: r [minutes] [reminder]"),
            IconBeside(Main, "reminder.ico", "generic-program")};
}

Look ShortcutLook(const frmMain& Main, const Typed& typed) {
    const int shortcut = typed.Is.Shortcut;
    return {Main.Link(shortcut).FullCaption, HintOfShortcut(Main, shortcut), IconOfShortcut(Main, shortcut)};
}

Look TileLook(const frmMain& Main, const Typed& typed) {
    const auto& view = Main.ConView(typed.Is.Container);
    return {view.ContainerLabel.Caption, Tr(Main, ownHint), {-1, view.IconFile, {}, "generic-folder"}};
}

Look PathLook(const frmMain& Main, const Typed& typed) {
    const bool walkable = IsWalkable(typed.Text);
    return {typed.Text, Tr(Main, walkable ? "Use the arrow keys to navigate" : ownHint),
            ThemeIcon("folder", "generic-folder")};
}

// What opens addresses has the icon.
Look AddressLook(const frmMain& Main, const Typed&) {
    return {Tr(Main, "Open URL"), Tr(Main, "Launch your web browser"), {-1, "https://", {}, "generic-link"}};
}

Look SearchLook(const frmMain& Main, const Typed& typed) {
    const bool prefixed = typed.Is.Argument != typed.Text;
    return {typed.Is.Argument,
            Tr(Main, prefixed ? "Web Search: s [search query]" : "Web Search: [search query]"),
            ThemeIcon("edit-find", "generic-link")};
}

struct LookRow {
    Meaning What;
    Look (*Make)(const frmMain&, const Typed&);
};

constexpr LookRow looks[] = {
    {Meaning::Nothing, &NothingLook},
    {Meaning::TagStart, &TagLook},
    {Meaning::Calculator, &CalculatorLook},
    {Meaning::Note, &NoteLook},
    {Meaning::Reminder, &ReminderLook},
    {Meaning::Shortcut, &ShortcutLook},
    {Meaning::WithParameters, &ShortcutLook},
    {Meaning::Container, &TileLook},
    {Meaning::Path, &PathLook},
    {Meaning::Address, &AddressLook},
    {Meaning::WebSearch, &SearchLook},
};

bool IsBegunTag(const Typed& typed) {
    return typed.Is.What == Meaning::Nothing &&
           (typed.Text.starts_with("t ") || typed.Text.starts_with("T "));
}

Look LookOf(const frmMain& Main, const Typed& typed) {
    if (IsBegunTag(typed)) return BegunLook(Main, typed);
    for (const auto& row : looks)
        if (row.What == typed.Is.What) return row.Make(Main, typed);
    return {};
}

void Take(frmMain& Main, Look look) {
    auto& box = Main.Keys.PicJumpToLink;
    box.lblJumpToLink = std::move(look.Name);
    box.lblJumpToTip = std::move(look.Hint);
    box.PicJumpToIcon = std::move(look.Icon);
    Main.Marks.JumpTo();
}

// ---- the shortcut that is meant is the selected one

bool IsAloneSelected(const frmMain& Main, int Shortcut) {
    const auto& selected = Main.Links.SelectedShortcuts;
    return selected.size() == 1 && selected.front() == Shortcut && Main.Link(Shortcut).Selected;
}

void Highlight(frmMain& Main, int Shortcut) {
    Main.Keys.PreviewedShortcut = Shortcut;
    Main.Keys.MatchedName = Shortcut == -1 ? std::string() : Main.Link(Shortcut).FullCaption;
    if (Shortcut == -1) {
        if (!Main.Links.SelectedShortcuts.empty()) UnselectLinks(Main);
        return;
    }
    Main.Links.CurrentShortcut = Main.Links.DragIndex = Shortcut;
    if (IsAloneSelected(Main, Shortcut)) return;
    UnselectLinks(Main);
    SetSelection(Main, Shortcut, true);
}

int ResultOf(const frmMain& Main, const TypedMeaning& meaning, std::string_view text) {
    if (meaning.Shortcut != -1) return meaning.Shortcut;
    return Main.Settings.SearchOnSpace && HoldsBlank(text) ? NoShortcutMeant : NoMatch;
}

void ShowMeaning(frmMain& Main, const TypedMeaning& meaning, const std::string& text) {
    Highlight(Main, meaning.Shortcut);
    if (meaning.Shortcut != Main.Keys.Picked) Main.Keys.Picked = -1;
    Main.Keys.MatchIndex = ResultOf(Main, meaning, text);
    Take(Main, LookOf(Main, {meaning, text}));
}

bool EndsHistory(const frmMain& Main, const TypedMeaning& meaning, std::string_view text) {
    return Main.Keys.HistoryMode && !Main.Keys.PicJumpToLink.cboSearch.DroppedDown &&
           meaning.What == Meaning::Nothing && !Trimmed(text).empty();
}

} // namespace

void UpdateJumpTo(frmMain& Main, const std::string& text, int& MatchIndex) {
    const auto meaning = MeaningOf(Main, text, MatchIndex);
    MatchIndex = ResultOf(Main, meaning, text);
    if (meaning.What == Meaning::Container) return OpenTile(Main, meaning.Container, text);
    ShowMeaning(Main, meaning, text);
    if (EndsHistory(Main, meaning, text)) ClosePicJumpTo(Main);
}

void PreviewText(frmMain& Main, int Listed) {
    const auto& text = Main.Keys.PicJumpToLink.cboSearch.Text;
    ShowMeaning(Main, MeaningOf(Main, text, Listed), text);
}

bool IsShown(const frmMain& Main, const TypedMeaning& meaning) {
    const int shown = Main.Keys.PreviewedShortcut;
    if (shown != meaning.Shortcut) return false;
    return shown == -1 || (IsLive(Main.Shortcuts, shown) && Main.Link(shown).Selected &&
                           Main.Link(shown).FullCaption == Main.Keys.MatchedName);
}

void ShowOwnLook(frmMain& Main) {
    Take(Main, NothingLook(Main, {{}, {}}));
}

// The text may be a part of the box that is being closed.
void OpenTile(frmMain& Main, int container, const std::string& text) {
    const std::string typed = text;
    Main.Group.CurrentContainer = container;
    Highlight(Main, -1);
    ClosePicJumpTo(Main);
    ExpandShrinkContainer(Main, container, true);
    AddToHistory(Main, typed);
}

} // namespace quill
