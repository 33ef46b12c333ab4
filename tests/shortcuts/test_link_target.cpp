#include "shortcuts/link_target.h"

#include "shortcuts/at_work.h"
#include "shortcuts/link_files.h"

namespace quill {
namespace {

using test::LinkFile;

struct LinkTargets : AtWork {
    LinkTargets() {
        Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
        Put("/media/stick/Tools/edit.exe");
        Put("/media/stick/Links/near.exe");
        Put("/home/user/a.txt");
        Put("/opt/Tools/edit.exe");
    }
    void Put(const std::string& path, const std::string& bytes = "x") { Computer.Files.Put(path, bytes); }
    std::string Resolve(const std::string& path) {
        const LinkTarget target = ResolveLink(Main, path);
        constexpr const char* kinds[] = {"none", "target", "address", "entry"};
        std::string words = kinds[static_cast<int>(target.Kind)];
        for (const std::string& text : {target.Path, target.Caption, target.Parameters, target.StartIn})
            if (!text.empty()) words += " [" + text + "]";
        return words;
    }
    std::string Lnk(const LinkFile& file, const std::string& path = "/media/stick/Links/a.lnk") {
        Put(path, file.Text());
        return Resolve(path);
    }
    std::string Local(const std::string& local) {
        LinkFile file;
        file.Local = local;
        return Lnk(file);
    }
    std::string Relative(const std::string& relative) {
        LinkFile file;
        file.Relative = relative;
        return Lnk(file);
    }
    std::string Share(const std::string& share, const std::string& suffix) {
        LinkFile file;
        file.Share = share;
        file.Suffix = suffix;
        return Lnk(file);
    }
    std::string Url(const std::string& address, const std::string& path = "/home/user/b.url") {
        Put(path, "[InternetShortcut]\r\nURL=" + address + "\r\n");
        return Resolve(path);
    }
    std::string Entry(const std::string& text) {
        Put("/home/user/c.desktop", "[Desktop Entry]\n" + text);
        return Resolve("/home/user/c.desktop");
    }
};

TEST_F(LinkTargets, WhatALinkNamesIsLookedForOnItsDriveAndFromItsFolder) {
    EXPECT_EQ(Local("E:\\Tools\\edit.exe"), "target [/media/stick/Tools/edit.exe]") << "whatever the letter";
    EXPECT_EQ(Local("e:\\Tools\\"), "target [/media/stick/Tools]");
    EXPECT_EQ(Local("E:\\"), "target [/media/stick]");
    EXPECT_EQ(Relative("near.exe"), "target [/media/stick/Links/near.exe]");
    EXPECT_EQ(Relative(".\\near.exe"), "target [/media/stick/Links/near.exe]");
    EXPECT_EQ(Relative("..\\Tools\\edit.exe"), "target [/media/stick/Tools/edit.exe]");
}

TEST_F(LinkTargets, TheWholePathGoesBeforeTheOneFromItsFolder) {
    LinkFile file;
    file.Local = "E:\\Tools\\edit.exe";
    file.Relative = "near.exe";
    EXPECT_EQ(Lnk(file), "target [/media/stick/Tools/edit.exe]");
    file.Local = "E:\\gone.exe";
    EXPECT_EQ(Lnk(file), "target [/media/stick/Links/near.exe]");
}

TEST_F(LinkTargets, OnlyWhatIsThereIsATarget) {
    EXPECT_EQ(Local("C:\\Windows\\notepad.exe"), "none");
    EXPECT_EQ(Local("no drive\\a"), "none");
    EXPECT_EQ(Local(""), "none");
    EXPECT_EQ(Relative("..\\gone"), "none");
    EXPECT_EQ(Relative("\\Tools\\edit.exe"), "none");
}

TEST_F(LinkTargets, NothingOutsideItsOwnDriveIsTakenForTheTarget) {
    Put("/etc/passwd");
    for (const char* relative : {"..\\..\\..\\etc\\passwd", "..\\..\\..\\..\\..\\..\\etc\\passwd",
                                 "..\\../../../etc/passwd", "..\\..\\stick2\\x"})
        EXPECT_EQ(Relative(relative), "none") << relative;
    EXPECT_EQ(Local("E:\\..\\..\\etc\\passwd"), "none");
    Put("/media/stick2/x");
    EXPECT_EQ(Relative("..\\..\\stick2\\x"), "none");
}

TEST_F(LinkTargets, AProgramInTheFolderForOtherProgramsIsFoundInTheOneWhereItIs) {
    Put("/media/stick/Program Files/App/app.exe");
    EXPECT_EQ(Local("C:\\Program Files (x86)\\App\\app.exe"),
              "target [/media/stick/Program Files/App/app.exe]");
    Put("/media/stick/Program Files (x86)/App/app.exe");
    EXPECT_EQ(Local("C:\\Program Files (x86)\\App\\app.exe"),
              "target [/media/stick/Program Files (x86)/App/app.exe]")
        << "one that is there is taken as it is";
    Put("/media/stick/Games/app.exe");
    EXPECT_EQ(Local("C:\\Games (x86)\\app.exe"), "none") << "other folders keep their names";
}

TEST_F(LinkTargets, ArgumentsAreTrimmedAndTheStartFolderIsOneThatIsThere) {
    LinkFile file;
    file.Local = "E:\\Tools\\edit.exe";
    file.Arguments = "  --new \"a b\" ";
    file.WorkingDirectory = "E:\\Tools";
    EXPECT_EQ(Lnk(file), "target [/media/stick/Tools/edit.exe] [--new \"a b\"] [/media/stick/Tools]");
    for (const char* folder : {"E:\\gone", "E:\\Tools\\edit.exe", "%HOMEDRIVE%", "..\\..\\etc"}) {
        file.WorkingDirectory = folder;
        EXPECT_EQ(Lnk(file), "target [/media/stick/Tools/edit.exe] [--new \"a b\"]") << folder;
    }
}

TEST_F(LinkTargets, AShareIsAnAddressOfTheNetworkAndNobodyWaitsForIt) {
    EXPECT_EQ(Share("\\\\server\\share", "docs\\a b%.txt"), "target [smb://server/share/docs/a%20b%25.txt]");
    EXPECT_EQ(Share("\\\\10.0.0.1\\share", ""), "target [smb://10.0.0.1/share]");
    for (const char* share : {"\\\\server", "\\\\\\share", "\\\\user@server\\share", "\\\\ser ver\\x",
                              "\\\\-o\\x", "\\\\?\\C:\\x", "server\\share", "\\\\server\\.."})
        EXPECT_EQ(Share(share, ""), "none") << share;
    EXPECT_TRUE(Computer.Shell.Asked.empty());
}

TEST_F(LinkTargets, ALinkToItselfOrToALinkIsFollowedNoFurther) {
    EXPECT_EQ(Relative("a.lnk"), "none");
    Put("/media/stick/Links/b.lnk", "damaged");
    EXPECT_EQ(Relative("b.lnk"), "target [/media/stick/Links/b.lnk]");
    EXPECT_EQ(Url("file:///home/user/b.url"), "none");
}

TEST_F(LinkTargets, AUrlFileStandsForItsAddress) {
    EXPECT_EQ(Url("https://a.example/x?a=b%20c"), "address [https://a.example/x?a=b%20c]");
    EXPECT_EQ(Url("mailto:a@b.example"), "address [mailto:a@b.example]");
    EXPECT_EQ(Url("ftp://a.example/"), "address [ftp://a.example/]");
    EXPECT_EQ(Url("https://a.example/", "/home/user/B.URL"), "address [https://a.example/]");
}

TEST_F(LinkTargets, AUrlFileWithAFileStandsForThatFile) {
    EXPECT_EQ(Url("file:///home/user/a.txt"), "target [/home/user/a.txt]");
    Put("/home/user/a b.txt");
    EXPECT_EQ(Url("FILE:///home/user/./x/../a%20b.txt"), "target [/home/user/a b.txt]");
    EXPECT_EQ(Url("file:///E:/Tools/edit.exe", "/media/stick/b.url"), "target [/media/stick/Tools/edit.exe]");
    EXPECT_EQ(Url("file:///home/user/gone"), "none");
    EXPECT_EQ(Url("file://server/home/user/a.txt"), "none") << "of another machine";
}

TEST_F(LinkTargets, AnAddressThatCarriesAProgramOrIsNoneIsNotTaken) {
    for (const char* address : {"javascript:alert(1)", "data:text/html,x", "C:\\Windows\\x.exe", "https://",
                                "just words", "https://a.example/ x", "vbscript:x", "steam://run/1"})
        EXPECT_EQ(Url(address), "none") << address;
}

TEST_F(LinkTargets, ADesktopEntryStaysItselfUnderItsName) {
    EXPECT_EQ(Entry("Type=Application\nName=Editor\nComment=Edits\nExec=x\n"),
              "entry [/home/user/c.desktop] [Editor]");
    Computer.Places.Spoken = {"de_DE", "de"};
    EXPECT_EQ(Entry("Type=Application\nName=Editor\nName[de]=Bearbeiter\n"),
              "entry [/home/user/c.desktop] [Bearbeiter]");
    EXPECT_EQ(Entry("Type=Application\nName=two\\nlines\n"), "entry [/home/user/c.desktop] [two lines]");
    EXPECT_EQ(Entry("Type=Link\nName=Site\nURL=https://a.example/\n"), "address [https://a.example/] [Site]");
    EXPECT_EQ(Entry("Type=Link\nName=File\nURL=file:///home/user/a.txt\n"),
              "target [/home/user/a.txt] [File]");
    EXPECT_EQ(Entry("Type=Directory\nName=Folder\n"), "none");
    EXPECT_EQ(Entry("Type=Link\nName=Site\nURL=javascript:x\n"), "none");
}

TEST_F(LinkTargets, OneThatCantBeReadIsItself) {
    LinkFile file;
    file.Local = "E:\\Tools\\edit.exe";
    const std::string good = file.Text();
    const std::string path = "/media/stick/Links/a.lnk";
    Put(path, good.substr(0, good.size() - 1));
    EXPECT_EQ(Resolve(path), "none") << "damaged";
    Put(path, good + std::string(2 << 20, '\0'));
    EXPECT_EQ(Resolve(path), "none") << "too large";
    Put(path, good);
    EXPECT_NE(Resolve(path), "none");
    Computer.Files.FailReading(path, Reason::Denied);
    EXPECT_EQ(Resolve(path), "none") << "not allowed";
    EXPECT_EQ(Resolve("/media/stick/gone.lnk"), "none");
    Computer.Files.PutFolder("/home/user/folder.lnk");
    EXPECT_EQ(Resolve("/home/user/folder.lnk"), "none");
}

TEST_F(LinkTargets, NoServerIsAskedForALinkOrForWhatItNames) {
    Computer.Shell.NetworkPaths = {"/mnt/nas"};
    Put("/mnt/nas/a.url", "[InternetShortcut]\nURL=https://a.example/");
    Put("/mnt/nas/b.txt");
    Computer.Files.Recount();
    EXPECT_EQ(Resolve("/mnt/nas/a.url"), "none");
    EXPECT_TRUE(Computer.Files.Reads.empty());
    EXPECT_EQ(Url("file:///mnt/nas/b.txt"), "none");
    LinkFile file;
    file.Relative = "..\\..\\mnt\\nas\\b.txt";
    EXPECT_EQ(Lnk(file, "/home/user/c.lnk"), "none");
}

TEST_F(LinkTargets, NamesThatAreNoLinksAreNotEvenRead) {
    Computer.Files.Recount();
    for (const char* path :
         {"/home/user/a.txt", "/lnk", "/home/user/a.lnk.bak", "", "https://a.example/b.url"})
        EXPECT_EQ(Resolve(path), "none") << path;
    EXPECT_TRUE(Computer.Files.Reads.empty());
}

TEST_F(LinkTargets, HostileContentIsTextAndNothingElse) {
    const std::string name = std::string(200, 'x') + "\"; $(touch y) %s \n";
    Put("/media/stick/" + name);
    LinkFile file;
    file.Local = "E:\\" + name;
    file.Arguments = "\"; rm -rf ~\n'" + std::string(4096, 'a');
    Put("/media/stick/Links/a.lnk", file.Text());
    const LinkTarget target = ResolveLink(Main, "/media/stick/Links/a.lnk");
    EXPECT_EQ(target.Path, "/media/stick/" + name);
    EXPECT_EQ(target.Parameters, file.Arguments);
}

} // namespace
} // namespace quill
