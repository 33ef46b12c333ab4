#include "appearance/effects.h"

#include "core/objects.h"
#include "dock/frames.h"
#include "platform/session.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

using Kind = EffectState::Kind;

struct Course {
    int PerSecond;
    int Frames; // it ends with this one at the latest
    int FirstAlpha;
    int AlphaStep;
};

// In the order of the kinds. A rectangle that grows lets through what it covers; one that shrinks was the
// container a moment ago.
constexpr Course courses[] = {
    {50, 12, 120, 5},
    {40, 10, 255, -30},
    {40, 9, 255, -30},
    {50, 4, 90, -22},
};
constexpr int faintest = 60; // of what shrinks, or it would be gone from the screen before it has arrived

constexpr float blastGrowth = 80, blastOffset = 40; // twips

const Course& CourseOf(Kind kind) {
    return courses[static_cast<std::size_t>(kind)];
}

bool MotionWanted(const frmMain& Main) {
    return Main.Settings.Effect && Main.Dock.DockPosition == 0 && !Main.IsLoading && !Main.IsExiting &&
           !Main.P.Session.ReducedMotion();
}

Rect StepBetween(const Rect& start, const Rect& end, int frames) {
    const auto step = [frames](float from, float to) {
        return std::round((to - from) / static_cast<float>(frames));
    };
    return {step(start.Left, end.Left), step(start.Top, end.Top), step(start.Width, end.Width),
            step(start.Height, end.Height)};
}

bool AtEnd(const EffectState& effect) {
    if (effect.Frame >= CourseOf(effect.Running).Frames || effect.Alpha == 0) return true;
    const auto& now = effect.Now;
    const auto& end = effect.End;
    if (effect.Running == Kind::Explode) return now.Width >= end.Width && now.Height >= end.Height;
    return effect.Running == Kind::Implode && now.Width <= end.Width && now.Height <= end.Height;
}

void Advance(EffectState& effect) {
    ++effect.Frame;
    const int least = effect.Running == Kind::Implode ? faintest : 0;
    effect.Alpha = std::clamp(effect.Alpha + CourseOf(effect.Running).AlphaStep, least, 255);
    effect.Now.Left += effect.Step.Left;
    effect.Now.Top += effect.Step.Top;
    effect.Now.Width += effect.Step.Width;
    effect.Now.Height += effect.Step.Height;
}

void BlastEffect(frmMain& Main, int Container, const Rect& place);

// What is left of a fold's rectangle when it has come to the title row.
void FadeRest(frmMain& Main, const EffectState& ended) {
    FadeOut(Main, ended.End, ended.Container);
    Main.Looks.frmExplode.Alpha = ended.Alpha;
}

void Finish(frmMain& Main) {
    const auto ended = Main.Looks.frmExplode;
    EndEffect(Main);
    if (ended.Flash) return BlastEffect(Main, ended.Container, ended.End);
    if (ended.Running == Kind::Implode && IsFolded(Main, ended.Container)) FadeRest(Main, ended);
}

void Frame(frmMain& Main) {
    auto& effect = Main.Looks.frmExplode;
    if (Main.Dock.DockPosition != 0 || !IsLive(Main.Containers, effect.Container)) return EndEffect(Main);
    Advance(effect);
    if (AtEnd(effect)) return Finish(Main);
    Main.Marks.Overlay();
}

void Load(frmMain& Main, Kind kind, int Container, const Rect& start, const Rect& end) {
    const auto& course = CourseOf(kind);
    auto& effect = Main.Looks.frmExplode;
    effect = {};
    effect.Loaded = true;
    effect.Running = kind;
    effect.Container = Container;
    effect.Start = effect.Now = start;
    effect.End = end;
    effect.Step = StepBetween(start, end, course.Frames);
    effect.Alpha = course.FirstAlpha;
    StartFrames(Main, FrameStream::Effect, course.PerSecond, &Frame);
    Main.Marks.Overlay();
}

// What the caller has set for the container of this effect outlasts the end of the one before, which may have
// been the same container's.
void Begin(frmMain& Main, Kind kind, int Container, const Rect& start, const Rect& end) {
    const bool shown = Main.ConView(Container).Container.Visible;
    const bool justExpanded = Main.Group.JustExpanded;
    EndEffect(Main);
    Main.ConView(Container).Container.Visible = shown;
    Main.Group.JustExpanded = justExpanded;
    Main.Group.ExpandingContainer = Container;
    Load(Main, kind, Container, start, end);
    Main.Marks.Container(Container);
}

void BlastEffect(frmMain& Main, int Container, const Rect& place) {
    const Rect grown{place.Left - blastOffset, place.Top - blastOffset, place.Width + blastGrowth,
                     place.Height + blastGrowth};
    Load(Main, Kind::Blast, Container, grown, grown);
}

// One that a tag view has hidden meanwhile stays so.
void ShowContainer(frmMain& Main, int Container) {
    if (Main.Group.ExpandingContainer == Container) Main.Group.ExpandingContainer = -1;
    if (!IsLive(Main.Containers, Container)) return;
    if (!Main.Con(Container).tag) Main.ConView(Container).Container.Visible = true;
    Main.Marks.Container(Container);
}

} // namespace

bool ExplodeWanted(const frmMain& Main) {
    return Main.Settings.EffectMode <= 1 && MotionWanted(Main);
}

bool ImplodeWanted(const frmMain& Main) {
    return Main.Settings.EffectMode != 1 && MotionWanted(Main);
}

bool FoldEffectWanted(const frmMain& Main) {
    return Main.Settings.FoldUnfoldEffect && MotionWanted(Main);
}

void Explode(frmMain& Main, int Container, const Rect& start, const Rect& end) {
    if (!IsLive(Main.Containers, Container)) return;
    Begin(Main, Kind::Explode, Container, start, end);
    Main.Looks.frmExplode.Flash = true;
}

void Implode(frmMain& Main, int Container, const Rect& start, const Rect& end, bool UseBlast) {
    if (!IsLive(Main.Containers, Container)) return;
    Begin(Main, Kind::Implode, Container, start, end);
    Main.Looks.frmExplode.Flash = UseBlast;
}

void FadeOut(frmMain& Main, const Rect& place, int Container) {
    if (!IsLive(Main.Containers, Container)) return;
    Begin(Main, Kind::FadeOut, Container, place, place);
}

void EndEffect(frmMain& Main) {
    auto& effect = Main.Looks.frmExplode;
    if (!effect.Loaded) return;
    effect.Loaded = false;
    effect.Now = effect.End;
    StopFrames(Main, FrameStream::Effect);
    Main.Marks.Overlay();
    if (effect.Running == Kind::Blast) return;
    if (effect.Running == Kind::Explode) Main.Group.JustExpanded = false;
    ShowContainer(Main, effect.Container);
}

} // namespace quill
