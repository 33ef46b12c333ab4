// Any bytes as a link file of each kind: what is read of it is text, and what it is followed to is there,
// lies on its own drive and is not the link itself.
#include "fuzz_workspace.h"

#include "persistence/text_values.h"
#include "shortcuts/desktop_entry.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/link_target.h"
#include "shortcuts/shell_link.h"
#include "shortcuts/url_file.h"

using namespace quill;

namespace {

void CheckText(const std::string& text) {
    fuzz::Require(IsUtf8(text));
}

void CheckReaders(std::string_view bytes) {
    if (const auto link = ReadShellLink(bytes)) {
        for (const std::string& text : {link->LocalPath, link->NetworkPath, link->RelativePath,
                                        link->WorkingDirectory, link->Arguments, link->Description}) {
            CheckText(text);
            fuzz::Require(text.find('\0') == text.npos);
        }
    }
    if (const auto address = ReadUrlFile(bytes)) {
        CheckText(*address);
        fuzz::Require(!address->empty() && address->find('\n') == address->npos);
    }
    if (const auto entry = ReadDesktopEntry(bytes, {"de_DE", "de"})) {
        CheckText(entry->Name);
        fuzz::Require(!entry->Name.empty() && !entry->Type.empty());
    }
    CheckText(FromTextFile(bytes));
}

// A ".url" and an entry may name any file of this machine, a ".lnk" only what is on its drive.
void CheckTarget(const frmMain& Main, const fake::Computer& computer, const std::string& path,
                 bool anywhere) {
    const LinkTarget target = ResolveLink(Main, path);
    fuzz::Require(ShownLine(target.Caption) == target.Caption);
    if (target.Kind == LinkKind::None) return fuzz::Require(target.Path.empty());
    if (target.Kind == LinkKind::Address) return fuzz::Require(IsWebAddress(target.Path));
    if (target.Kind == LinkKind::Entry) return fuzz::Require(target.Path == path);
    if (target.Path.starts_with("smb://")) return;
    fuzz::Require(target.Path != path && computer.Files.Exists(target.Path));
    fuzz::Require(anywhere || (target.Path + "/").starts_with("/media/stick/"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CheckReaders(bytes);
    fuzz::Workspace workspace;
    workspace.Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    for (const char* path : {"/media/stick/Tools/edit.exe", "/media/stick/x", "/etc/passwd"})
        workspace.Computer.Files.Put(path, "x");
    for (const char* name : {"a.lnk", "b.url", "c.desktop"}) {
        const std::string path = "/media/stick/Links/" + std::string(name);
        workspace.Computer.Files.Put(path, bytes);
        CheckTarget(workspace.Main, workspace.Computer, path, path.back() != 'k');
    }
    return 0;
}
