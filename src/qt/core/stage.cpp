#include "qt/core/stage.h"

#include "core/frmMain.h"
#include "qt/appearance/looks.h"
#include "qt/core/convert.h"
#include "qt/dock/edge_window.h"
#include "qt/shortcuts/quick_launch_window.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QWindow>

#include <algorithm>
#include <ranges>
#include <utility>

namespace quill {
namespace {

constexpr auto drainEvent = static_cast<QEvent::Type>(QEvent::User + 1);
constexpr auto firstPictureEvent = static_cast<QEvent::Type>(QEvent::User + 2);

struct EdgeTitle {
    SurfaceKind Kind;
    const char* Title; // by which other programs, and the tests, know it
};

constexpr EdgeTitle edgeTitles[] = {{SurfaceKind::MiniDock, "Quillmere Bar"},
                                    {SurfaceKind::MiniToolbar, "QuillmereMiniToolbar"},
                                    {SurfaceKind::QuickLaunch, "Quillmere Speed Launch"}};

bool LiesIn(const PictureView& picture, int container) {
    return picture.In == InContainer(container);
}

bool IsLiveSurface(const frmMain& Main, SurfaceId id) {
    if (id.Kind == SurfaceKind::Container) return IsLive(Main.Containers, id.Index);
    if (id.Kind == SurfaceKind::Picture) return IsLive(Main.Pictures, id.Index);
    return true;
}

// How many from the beginning stand in their order already.
template <class Children, class Wanted> auto InOrder(const Children& children, const Wanted& wanted) {
    auto next = wanted.begin();
    for (const QObject* child : children)
        if (next != wanted.end() && child == *next) ++next;
    return next - wanted.begin();
}

// The order of a parent's children is their stacking, the last on top. Each move paints what is moved and all
// that lies there, so that as few are moved as will do: what is out of order is raised, or, where that is
// less, lowered.
void Stack(const QWidget& parent, const std::vector<QWidget*>& wanted) {
    const auto& children = parent.children();
    const auto all = static_cast<std::ptrdiff_t>(wanted.size());
    const auto low = InOrder(children, wanted);
    const auto high =
        low == all ? all : InOrder(children | std::views::reverse, wanted | std::views::reverse);
    if (low >= high)
        std::for_each(wanted.begin() + low, wanted.end(), [](QWidget* surface) { surface->raise(); });
    else
        std::for_each(wanted.rbegin() + high, wanted.rend(), [](QWidget* surface) { surface->lower(); });
}

} // namespace

Stage::Stage(const Attachment& attached, Looks& looks, std::string iconFolder)
    : attached_(attached), looks_(looks), iconFolder_(std::move(iconFolder)), notes_(attached, looks.Fonts),
      launcher_(attached, looks.Fonts, [this] { Drain(); }),
      accessible_(attached, [this](SurfaceId id) { return Find(id); }),
      watch_(attached, [this](qt::x11::WindowId native) { return NameOf(native); }) {}

Stage::~Stage() = default;

void Stage::Wake() {
    if (std::exchange(woken_, true)) return;
    QCoreApplication::postEvent(this, new QEvent(drainEvent));
}

void Stage::Drain() {
    if (!attached_.Alive()) return;
    const MarkTurn turn(attached_.Main->Marks);
    lists_.reset();
    Apply(turn.Set);
}

const ShortcutLists& Stage::Lists() {
    if (!lists_) lists_.emplace(*attached_.Main);
    return *lists_;
}

MainWidget& Stage::Main() {
    if (main_) return *main_;
    main_ = std::make_unique<MainWidget>(attached_);
    main_->windowHandle()->installEventFilter(this);
    main_->OnKeyUsed = [this] { Drain(); };
    return *main_;
}

QWidget& Stage::Splash() {
    if (!splash_) splash_ = std::make_unique<SplashWidget>(attached_, looks_);
    return *splash_;
}

QWidget& Stage::Tip() {
    if (!tip_) tip_ = std::make_unique<TipWidget>(attached_, looks_);
    return *tip_;
}

SurfaceWidget& Stage::Edge(SurfaceKind kind) {
    const SurfaceId id{kind, -1};
    if (SurfaceWidget* known = Find(id)) return *known;
    edges_.push_back(
        std::make_unique<SurfaceWidget>(id, SurfaceContext{attached_, looks_, notes_, *this}, nullptr));
    SurfaceWidget& made = *edges_.back();
    made.setWindowTitle(QString::fromLatin1(std::ranges::find(edgeTitles, kind, &EdgeTitle::Kind)->Title));
    if (kind == SurfaceKind::QuickLaunch)
        MakeQuickLaunchWindow(made, attached_);
    else
        qt::MakeEdgeWindow(made);
    surfaces_[id] = &made;
    return made;
}

QWidget* Stage::Known(WindowId window) const {
    if (window == MainWindow) return main_.get();
    if (window == MiniDockWindow) return Find({SurfaceKind::MiniDock, -1});
    if (window == QuickLaunchWindow) return Find({SurfaceKind::QuickLaunch, -1});
    return window == MiniToolbarWindow ? Find({SurfaceKind::MiniToolbar, -1}) : nullptr;
}

std::optional<WindowId> Stage::NameOf(qt::x11::WindowId native) const {
    for (const WindowId name : {MainWindow, MiniDockWindow, QuickLaunchWindow})
        if (const QWidget* widget = Known(name); widget && widget->internalWinId() == native) return name;
    return std::nullopt;
}

QWidget* Stage::Window(WindowId window) {
    if (window == MiniDockWindow) return &Edge(SurfaceKind::MiniDock);
    if (window == MiniToolbarWindow) return &Edge(SurfaceKind::MiniToolbar);
    if (window == QuickLaunchWindow) return &Edge(SurfaceKind::QuickLaunch);
    if (window == MainWindow) return &Main();
    if (window == TipWindow) return &Tip();
    return window == SplashWindow ? &Splash() : nullptr;
}

bool Stage::event(QEvent* event) {
    if (event->type() == firstPictureEvent) {
        FirstPictureStands();
        return true;
    }
    if (event->type() != drainEvent) return QObject::event(event);
    woken_ = false;
    // A workspace that is half loaded is never shown; the window's own first show drains.
    if (attached_.Alive() && !attached_.Main->IsLoading) Drain();
    return true;
}

// Watches the main window for the moment in which the server shows it; its picture has been painted before.
bool Stage::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Expose || seen_) return QObject::eventFilter(object, event);
    seen_ = true;
    QCoreApplication::postEvent(this, new QEvent(firstPictureEvent), Qt::LowEventPriority);
    return false;
}

void Stage::Apply(const MarkSet& set) {
    if (set.Splash && splash_) splash_->update();
    if (set.Tip && tip_) tip_->update();
    if (set.MiniDock || set.Everything) Update(Find({SurfaceKind::MiniDock, -1}));
    if (set.MiniToolbar || set.Everything) Update(Find({SurfaceKind::MiniToolbar, -1}));
    if (set.QuickLaunch || set.Everything) Update(Find({SurfaceKind::QuickLaunch, -1}));
    if (set.Everything)
        SyncAll();
    else
        SyncMarked(set);
    if (set.Stacking || std::exchange(restack_, false)) Restack();
    notes_.Follow([this](int index) { return Sync({SurfaceKind::Container, index}); });
    launcher_.Follow([this] { return Sync({SurfaceKind::JumpTo, -1}); });
    accessible_.Follow(set);
}

void Stage::SyncMarked(const MarkSet& set) {
    for (const int index : set.Containers) SyncContainer(index);
    for (const int index : set.Pictures) Update(Sync({SurfaceKind::Picture, index}));
    for (const int index : set.Notes) Update(Find({SurfaceKind::Container, index}));
    if (set.Workspace) RepaintWorkspace();
    if (set.Overlay) Update(Sync({SurfaceKind::Overlay, -1}));
    if (set.JumpTo) Update(Sync({SurfaceKind::JumpTo, -1}));
}

void Stage::SyncAll() {
    std::erase_if(surfaces_, [this](const auto& row) {
        const bool dead = !IsLiveSurface(*attached_.Main, row.first);
        if (dead) delete row.second;
        return dead;
    });
    Main().update();
    for (const SurfaceId id : Surfaces(*attached_.Main)) Update(Sync(id));
    restack_ = true;
}

// Pictures in a container stand and fall with it.
void Stage::SyncContainer(int index) {
    Update(Sync({SurfaceKind::Container, index}));
    for (const auto& row : Live(attached_.Main->Pictures))
        if (LiesIn(attached_.Main->PicView(row.Index), index)) Sync({SurfaceKind::Picture, row.Index});
}

SurfaceWidget* Stage::Sync(SurfaceId id) {
    const auto& Main = *attached_.Main;
    SurfaceWidget* surface = Find(id);
    if (!IsLiveSurface(Main, id) || !SurfaceVisible(Main, id)) {
        if (surface != nullptr) surface->hide();
        return nullptr;
    }
    QWidget* parent = ParentOf(id);
    if (parent == nullptr) return nullptr;
    if (surface == nullptr) surface = Make(id);
    if (surface->parentWidget() != parent) surface->setParent(parent), restack_ = true;
    const Rect place = id.Kind == SurfaceKind::Workspace ? Main.View.picBack.Place : PlaceOfSurface(Main, id);
    const QRect pixels = PixelRect(place);
    if (surface->geometry() != pixels) surface->setGeometry(pixels);
    if (id.Kind == SurfaceKind::Picture) Clip(*surface);
    if (surface->isHidden()) surface->show();
    return surface;
}

SurfaceWidget* Stage::Find(SurfaceId id) const {
    const auto found = surfaces_.find(id);
    return found == surfaces_.end() ? nullptr : found->second;
}

SurfaceWidget* Stage::Make(SurfaceId id) {
    auto* surface = new SurfaceWidget(id, {attached_, looks_, notes_, *this}, ParentOf(id));
    surfaces_[id] = surface;
    restack_ = true;
    return surface;
}

// Null when the surface's own parent does not show.
QWidget* Stage::ParentOf(SurfaceId id) {
    if (id.Kind == SurfaceKind::Workspace) return &Main();
    if (id.Kind == SurfaceKind::Picture) {
        const auto& in = attached_.Main->PicView(id.Index).In;
        if (in.Kind == ParentKind::ContainerFrame) return Sync({SurfaceKind::Container, in.Index});
    }
    return Sync({});
}

// A picture in a container ends where the frame ends.
void Stage::Clip(SurfaceWidget& picture) {
    const auto& in = attached_.Main->PicView(picture.Id().Index).In;
    if (in.Kind != ParentKind::ContainerFrame) return picture.clearMask();
    const QRect frame = PixelRect(attached_.Main->ConView(in.Index).ContainerFrame.Place);
    const QRect seen = picture.geometry().intersected(frame);
    if (seen == picture.geometry()) return picture.clearMask();
    // An empty mask would count as none.
    picture.setMask(seen.isEmpty() ? QRegion(-1, -1, 1, 1) : QRegion(seen.translated(-picture.pos())));
}

void Stage::Restack() {
    restack_ = false;
    std::map<QWidget*, std::vector<QWidget*>> byParent;
    for (const SurfaceId id : Surfaces(*attached_.Main))
        if (QWidget* surface = Find(id)) byParent[surface->parentWidget()].push_back(surface);
    for (const auto& [parent, wanted] : byParent) Stack(*parent, wanted);
    notes_.Raise();
    launcher_.Raise();
}

// What containers hide is not painted again, or every word in the title row would cost them all.
void Stage::RepaintWorkspace() {
    SurfaceWidget* workspace = Sync({});
    if (workspace == nullptr) return;
    QRegion seen = workspace->rect();
    for (const auto& [id, surface] : surfaces_)
        if (id.Kind == SurfaceKind::Container && surface->isVisible()) seen -= SolidPart(surface->geometry());
    Main().update(QRegion(Main().rect()) - workspace->geometry());
    workspace->update(seen);
}

void Stage::Update(SurfaceWidget* surface) const {
    if (surface != nullptr) surface->update();
}

void Stage::FirstPictureStands() {
    looks_.Icons.Begin();
    looks_.Pictures.Begin();
    QIcon icon;
    for (const char* side : {"16x16", "32x32", "48x48", "128x128"}) {
        const QPixmap image(Text(iconFolder_ + "/" + side + "/apps/quillmere.png"));
        if (!image.isNull()) icon.addPixmap(image);
    }
    if (!icon.isNull()) QGuiApplication::setWindowIcon(icon);
    if (OnFirstPicture) OnFirstPicture();
}

} // namespace quill
