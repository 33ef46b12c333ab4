#include "appearance/carried.h"
#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/icons.h"

#include <algorithm>
#include <string>

namespace quill {
namespace {

constexpr float Rim = 75;           // around the rows
constexpr float RowGap = 30;        // between them
constexpr float WidestLabel = 3000; // a longer caption ends in an ellipsis
constexpr float LabelReach = 90;    // of a caption beyond its label
constexpr float BadgeHeight = 270;
constexpr float BadgePoints = 9;

struct Row {
    int Index = -1;
    Rect Icon, Label;
};

float WidestIcon(const frmMain& Main, const std::vector<DraggedObject>& objects, std::size_t rows) {
    float widest = 0;
    for (std::size_t at = 0; at < rows; ++at) widest = std::max(widest, IconEdge(Main, objects[at].Index));
    return widest;
}

// Icon and label of each row stand to each other as they do where they come from.
std::vector<Row> Rows(const frmMain& Main, const std::vector<DraggedObject>& objects) {
    std::vector<Row> rows;
    const std::size_t count = std::min(objects.size(), MostCarriedRows);
    const float labels = Rim + WidestIcon(Main, objects, count) + measures::IconGap;
    float top = Rim;
    for (std::size_t at = 0; at < count; ++at) {
        const int index = objects[at].Index;
        const float edge = IconEdge(Main, index);
        const Rect label = LabelPlace(Main, index);
        const float height = std::max(edge, label.Height);
        rows.push_back({index,
                        {labels - measures::IconGap - edge, top + (height - edge) / 2, edge, edge},
                        {labels, top + (height - label.Height) / 2,
                         std::min(label.Width + LabelReach, WidestLabel), label.Height}});
        top += height + RowGap;
    }
    return rows;
}

Size BadgeSize(const std::vector<DraggedObject>& objects) {
    if (objects.size() < 2) return {};
    const auto digits = static_cast<float>(std::to_string(objects.size()).size());
    return {BadgeHeight + (digits - 1) * BadgeHeight / 2, BadgeHeight};
}

void PaintRow(const frmMain& Main, const Row& row, Color ink, Canvas& canvas) {
    if (!canvas.Icon(GetIconSource(Main, row.Index, true), row.Icon))
        canvas.Symbol(GenericSymbol(Main.Link(row.Index)), row.Icon, ink, 0.8F);
    EruLabel label = Main.LinkView(row.Index).lblShortcut;
    label.Place = row.Label;
    label.ForeColor = ink;
    label.BackStyle = label.BorderStyle = label.BorderWidth = 0;
    label.SetOpacity(1);
    TextStyle style;
    style.Elide = row.Label.Width >= WidestLabel;
    style.VerticalCenter = true;
    PaintEruLabel(canvas, label, Main.Settings.FontName, style);
}

void PaintBadge(const frmMain& Main, const std::vector<DraggedObject>& objects, Size plate, Color ink,
                Canvas& canvas) {
    const Size size = BadgeSize(objects);
    if (size.Width == 0) return;
    const Rect place{plate.Width - Rim - size.Width, Rim, size.Width, size.Height};
    canvas.RoundRect(place, size.Height / 2, ink, {});
    TextStyle style;
    style.Font = {Main.Settings.FontName, BadgePoints, true};
    style.Ink = Main.View.BackColor;
    style.Align = TextAlign::Center;
    style.VerticalCenter = true;
    canvas.Text(place, std::to_string(objects.size()), style);
}

} // namespace

Size CarriedSize(const frmMain& Main, const std::vector<DraggedObject>& objects) {
    if (objects.empty()) return {};
    if (IsPicture(objects.front())) {
        const Rect& frame = Main.PicView(objects.front().Index).PicContainer;
        return {frame.Width, frame.Height};
    }
    Size size;
    for (const Row& row : Rows(Main, objects)) {
        size.Width = std::max(size.Width, row.Label.Right());
        size.Height = std::max(row.Icon.Bottom(), row.Label.Bottom());
    }
    const float badge = BadgeSize(objects).Width;
    return {size.Width + Rim + (badge > 0 ? badge + Rim : 0), size.Height + Rim};
}

Point CarriedCorner(const frmMain& Main, const std::vector<DraggedObject>& objects) {
    if (objects.empty() || IsPicture(objects.front())) return {};
    const Rect label = Rows(Main, objects).front().Label;
    return {label.Left, label.Top};
}

void PaintCarried(frmMain& Main, const std::vector<DraggedObject>& objects, Canvas& canvas) {
    if (objects.empty()) return;
    if (IsPicture(objects.front())) return PaintPicture(Main, objects.front().Index, canvas);
    const Size size = CarriedSize(Main, objects);
    const Color ink = InkOn(Main, Main.View.BackColor);
    canvas.RoundRect({0, 0, size.Width, size.Height}, CornerRadius / 2, Main.View.BackColor, {1, ink});
    for (const Row& row : Rows(Main, objects)) PaintRow(Main, row, ink, canvas);
    PaintBadge(Main, objects, size, ink, canvas);
}

} // namespace quill
