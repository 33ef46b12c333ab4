#include "containers/columns.h"

#include "containers/arrange.h"
#include "containers/boundaries.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "core/objects.h"
#include "shortcuts/create.h"

#include <algorithm>

namespace quill {
namespace {

float FirstTop(const frmMain& Main, Parent in) {
    return HighestTop(Main, in) + measures::LinkExtra;
}

float HeightOfColumn(const frmMain& Main, const std::vector<int>& links, float spacing) {
    float height = -spacing;
    for (const int link : links) height += LabelPlace(Main, link).Height + spacing;
    return height;
}

// Where the labels of a column end, at its right.
float ReachOfColumn(const frmMain& Main, const std::vector<int>& links) {
    float width = 0;
    for (const int link : links) width = std::max(width, LabelPlace(Main, link).Width);
    return width;
}

void Put(frmMain& Main, int link, Point at) {
    auto& place = Main.LinkView(link).lblShortcut.Place;
    place.Left = at.X;
    place.Top = at.Y;
    MoveLinkIcon(Main, link);
}

// The lowest a label may end. A frame has no lower edge, it scrolls.
struct Room {
    float Top = 0, Bottom = 0, Right = 0;
};

Room RoomFor(const frmMain& Main, Parent in) {
    constexpr float endless = 1e9F;
    if (in.Kind == ParentKind::ContainerFrame) return {FirstTop(Main, in), endless, endless};
    const auto& back = Main.View.picBack.Place;
    return {FirstTop(Main, in), back.Height - measures::EdgeGap, back.Width - measures::RightmostObject};
}

using Column = std::vector<int>;

// Labels whose left edges lie within an icon's width of each other, from the left, each column from its top.
std::vector<Column> ColumnsOf(const frmMain& Main, Parent in) {
    Column all;
    EachShortcutIn(Main, in, [&](int link) { all.push_back(link); });
    const auto place = [&](int link) { return LabelPlace(Main, link); };
    std::ranges::stable_sort(all, {}, [&](int link) { return place(link).Left; });
    std::vector<Column> columns;
    for (const int link : all) {
        const bool begins =
            columns.empty() || place(link).Left - place(columns.back().front()).Left > measures::ColumnSlack;
        if (begins) columns.emplace_back();
        columns.back().push_back(link);
    }
    for (auto& column : columns)
        std::ranges::stable_sort(column, {}, [&](int link) { return place(link).Top; });
    return columns;
}

// Icon and label as one.
Rect WholeLink(const frmMain& Main, int link) {
    const auto label = LabelPlace(Main, link), icon = IconPlace(Main, link);
    const float top = std::min(label.Top, icon.Top);
    return {icon.Left, top, label.Right() - icon.Left, std::max(label.Bottom(), icon.Bottom()) - top};
}

std::vector<Rect> Taken(const frmMain& Main, Parent in) {
    std::vector<Rect> taken;
    EachShortcutIn(Main, in, [&](int link) { taken.push_back(WholeLink(Main, link)); });
    for (const auto& row : Live(Main.Pictures)) {
        if (Main.PicView(row.Index).In == in) taken.push_back(Main.PicView(row.Index).PicContainer);
    }
    if (in.Kind == ParentKind::ContainerFrame) return taken;
    for (const auto& row : Live(Main.Containers)) {
        const auto& box = Main.ConView(row.Index).Container;
        if (box.Visible) taken.push_back(box.Place);
    }
    return taken;
}

// The columns that a parent would have if it were empty. Rows is how many cells of a column are seen.
struct Cells {
    Point First; // of the label
    float RowStep = 0;
    int Rows = 1, Columns = 1;
    Size Cell;
};

Cells CellsOf(const frmMain& Main, Parent in) {
    using namespace measures;
    const auto ground = GroundSize(Main, in);
    const float edge = SmallIconPixels * TwipsPerPixel;
    const float height = std::max(edge, Main.Settings.FontSize * LinePerPoint);
    Cells cells;
    cells.First = {EdgeGap + edge + IconGap, FirstTop(Main, in)};
    cells.RowStep = height + static_cast<float>(RowSpacing(Main, in));
    cells.Cell = {ColumnStep - ColumnGap, height};
    const float down = ground.Height - cells.First.Y - height - EdgeGap;
    const float across = ground.Width - cells.First.X - RightmostObject;
    cells.Rows = std::max(1, static_cast<int>(down / cells.RowStep) + 1);
    cells.Columns = std::max(1, static_cast<int>(across / ColumnStep) + 1);
    return cells;
}

Point CellAt(const Cells& cells, int column, int row) {
    return {cells.First.X + static_cast<float>(column) * measures::ColumnStep,
            cells.First.Y + static_cast<float>(row) * cells.RowStep};
}

// How many objects lie on a cell.
std::ptrdiff_t LyingOn(const Cells& cells, const std::vector<Rect>& taken, Point cell) {
    const float icon = measures::SmallIconPixels * TwipsPerPixel + measures::IconGap;
    const Rect whole{cell.X - icon, cell.Y, cells.Cell.Width, cells.Cell.Height};
    return std::ranges::count_if(taken, [&](const Rect& other) { return other.Intersects(whole); });
}

} // namespace

void MeasureLink(frmMain& Main, int Index) {
    TakeShortcutStyle(Main, Index);
    if (!Main.LinkView(Index).LabelMeasured) SetNewLinkHeight(Main, Index);
}

void LayColumn(frmMain& Main, Parent in, const std::vector<int>& links, Point from) {
    for (const int link : links) MeasureLink(Main, link);
    const auto spacing = static_cast<float>(RowSpacing(Main, in));
    const auto room = RoomFor(Main, in);
    Point at{from.X,
             std::min(from.Y, std::max(room.Top, room.Bottom - HeightOfColumn(Main, links, spacing)))};
    const float step = ReachOfColumn(Main, links) + IconEdge(Main, links.front()) + measures::ColumnGap;
    for (const int link : links) {
        const float height = LabelPlace(Main, link).Height;
        if (at.Y > room.Top && at.Y + height > room.Bottom)
            at = {std::min(at.X + step, room.Right), room.Top};
        Put(Main, link, at);
        at.Y += height + spacing;
    }
    MarkParent(Main, in);
    if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
}

void LayShortcuts(frmMain& Main, Parent in) {
    for (const auto& column : ColumnsOf(Main, in)) {
        const auto first = LabelPlace(Main, column.front());
        LayColumn(Main, in, column, {first.Left, first.Top});
    }
}

// A workspace without a free cell takes the one on which least lies.
Point NextFreeCell(const frmMain& Main, Parent in) {
    const auto cells = CellsOf(Main, in);
    const auto taken = Taken(Main, in);
    auto best = cells.First;
    auto least = static_cast<std::ptrdiff_t>(taken.size()) + 1;
    for (int at = 0; at < cells.Columns * cells.Rows && least > 0; ++at) {
        const auto cell = CellAt(cells, at / cells.Rows, at % cells.Rows);
        const auto lying = LyingOn(cells, taken, cell);
        if (lying < least) least = lying, best = cell;
    }
    if (least == 0 || in.Kind == ParentKind::picBack) return best;
    int row = cells.Rows; // below what is seen: the frame scrolls
    while (LyingOn(cells, taken, CellAt(cells, 0, row)) > 0) ++row;
    return CellAt(cells, 0, row);
}

} // namespace quill
