// frmEditLink: the properties of one shortcut or of several, or of a clone in the making. The value is what
// the dialog's controls hold, which the form fills in before OK; nothing changes before that. Only what a
// person has changed is written, so that of several shortcuts each keeps what was left alone.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <vector>

namespace quill {

// The controls as a plain value. A path that no line can hold stands here as its address.
struct LinkProperties {
    std::string txtLabel, txtPath, txtParam, txtStartIn, txtIcon, txtTags, txtTip, txtSize;
    int cboRun = 0;         // 0 normal, 1 minimised, 2 maximised; -1: a state that has no entry, and is kept
    int cboSpeedLaunch = 0; // 0 none, 1 to 9; -1: a number that has no entry, and is kept
    bool chkPromptForParameters = false, chkAdminPriv = false, chkConfirm = false, ChkCommand = false,
         chkTagStart = false, ChkBold = false;
    Color PicLinkColor = -1; // -1: that of where it lies
};

enum class LinkField {
    Path,
    Parameters,
    StartIn,
    RunIn,
    Icon,
    Tags,
    Tip,
    PromptParameters,
    Admin,
    Confirm,
    Command,
    TagStart,
    Label,
    SpeedLaunch,
    Bold,
    Size,
    Ink,
};
inline constexpr int LinkFields = 17;

class frmEditLink : public LinkProperties {
public:
    struct Opening {
        int Index = -1;        // -1: the current shortcut
        std::string ErrorText; // a start that failed; shown, and only this shortcut is written
        bool Clone = false;
        bool Command = false; // a command in the making: the box is checked at once
    };
    frmEditLink(frmMain& main, const Opening& opening);
    frmEditLink(const frmEditLink&) = delete;
    frmEditLink& operator=(const frmEditLink&) = delete;

    bool chkApplyStyle = false; // the style goes to all of several, not to the first alone

    // What the form shows.
    std::string Caption() const;
    std::string lblError() const { return opening_.ErrorText; }
    bool IsClone() const { return opening_.Clone; }
    bool IsForSeveral() const { return several_; }
    std::string OkCaption() const;                                    // "&OK" or "&Clone"
    const std::vector<std::string>& cboTags() const { return tags_; } // "Existing Tags" first
    Color ShownColor() const;                                         // of the swatch
    std::string ParamCaption() const; // of the field that is the command of a command
    std::string ParamTip() const;
    std::string ParamFieldTip() const;
    std::string lblRelativePath() const; // what "@" means, where that matters; empty: nothing is said
    bool IsMixed(LinkField field) const; // several are edited, and they differ

    // What a person does.
    void Touch(LinkField field, bool touched = true); // it is written even if it stands as before
    void ChkCommand_Click();
    void cboTags_Click(int entry);
    void CmdBrowse_Click();
    void cmdBrowseStartIn_Click();
    void cmdChooseFileIcon_Click();
    void PicLinkColor_Click();
    void cmdProperties_Click(); // the desktop's own properties of the file
    void cmdReset_Click();      // the style, after a question
    // Empty: written and saved. Otherwise what is wrong, and the dialog stays.
    std::string cmdEditOK_Click();
    std::string cmdEditSaveOpen_Click();
    bool WantsStart() const { return start_; } // after Save and Open: the caller starts Written()
    int Written() const { return written_; }   // the shortcut that OK wrote, or made; the first of several

    const frmMain& Workspace() const { return Main; }

private:
    void Fill();
    bool IsChanged(LinkField field) const;
    bool AreThere() const;
    void DropDead();
    std::string WhyNot() const;
    void SettleSpeedLaunch();
    void FreeSpeedLaunch(int kept);
    void Write();
    int MakeClone();
    void SaveShortcutProperties(int Index);
    void WriteStyle(int Index);
    std::string ChosenFile(const std::string& now);

    frmMain& Main;
    Opening opening_;
    LinkProperties before_;         // as the dialog found it
    bool touched_[LinkFields] = {}; // by LinkField
    std::vector<int> targets_;      // the shortcuts that are edited, the first is shown
    bool several_ = false;          // they were more than one when the dialog was opened
    std::vector<std::string> tags_;
    std::string pathOfFile_; // what ChkCommand has emptied
    int written_ = -1;
    bool start_ = false;
};

// The record as the dialog shows it.
LinkProperties PropertiesOf(const frmMain& Main, int Index);
bool SameField(LinkField field, const LinkProperties& one, const LinkProperties& other);
// Into the record, and what shows of it. Neither places nor saves; a size that is none is left out.
void WriteLinkField(frmMain& Main, int Index, LinkField field, const LinkProperties& value);
// What a line of the dialog says as a record has it.
std::string PathOfLine(const std::string& line);
std::string LineOfPath(const std::string& path);

// Shows the dialog, once at a time, and starts what Save and Open asked for.
void ShowShortcutProperties(frmMain& Main, const frmEditLink::Opening& opening);

// Lines of the shortcut's menu.
void mnuShortcutProperties_Click(frmMain& Main);
void mnuCloneShortcut_Click(frmMain& Main);
void mnuLinkReset_Click(frmMain& Main);     // ResetSelectedShortcutStyles
void mnuColorFromIcon_Click(frmMain& Main); // of every selected shortcut
// Each distinct trimmed tag of all shortcuts, in table order, compared without case.
std::vector<std::string> ExistingTags(const frmMain& Main);

} // namespace quill
