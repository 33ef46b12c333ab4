#include "shortcuts/at_work.h"

#include "shortcuts/icons.h"

namespace quill {
namespace {

TEST(CaptionOfPath, IsTheNameWithoutTheEndingsOfLinksAndPrograms) {
    struct Row {
        const char* Path;
        const char* Caption;
    };
    for (const Row& row : {
             Row{"/opt/Program.EXE", "Program"},
             Row{"/home/user/Mail.lnk", "Mail"},
             Row{"/home/user/News.Url", "News"},
             Row{"/home/user/archive.zip", "archive.zip"},
             Row{"/home/user/two.exe.lnk", "two.exe"},
             Row{"/usr/bin/editor", "editor"},
             Row{"editor", "editor"},
             Row{"@/tools/run.exe", "run"},
             Row{"/", "/"},
             Row{"", ""},
             Row{"/home/.exe", ""},
         })
        EXPECT_EQ(CaptionOfPath(row.Path), row.Caption) << row.Path;
}

struct Stick : AtWork {
    Stick() {
        Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
        Computer.Places.Mounts["/media/other"] = DriveKind::Removable;
        Computer.Places.Program = "/media/stick/quillmere";
        Main.PortableMode = true;
    }
};

TEST_F(Stick, TheMarkerStandsForTheMountPointOfTheProgram) {
    struct Row {
        const char* Written;
        const char* Meant;
    };
    for (const Row& row : {
             Row{"@/sample/shortcut.txt", "/media/stick/sample/shortcut.txt"},
             Row{"@:\\sample\\shortcut.txt", "/media/stick/sample/shortcut.txt"},
             Row{"@:\\", "/media/stick/"},
             Row{"@", "/media/stick/"},
             Row{"/home/me@home/x", "/home/me@home/x"},
             Row{"", ""},
             Row{"https://user@host/", "https://user@host/"},
         })
        EXPECT_EQ(ExpandDriveMarker(Main, row.Written), row.Meant) << row.Written;
}

TEST_F(Stick, AWorkspaceGoesOnWorkingWhereverTheStickIsMounted) {
    const std::string stored = ToRelativePath(Main, "/media/stick/a/b");
    EXPECT_EQ(stored, "@/a/b");
    Computer.Places.Mounts["/run/media/user/STICK"] = DriveKind::Removable;
    Computer.Places.Program = "/run/media/user/STICK/quillmere";
    EXPECT_EQ(ExpandDriveMarker(Main, stored), "/run/media/user/STICK/a/b");
}

TEST_F(Stick, OnTheRootTheMarkerIsTheWholeTree) {
    Computer.Places.Program = "/opt/quillmere/bin";
    EXPECT_EQ(ToRelativePath(Main, "/usr/bin/x"), "@/usr/bin/x");
    EXPECT_EQ(ExpandDriveMarker(Main, "@/usr/bin/x"), "/usr/bin/x");
}

TEST_F(Stick, OnlyFilesOfTheProgramsRemovableDriveAreStoredRelative) {
    EXPECT_TRUE(ShouldUseRelativePath(Main, "/media/stick/a"));
    EXPECT_FALSE(ShouldUseRelativePath(Main, "/media/other/a")) << "another drive";
    EXPECT_FALSE(ShouldUseRelativePath(Main, "/home/user/a")) << "a fixed drive";
    EXPECT_FALSE(ShouldUseRelativePath(Main, "https://a.example/"));
    Main.PortableMode = false;
    EXPECT_FALSE(ShouldUseRelativePath(Main, "/media/stick/a"));
    Main.PortableMode = true;
    Computer.Places.Mounts["/media/stick"] = DriveKind::Fixed;
    EXPECT_FALSE(ShouldUseRelativePath(Main, "/media/stick/a")) << "the program's drive is fixed";
}

TEST_F(Stick, APathThatOnlyBeginsLikeTheDriveIsNotOnIt) {
    EXPECT_EQ(ToRelativePath(Main, "/media/stick2/a"), "/media/stick2/a");
}

TEST_F(Stick, AFileAddressIsThePathThatNoLineCanHold) {
    EXPECT_EQ(ResolvedPath(Main, "file:///home/user/a%20b%0Ac"), "/home/user/a b\nc");
    EXPECT_EQ(ResolvedPath(Main, "file:///x%E9%zz%"), "/x\xE9%zz%") << "what is no code stays";
    EXPECT_EQ(ResolvedPath(Main, "file://server/x"), "file://server/x") << "another machine's";
    EXPECT_EQ(ResolvedPath(Main, "/home/100%25"), "/home/100%25");
}

// ------------------------------------------------------------------------------------------------- icons

struct Icons : AtWork {
    std::string Source(int index, bool custom = true) {
        const IconSource source = GetIconSource(Main, index, custom);
        return source.ThemeName + "|" + source.File + (source.IsImage ? "|image" : "");
    }
};

TEST_F(Icons, ComeFromWhatTheShortcutIs) {
    EXPECT_EQ(Source(File("/home/user/letter.odt")), "|/home/user/letter.odt");
    EXPECT_EQ(Source(File("/usr/share/applications/mail.desktop")), "|/usr/share/applications/mail.desktop");
    EXPECT_EQ(Source(File("/home/user/lake.JPG")), "|/home/user/lake.JPG|image") << "a picture shows itself";
    EXPECT_EQ(Source(Url("https://a.example/x")), "|https://") << "what opens such addresses";
    EXPECT_EQ(Source(Url("mailto:me")), "|https://");
    EXPECT_EQ(Source(Url("sftp://host/x")), "|sftp://");
    EXPECT_EQ(Source(Command("echo hi")), "utilities-terminal|");
    EXPECT_EQ(Source(File("@/tools/x")), "|/tools/x") << "the marker is expanded";
}

TEST_F(Icons, AnOwnIconComesFirstUnlessTheTargetsIsWanted) {
    const int index = File("/home/user/letter.odt");
    Main.Link(index).Icon = "@/icons/star.png";
    EXPECT_EQ(Source(index), "|/icons/star.png|image");
    EXPECT_EQ(Source(index, false), "|/home/user/letter.odt");
    Main.Link(index).Icon = "note.ico";
    EXPECT_EQ(Source(index), "|/opt/quillmere/share/note.ico|image") << "one that came with the program";
    Main.Link(index).Icon = "mail-send";
    EXPECT_EQ(Source(index), "mail-send|") << "a name of the icon theme";
}

TEST_F(Icons, ASymbolStandsForTheKindWhereThereIsNoIcon) {
    EXPECT_EQ(GenericSymbol(Main.Link(Url("https://a.example/"))), "generic-link");
    EXPECT_EQ(GenericSymbol(Main.Link(Command("ls"))), "generic-program");
    EXPECT_EQ(GenericSymbol(Main.Link(File("/usr/bin/editor"))), "generic-program");
    EXPECT_EQ(GenericSymbol(Main.Link(File("/home/user/Documents"))), "generic-folder");
    EXPECT_EQ(GenericSymbol(Main.Link(File("/home/user/a.txt"))), "generic-file");
    EXPECT_EQ(GenericSymbol(Main.Link(File("/home/user/.config"))), "generic-folder");
}

} // namespace
} // namespace quill
