// frmConProperties: the properties of the current container, or the colours of several selected ones. The
// public fields are the dialog's controls as a plain value, which the form fills in before OK. Colours and
// the icon show at once on the workspace; what was not accepted is put back, at the latest when the dialog
// goes. A container that dies meanwhile is left out.
#pragma once

#include "core/frmMain.h"
#include "platform/drawing.h"

#include <optional>
#include <string>
#include <vector>

namespace quill {

enum class PickedColor { Back, Fore, BackText, ForeText };

// One container as the dialog found it.
struct ContainerLooks {
    int Index = -1;
    Color Back = 0, Fore = 0, BackText = 0, ForeText = 0;
    std::string ShrinkPath;
};

class frmConProperties {
public:
    explicit frmConProperties(frmMain& main); // filled from the selection, or from CurrentContainer
    ~frmConProperties();                      // puts back what was not accepted
    frmConProperties(const frmConProperties&) = delete;
    frmConProperties& operator=(const frmConProperties&) = delete;

    // The value.
    std::string txtContainerName;
    std::string txtSpacing; // pixels; left as it was, the spacing stays as it is
    bool chkSpacebarFlip = false;
    bool chkHideToolbar = false;
    int cboShrinkSize = 0; // 0 normal, 1 small, 2 tiny
    // Those of the first container, as they show now.
    Color picBackColor = 0, picFore = 0, picBackText = 0, picForeText = 0;

    // What the form shows.
    std::string Title() const;
    bool IsForSeveral() const { return before_.size() > 1; }
    std::string CaptionOf(PickedColor which) const; // "Note Background" ... by the kind of content
    std::string TextColorsCaption() const;          // "Note Colors", "RSS Colors"
    bool HasTextColors() const;                     // a reminder has those of its container
    Color ColorOf(PickedColor which) const;
    std::optional<Rect> PlaceOnScreen() const; // of the first container, twips on the desktop
    IconSource Icon() const;                   // of the first container
    const std::vector<std::string>& ColorEntries() const { return colorEntries_; } // of CboColors
    static bool IsColorSeparator(int entry) { return entry == 2; }

    // What a person does. Each shows its outcome on the workspace.
    void PickColor(PickedColor which);
    void PicJumpToIcon_Click();
    void CboColors_Click(int entry);
    // Empty: accepted and saved. Otherwise what is wrong, and the dialog stays.
    std::string OKButton_Click();
    void CancelButton_Click();

    const frmMain& Workspace() const { return Main; } // for the form's texts

private:
    void Give(int Index, PickedColor which, Color color);
    void GiveAll(PickedColor which, const std::optional<Color>& color);
    void ColorsOfSettings();
    void ColorsFromIcons();
    void TakeShown();
    void ApplyFields(int Index);
    bool IsFeed() const; // all of them are
    std::optional<Color> IconColor(int Index) const;

    frmMain& Main;
    std::vector<ContainerLooks> before_;
    std::vector<std::string> colorEntries_;
    std::string spacingBefore_;
    int sizeBefore_ = 0;
    bool done_ = false;
};

} // namespace quill
