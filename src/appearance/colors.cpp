#include "appearance/colors.h"

#include "containers/layout.h"

#include <algorithm>
#include <cmath>

namespace quill {

namespace {

Color Step(Color color, int by) {
    const auto held = [by](int channel) { return std::clamp(channel + by, 0, 255); };
    return Rgb(held(RedOf(color)), held(GreenOf(color)), held(BlueOf(color)));
}

double Linear(int channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(Color color) {
    return 0.2126 * Linear(RedOf(color)) + 0.7152 * Linear(GreenOf(color)) + 0.0722 * Linear(BlueOf(color));
}

} // namespace

Color Lighter(Color color, bool Slightly) {
    return Step(color, Slightly ? 10 : 60);
}

Color Darker(Color color, bool Much) {
    return Step(color, Much ? -120 : -40);
}

Color ContrastColor(Color color) {
    return RedOf(color) < 129 ? Lighter(color, false) : Darker(color, false);
}

double ContrastRatio(Color one, Color other) {
    const double first = Luminance(one), second = Luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

void SetColors(frmMain& Main, int Index, Color color) {
    if (!IsLive(Main.Containers, Index)) return;
    ContainerView& view = Main.ConView(Index);
    view.ContainerBackColor = ContrastColor(color);
    view.FrameBackColor = color;
    ShowHideContainerToolbar(Main, Index, !Main.Con(Index).HideToolbar); // the tag mark with it
    DoRoundGradResizeSym(Main, Index, false);
}

void SetLabelColors(frmMain& Main, int Index, Color color) {
    if (!IsLive(Main.Containers, Index)) return;
    ContainerView& view = Main.ConView(Index);
    view.ContainerLabel.ForeColor = color;
    view.MarkForeColor = color;
    view.FrameForeColor = color;
    Main.Marks.Container(Index);
}

void SetWorkspaceColors(frmMain& Main, Color back, Color fore) {
    Main.View.BackColor = back;
    Main.View.ForeColor = fore;
    Main.View.FrameColor = ContrastColor(back);
    Main.View.MoveMeColor = back;
    Main.View.CaptionForeColor = fore;
    Main.Marks.Workspace();
}

} // namespace quill
