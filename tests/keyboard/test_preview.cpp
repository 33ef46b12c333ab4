#include "keyboard/preview.h"

#include "keyboard/launcher_fixture.h"

namespace quill {
namespace {

struct Previewing : test::LauncherFixture {
    std::string Typing(const std::string& text) {
        Type(text);
        return Preview();
    }
};

struct PreviewRow {
    const char* Text;
    bool SearchOnSpace;
    const char* Shows; // name | hint
    const char* Icon;
};

constexpr const char* own = "Keyboard Launcher | Open shortcuts, folders and URLs";

const PreviewRow previews[] = {
    {"/usr/lib", false, "/usr/lib | Use the arrow keys to navigate", "folder"},
    {"~", false, "~ | Use the arrow keys to navigate", "folder"},
    {"usr/lib", false, "usr/lib | Open shortcuts, folders and URLs", "folder"},
    {"xy /usr/a.txt", false, "xy /usr/a.txt | Open shortcuts, folders and URLs", "folder"},
    {"notepad /usr/a.txt", true, "notepad /usr/a.txt | Open shortcuts, folders and URLs", "folder"},
    {"t work", false, "work | Tag Start: t [tag name]", "quillmere"},
    {"T  work , home ", false, "work , home | Tag Start: t [tag name]", "quillmere"},
    {"=2+2", false, "Calculator | = expression: (x+x)*x/(x-x)...", "accessories-calculator"},
    {"=1/2", false, "Calculator | = expression: (x+x)*x/(x-x)...", "accessories-calculator"},
    {"= 2 + 2", true, "Calculator | = expression: (x+x)*x/(x-x)...", "accessories-calculator"},
    {"n buy milk", false, "\"buy milk\" | Note: n [text]", "/opt/quillmere/share/note.ico"},
    {"n ", false, "\"\" | Note: n [text]", "/opt/quillmere/share/note.ico"},
    {"n /usr/lib", false, "\"/usr/lib\" | Note: n [text]", "/opt/quillmere/share/note.ico"},
    {"r 15 tea", true, "Quick Reminder | Reminder: r [minutes] [reminder]",
     "/opt/quillmere/share/reminder.ico"},
    {"example.com", false, "Open URL | Launch your web browser", "https://"},
    {"example.com/a/b", false, "Open URL | Launch your web browser", "https://"},
    {"ftp://host", false, "Open URL | Launch your web browser", "https://"},
    {"s open mind", false, "open mind | Web Search: s [search query]", "edit-find"},
    {"S a.b", false, "a.b | Web Search: s [search query]", "edit-find"},
    {"open mind", true, "open mind | Web Search: [search query]", "edit-find"},
    {"s open mind", true, "open mind | Web Search: s [search query]", "edit-find"},
    {"nothing", false, own, "quillmere"},
    {"nothing.at all", false, own, "quillmere"},
    {"   ", false, own, "quillmere"},
    {"not", false, "Notepad | Open shortcuts, folders and URLs", "shortcut 0"},
    {"epa", true, "Notepad | Open shortcuts, folders and URLs", "shortcut 0"},
    {"notepad x", false, "Notepad | Open shortcuts, folders and URLs", "shortcut 0"},
    {"notepad /usr/a.txt", false, "Notepad | Open shortcuts, folders and URLs", "shortcut 0"},
    {"tagged", false, "Tagged | Tags: home, work", "shortcut 1"},
    {"starter", false, "Starter | Tag Start: home", "shortcut 2"},
    {"far", false, "Far | Open shortcuts, folders and URLs", "shortcut 3 or folder-remote"},
    {"t re", false, "re | Tag Start: t [tag name]", "quillmere"},
};

TEST_F(Previewing, EachTextShowsWhatEnterWouldDo) {
    for (const char* file : {"note.ico", "reminder.ico"})
        desk.Files().Put(std::string("/opt/quillmere/share/") + file, "icon");
    Link("Notepad");
    Main().Link(Link("Tagged")).Tags = "home, work";
    const int starter = Link("Starter");
    Main().Link(starter).Tags = "home";
    Main().Link(starter).TagStart = true;
    Main().Link(Link("Far")).Path = "smb://server/share";
    Link("T Rex");
    for (const auto& row : previews) {
        Main().Settings.SearchOnSpace = row.SearchOnSpace;
        EXPECT_EQ(Typing(row.Text), row.Shows) << row.Text;
        EXPECT_EQ(Icon(), row.Icon) << row.Text;
    }
}

TEST_F(Previewing, TheMatchIsTheCurrentAndTheOnlySelectedShortcut) {
    const int first = Link("First"), second = Link("Second");
    SetSelection(Main(), first, true);
    SetSelection(Main(), second, true);
    Type("sec");
    EXPECT_EQ(Selected(), "Second");
    EXPECT_EQ(Main().Links.CurrentShortcut, second);
    EXPECT_EQ(Main().Links.DragIndex, second);
    EXPECT_EQ(Keys().MatchIndex, second);
    desk.Type("x");
    EXPECT_EQ(Selected(), "") << "nothing is found";
    EXPECT_EQ(Keys().MatchIndex, NoMatch);
    Press(8);
    EXPECT_EQ(Selected(), "Second");
    Press(KeyEscape);
    EXPECT_EQ(Selected(), "") << "an empty text clears the selection";
}

TEST_F(Previewing, ABlankUnderSearchOnSpaceLooksForNoShortcut) {
    Link("My Notes");
    Main().Settings.SearchOnSpace = true;
    Type("my");
    EXPECT_EQ(Selected(), "My Notes");
    desk.Type(" ");
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Keys().MatchIndex, NoShortcutMeant);
}

TEST_F(Previewing, ItsResultIsTheMatchThatWasHandedIn) {
    const int first = Link("Same"), second = Link("Same");
    Open();
    int match = NoMatch;
    UpdateJumpTo(Main(), "same", match);
    EXPECT_EQ(match, first);
    match = second;
    UpdateJumpTo(Main(), "same", match);
    EXPECT_EQ(match, second) << "the highlighted line's shortcut";
    match = NoMatch;
    UpdateJumpTo(Main(), "nothing", match);
    EXPECT_EQ(match, NoMatch);
}

TEST_F(Previewing, ALoneLetterWithABlankLooksForNothingInTheMiddleOfNames) {
    Link("Start Menu"), Link("Max Power");
    EXPECT_EQ(Typing("t "), " | Tag Start: t [tag name]");
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Typing("x po"), own);
    EXPECT_EQ(Typing("ax po"), "Max Power | Open shortcuts, folders and URLs");
}

TEST_F(Previewing, ALoneTIsAnOrdinarySearch) {
    Link("Start Menu");
    EXPECT_EQ(Typing("t"), "Start Menu | Open shortcuts, folders and URLs");
}

TEST_F(Previewing, AnEqualNameIsNoAddressAndAnyOtherIs) {
    Link("readme.txt");
    EXPECT_EQ(Typing("readme.txt"), "readme.txt | Open shortcuts, folders and URLs");
    EXPECT_EQ(Typing("readme.tx"), "Open URL | Launch your web browser");
    EXPECT_EQ(Selected(), "") << "what is shown is what Enter does";
}

TEST_F(Previewing, AnEqualNameWithASlashIsNoPath) {
    Link("AC/DC"), Link("/");
    EXPECT_EQ(Typing("ac/dc"), "AC/DC | Open shortcuts, folders and URLs");
    EXPECT_EQ(Typing("ac/d"), "ac/d | Open shortcuts, folders and URLs");
    EXPECT_EQ(Typing("/"), "/ | Use the arrow keys to navigate") << "the root is always a path";
}

TEST_F(Previewing, TheNameOfATileOpensItAndClosesTheBox) {
    const int tile = Tile("Mail");
    Type("mai");
    EXPECT_TRUE(IsOpen());
    desk.Type("l");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Main().Group.ExpandedContainer, tile);
    EXPECT_EQ(Main().Group.CurrentContainer, tile);
    EXPECT_EQ(History(), "mail");
}

TEST_F(Previewing, AShortcutThatBeginsWithTheTextComesBeforeATile) {
    Tile("Mail");
    Link("Mailbox");
    Type("mail");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Selected(), "Mailbox");
}

TEST_F(Previewing, OnlyATileIsReachedByItsName) {
    const int tile = Tile("Mail");
    ExpandShrinkContainer(Main(), tile, false);
    Main().Group.ExpandedContainer = -1;
    Type("mail");
    EXPECT_TRUE(IsOpen()) << "it is open already";
    EXPECT_EQ(Preview(), own);
}

TEST_F(Previewing, ATileThatATagViewHidesIsNotReached) {
    const int tile = Tile("Mail");
    Main().ConView(tile).Container.Visible = false;
    Type("mail");
    EXPECT_TRUE(IsOpen());
}

TEST_F(Previewing, ALineOfTheHistoryOnlyShowsATile) {
    AddToHistory(Main(), "mail");
    const int tile = Tile("Mail");
    Open();
    lblHistory_Click(Main());
    Press(KeyDown);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Box().lblJumpToLink, "Mail");
    Enter();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Main().Group.ExpandedContainer, tile);
}

TEST_F(Previewing, InHistoryModeWithTheListClosedATextThatMeansNothingClosesTheBox) {
    Open();
    Keys().HistoryMode = true;
    int match = NoMatch;
    UpdateJumpTo(Main(), "nothing", match);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(Keys().HistoryMode);
    EXPECT_FALSE(Keys().LauncherActive);
}

TEST_F(Previewing, OnlyWhatChangesIsPaintedAgain) {
    const int container = Tile("Box");
    ExpandShrinkContainer(Main(), container, false);
    Link("Alpha"), Link("Alphabet", InContainer(container));
    Type("alph");
    desk.Type("a");
    EXPECT_FALSE(desk.LastMarks.Workspace);
    EXPECT_TRUE(desk.LastMarks.Containers.empty());
    EXPECT_TRUE(desk.LastMarks.JumpTo);
    desk.Type("b");
    EXPECT_TRUE(desk.LastMarks.Workspace) << "Alpha is no longer selected";
    EXPECT_EQ(desk.LastMarks.Containers, std::vector<int>{container});
    EXPECT_FALSE(desk.LastMarks.Everything);
}

TEST_F(Previewing, HostileNamesShowAsTheyAre) {
    for (const char* name :
         {"say \"hi\" %s %1", "--help", "\u202Etxt.exe", "bad \xFF\xC3 bytes", "two\nlines"}) {
        const int link = Link(name);
        int match = NoMatch;
        Open();
        UpdateJumpTo(Main(), name, match);
        EXPECT_EQ(match, link) << name;
        EXPECT_EQ(Box().lblJumpToLink, name);
    }
    const int link = Link(std::string(4096, 'q'));
    Type("qqq");
    EXPECT_EQ(Keys().MatchIndex, link);
}

} // namespace
} // namespace quill
