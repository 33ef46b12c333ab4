// Tag Start: everything that bears a tag is started together.
#include "containers/selection.h"
#include "core/lower_case.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/questions.h"
#include "shortcuts/launch.h"
#include "shortcuts/open_with.h"

#include <algorithm>
#include <string_view>

namespace quill {
namespace {

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// A tag of a shortcut counts that stands anywhere in what was asked for, which may name several at once. Both
// are lower case.
bool BearsOne(std::string_view tags, std::string_view asked) {
    while (!tags.empty()) {
        const auto end = std::min(tags.find(','), tags.size());
        const auto tag = Trimmed(tags.substr(0, end));
        if (!tag.empty() && asked.find(tag) != asked.npos) return true;
        tags.remove_prefix(std::min(end + 1, tags.size()));
    }
    return false;
}

// Itself, whatever it would start by a click.
void StartTagged(frmMain& Main, int Index) {
    UnselectLinks(Main);
    Main.Links.CurrentShortcut = Index;
    LinkClick(Main, LaunchOf(Main, Index));
}

void TellThatThereAreNone(frmMain& Main) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Tag Start: The selected shortcut does not have any tags.\n\n"
                                     "Shortcut Properties >> Advanced >> Tag Start"),
                            BoxOk | BoxInformation, ProgramName);
}

} // namespace

// Each start may ask something, and meanwhile rows may die or come; what came then was not asked for.
void StartAllWithTag(frmMain& Main, const std::string& tags) {
    if (Trimmed(tags).empty()) return TellThatThereAreNone(Main);
    const std::string asked = LowerCase(tags);
    const int rows = static_cast<int>(Main.Shortcuts.size());
    for (int index = 0; index < rows; ++index) {
        if (Main.IsExiting) return;
        if (!IsLive(Main.Shortcuts, index)) continue;
        if (BearsOne(LowerCase(Main.Link(index).Tags), asked)) StartTagged(Main, index);
    }
}

} // namespace quill
