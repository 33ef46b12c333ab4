#include "core/caption.h"

#include "core/tr.h"
#include "platform/clock.h"

#include <utility>

namespace quill {
namespace {

constexpr const char* weekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                    "Thursday", "Friday", "Saturday"};
constexpr const char* months[] = {"January", "February", "March",     "April",   "May",      "June",
                                  "July",    "August",   "September", "October", "November", "December"};

std::string TwoDigits(int number) {
    std::string text(number < 10 ? 1 : 0, '0');
    return text += std::to_string(number);
}

std::string TimeOf(const frmMain& Main, const DateTime& at) {
    const int hour = at.Hour % 12 == 0 ? 12 : at.Hour % 12;
    return Tr(Main, at.Hour < 12 ? "%1:%2 AM" : "%1:%2 PM", TwoDigits(hour), TwoDigits(at.Minute));
}

std::string LongDateOf(const frmMain& Main, const DateTime& at) {
    return Tr(Main, "%1, %2 %3, %4", Tr(Main, weekdays[at.Weekday]), Tr(Main, months[at.Month - 1]),
              std::to_string(at.Day), std::to_string(at.Year));
}

std::string TimeLineNow(const frmMain& Main) {
    const auto now = Main.P.Clock.Now();
    return Tr(Main, "%1 | %2", TimeOf(Main, now), LongDateOf(Main, now));
}

} // namespace

std::string NormalCaption(const frmMain& Main) {
    if (!Main.Store.SaveFailure.empty())
        return Tr(Main, "Can't save the workspace: %1", Main.Store.SaveFailure);
    if (Main.Dock.Suspended) return Tr(Main, "AUTO-COLLAPSE SUSPENDED");
    const auto selected = Main.Links.SelectedShortcuts.size();
    if (selected > 1) return Tr(Main, "%1 shortcuts selected", std::to_string(selected));
    if (Main.Settings.SystemInfo && !Main.System.SystemLine.empty()) return Main.System.SystemLine;
    if (Main.Settings.ShowTime && !Main.System.TimeLine.empty()) return Main.System.TimeLine;
    return std::string(ProgramName) + " " + ProgramVersion;
}

void SetCaption(frmMain& Main, const std::string& text) {
    if (Main.View.Caption == text) return;
    Main.View.Caption = text;
    Main.Marks.Workspace();
}

void ShowPassingCaption(frmMain& Main, const std::string& text) {
    SetCaption(Main, text);
    Main.P.Clock.Start({TimerName::TimerRestoreCaption}, PassingCaptionTime);
}

void RestoreCaption(frmMain& Main) {
    Main.P.Clock.Stop({TimerName::TimerRestoreCaption});
    SetCaption(Main, NormalCaption(Main));
}

// A line that stands there although its setting was switched off is no longer the normal caption, and goes.
void SetCaptionLine(frmMain& Main, std::string& line, std::string text) {
    const bool normal =
        Main.View.Caption == NormalCaption(Main) || (!line.empty() && Main.View.Caption == line);
    line = std::move(text);
    if (normal) SetCaption(Main, NormalCaption(Main));
}

void ShowTimeLine(frmMain& Main) {
    const bool seen = Main.View.Visible || Main.Dock.DockPosition != 0;
    if (!seen || Main.Group.FrameLinkGroup) return;
    SetCaptionLine(Main, Main.System.TimeLine, Main.Settings.ShowTime ? TimeLineNow(Main) : std::string());
}

void TimerRestoreCaption_Timer(frmMain& Main) {
    RestoreCaption(Main);
}

} // namespace quill
