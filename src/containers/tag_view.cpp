#include "containers/tag_view.h"

#include "containers/layout.h"
#include "containers/scroll.h"
#include "core/lower_case.h"
#include "core/objects.h"

namespace quill {
namespace {

std::string Reduced(std::string_view tag) {
    auto text = LowerCase(tag);
    std::erase_if(text, [](char letter) { return letter == ' ' || letter == '\t'; });
    return text;
}

bool HoldsItem(std::string_view items, std::string_view item) {
    const auto list = "," + std::string(items) + ",";
    return list.find("," + std::string(item) + ",") != std::string::npos;
}

} // namespace

bool HasTag(std::string_view tags, std::string_view tag) {
    const auto wanted = Reduced(tag);
    return !wanted.empty() && HoldsItem(Reduced(tags), wanted);
}

void ApplyContainerTag(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    const auto tag = Reduced(Main.Con(Index).ShowingTag);
    for (auto& row : Live(Main.Shortcuts)) {
        auto& view = Main.LinkView(row.Index);
        if (view.In != InContainer(Index)) continue;
        row.Object.TagHidden = !tag.empty() && !HoldsItem(Reduced(row.Object.Tags), tag);
        view.Visible = !row.Object.TagHidden;
    }
    ShowHideContainerToolbar(Main, Index, !Main.Con(Index).HideToolbar);
    if (!Main.IsLoading) LayScrollBar(Main, Index);
}

} // namespace quill
