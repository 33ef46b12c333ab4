#include "qt/core/surface_widget.h"

#include "appearance/paint.h"
#include "core/frmMain.h"
#include "dock/docking.h"
#include "dock/mini_toolbar.h"
#include "qt/appearance/looks.h"
#include "qt/appearance/qt_canvas.h"
#include "qt/core/convert.h"
#include "qt/core/plain_tip.h"
#include "qt/core/stage.h"
#include "qt/notes/note_desk.h"

#include <QCloseEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <optional>

namespace quill {
namespace {

constexpr int wheelNotch = 120; // eighths of a degree

MouseButton ButtonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    case Qt::RightButton:
        return MouseButton::Right;
    default:
        return MouseButton::None;
    }
}

// While the mouse moves the held button is what counts.
Qt::MouseButton HeldButton(const QMouseEvent& event) {
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (event.buttons().testFlag(button)) return button;
    return Qt::NoButton;
}

Qt::CursorShape ShapeOfEdges(int edges) {
    switch (edges) {
    case EdgeLeft:
    case EdgeRight:
        return Qt::SizeHorCursor;
    case EdgeTop:
    case EdgeBottom:
        return Qt::SizeVerCursor;
    case EdgeLeft | EdgeTop:
    case EdgeRight | EdgeBottom:
        return Qt::SizeFDiagCursor;
    case EdgeRight | EdgeTop:
    case EdgeLeft | EdgeBottom:
        return Qt::SizeBDiagCursor;
    default:
        return Qt::ArrowCursor;
    }
}

Qt::CursorShape ShapeOfElement(ElementKind kind) {
    switch (kind) {
    case ElementKind::ResizeSymbol:
    case ElementKind::PictureGrip:
        return Qt::SizeFDiagCursor;
    case ElementKind::ContainerNote:
        return Qt::IBeamCursor;
    case ElementKind::lblHistory:
    case ElementKind::lblGo:
    case ElementKind::lblClosePicJumpTo:
        return Qt::PointingHandCursor;
    default:
        return Qt::ArrowCursor;
    }
}

// What frmTip tells about needs no second tip beside it.
bool HasTipOfItsOwn(const frmMain& Main, ElementKind kind) {
    return Main.Settings.ShowTips &&
           (kind == ElementKind::ContainerLabel || kind == ElementKind::ContainerIcon);
}

std::optional<ElementInfo> InfoAt(const frmMain& Main, SurfaceId surface, Point at) {
    const ElementId hit = ElementAt(Main, surface, at);
    std::optional<ElementInfo> found;
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (element.Id == hit && element.Place.Contains(at.X, at.Y)) found = element;
        return true;
    });
    return found;
}

// The last pixels may belong to the frame half, where the scaling is not whole. What shows there is nobody's
// else.
void FillFarEdges(QPainter& painter, Color color) {
    const QRect place = painter.window();
    painter.fillRect(QRect(place.right(), place.top(), 1, place.height()), Ink(color));
    painter.fillRect(QRect(place.left(), place.bottom(), place.width(), 1), Ink(color));
}

} // namespace

QRegion SolidPart(const QRect& place) {
    constexpr int corner = 12, edge = 1; // pixels
    return QRegion(place.adjusted(corner, edge, -corner, -edge)) +
           place.adjusted(edge, corner, -edge, -corner);
}

MouseEvent MouseOf(const QMouseEvent& event, QPointF origin) {
    const auto held = event.modifiers();
    MouseEvent mouse;
    mouse.At = TwipPoint(event.position() - origin);
    mouse.Screen = TwipPoint(event.globalPosition());
    mouse.Button = ButtonOf(event.type() == QEvent::MouseMove ? HeldButton(event) : event.button());
    mouse.Shift = held.testFlag(Qt::ShiftModifier);
    mouse.Ctrl = held.testFlag(Qt::ControlModifier);
    mouse.Alt = held.testFlag(Qt::AltModifier);
    return mouse;
}

SurfaceWidget::SurfaceWidget(SurfaceId id, const SurfaceContext& context, QWidget* parent)
    : QWidget(parent), id_(id), context_(context), drops_(id, context.Attached, *this) {
    setMouseTracking(true);
    const bool workspace = id.Kind == SurfaceKind::Workspace;
    setAttribute(Qt::WA_OpaquePaintEvent, workspace || id.Kind == SurfaceKind::MiniDock); // others are round
    setAttribute(Qt::WA_TransparentForMouseEvents, id.Kind == SurfaceKind::Overlay);
    // What is dropped on the launcher's box goes to the workspace below it.
    setAcceptDrops(id.Kind != SurfaceKind::Overlay && id.Kind != SurfaceKind::JumpTo);
    if (workspace) setFocusPolicy(Qt::StrongFocus);
}

bool SurfaceWidget::Alive() const {
    return context_.Attached.Alive();
}

bool SurfaceWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (Alive()) ShowTip(help->pos(), help->globalPos());
    return true;
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    if (!Alive()) return;
    QPainter painter(this);
    if (id_.Kind == SurfaceKind::Workspace) FillFarEdges(painter, context_.Attached.Main->View.FrameColor);
    QtCanvas canvas(painter, *this, Uncovered(event->region()), context_.Looks);
    PaintSurface(*context_.Attached.Main, id_, canvas, context_.Stage.Lists());
}

// The toolkit paints everything under what has round corners. What containers above will paint over is left
// out.
QRegion SurfaceWidget::Uncovered(const QRegion& region) const {
    const bool workspace = id_.Kind == SurfaceKind::Workspace;
    if (!workspace && parent() == nullptr) return region; // nothing lies above
    const QPoint corner = workspace ? QPoint() : pos();
    const QRect around = region.boundingRect().translated(corner);
    const QObject& siblings = workspace ? static_cast<const QObject&>(*this) : *parent();
    bool above = workspace;
    QRegion seen = region;
    for (const QObject* child : siblings.children()) {
        const auto* other = above ? dynamic_cast<const SurfaceWidget*>(child) : nullptr;
        const bool covers =
            other != nullptr && other->id_.Kind == SurfaceKind::Container && other->isVisible();
        if (covers && around.intersects(other->geometry()))
            seen -= SolidPart(other->geometry()).translated(-corner);
        above = above || child == this;
    }
    return seen;
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
    if (!Alive()) return;
    const MouseEvent mouse = MouseOf(*event);
    context_.Notes.Leave();
    MouseDown(*context_.Attached.Main, id_, mouse);
    if (mouse.Button == MouseButton::Left) OpenNoteAt(mouse.At, *event);
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!Alive()) return;
    const MouseEvent mouse = MouseOf(*event);
    if (mouse.Button == MouseButton::None) ShowPointer(mouse.At);
    MouseMove(*context_.Attached.Main, id_, mouse);
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (Alive()) MouseUp(*context_.Attached.Main, id_, MouseOf(*event));
}

void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (Alive()) MouseDoubleClick(*context_.Attached.Main, id_, MouseOf(*event));
}

void SurfaceWidget::wheelEvent(QWheelEvent* event) {
    if (!Alive()) return;
    wheel_ += event->angleDelta().y();
    const int steps = wheel_ / wheelNotch;
    wheel_ -= steps * wheelNotch;
    MouseEvent mouse;
    mouse.At = TwipPoint(event->position());
    mouse.Screen = TwipPoint(event->globalPosition());
    mouse.Shift = event->modifiers().testFlag(Qt::ShiftModifier);
    mouse.Ctrl = event->modifiers().testFlag(Qt::ControlModifier);
    mouse.Alt = event->modifiers().testFlag(Qt::AltModifier);
    if (steps != 0) MouseWheel(*context_.Attached.Main, id_, mouse, steps);
}

void SurfaceWidget::leaveEvent(QEvent*) {
    if (Alive()) MouseLeave(*context_.Attached.Main, id_);
}

// The strip may be closed by anybody who finds its window; the bar goes with the workspace alone.
void SurfaceWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (id_.Kind == SurfaceKind::MiniToolbar && Alive()) CloseMiniToolbar(*context_.Attached.Main);
}

void SurfaceWidget::ShowTip(QPoint at, QPoint screen) {
    const auto element = InfoAt(*context_.Attached.Main, id_, TwipPoint(at));
    if (!element || element->Tip.empty() || HasTipOfItsOwn(*context_.Attached.Main, element->Id.Kind))
        return QToolTip::hideText();
    QToolTip::showText(screen, PlainTip(Text(element->Tip)), this, PixelRect(element->Place));
}

void SurfaceWidget::ShowPointer(Point at) {
    const auto& Main = *context_.Attached.Main;
    const int edges = id_.Kind == SurfaceKind::Workspace ? GripEdgesAt(Main, at) : 0;
    const auto shape = edges != 0 ? ShapeOfEdges(edges) : ShapeOfElement(ElementAt(Main, id_, at).Kind);
    if (cursor().shape() != shape) setCursor(shape);
}

// The press has been handled already, and may have removed what lay there.
void SurfaceWidget::OpenNoteAt(Point at, const QMouseEvent& event) {
    if (!Alive() || id_.Kind != SurfaceKind::Container) return;
    const ElementId hit = ElementAt(*context_.Attached.Main, id_, at);
    if (hit.Kind == ElementKind::ContainerNote)
        context_.Notes.Open(*this, hit.Index, event.position().toPoint());
}

} // namespace quill
