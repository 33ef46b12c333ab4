#include "shortcuts/frmInternetShortcut.h"

#include "containers/workspace_fixture.h"
#include "shortcuts/add_commands.h"
#include "shortcuts/icon_cache.h"

namespace quill {
namespace {

struct AddUrl : test::WorkspaceFixture {
    using Dialog = frmInternetShortcut;

    // What a person does in the dialog, which opens by the command.
    void Open(Parent to, std::function<void(Dialog&)> scene) {
        Main.Group.NewContainerPos = {1500, 1500};
        computer.Dialogs.OnInternetShortcut = [scene](Dialog& dialog) {
            scene(dialog);
            return false; // closed
        };
        AddWebLink(Main, to);
        EXPECT_EQ(computer.Dialogs.Unexpected, 0);
    }
    static void Type(Dialog& dialog, const std::string& address) {
        dialog.txtAddress = address;
        dialog.txtAddress_Change();
    }
    bool Accept(const std::string& address, Parent to = OnWorkspace()) {
        Dialog dialog(Main, to, {1500, 1500});
        Type(dialog, address);
        return dialog.OKButton_Click();
    }
    int Last() { return Main.NextShortcutIndex - 1; }
    std::string LastAdded() {
        if (Main.NextShortcutIndex == 0) return "(none)";
        return Main.Link(Last()).FullCaption + " -> " + Main.Link(Last()).Path;
    }
    std::string OpenedWith(const std::string& clipboard) {
        computer.Clipboard.Data.Text = clipboard;
        return Dialog(Main, OnWorkspace(), {}).txtAddress;
    }
};

TEST_F(AddUrl, TheLabelFollowsTheAddress) {
    struct Row {
        const char *Address, *Label;
    };
    const Row rows[] = {
        {"http://", ""},
        {"http://www.example.com", "example"},
        {"https://www.example.com/", "example.com"},
        {"http://example.org/", "example.org"},
        {"http://example.com/news", "example.com/news"},
        {"http://www.example.org", "example.org"},
        {"ftp://a.example//b/", "a.example//b"},
        {"example.com", "example"},
        {"http://wwwhere.example", "wwwhere.example"},
        {"http://a.example/www.x.com", "a.example/www.x"},
        {"http://.com", ""},
        {"http:///", ""},
        {"", ""},
    };
    for (const auto& row : rows) {
        Dialog dialog(Main, OnWorkspace(), {});
        dialog.txtLabel = "typed before";
        Type(dialog, row.Address);
        EXPECT_EQ(dialog.txtLabel, row.Label) << row.Address;
    }
}

TEST_F(AddUrl, ItOpensWithTheAddressThatWasCopied) {
    struct Row {
        std::string Copied, Address;
    };
    const Row rows[] = {
        {"https://a.example/x", "https://a.example/x"},
        {"HTTP://a.example/x", "HTTP://a.example/x"},
        {" \r\nhttps://a.example/x\r\n", "https://a.example/x"},
        {"https://a.example/x\nhttps://b.example/", "https://a.example/x"},
        {"http:", "http:"},
        {"", "http://"},
        {"some words", "http://"},
        {"see https://a.example/", "http://"},
        {"ftp://a.example/", "http://"},
        {"httpd is a program", "http://"},
        {"https://" + std::string(9000, 'x'), "http://"},
    };
    for (const auto& row : rows) EXPECT_EQ(OpenedWith(row.Copied), row.Address) << row.Copied;
    EXPECT_EQ(Dialog(Main, OnWorkspace(), {}).txtLabel, "") << "no label of nothing";
    computer.Clipboard.Data = {};
    computer.Clipboard.Data.Addresses = {"https://b.example/"};
    const Dialog dialog(Main, OnWorkspace(), {});
    EXPECT_EQ(dialog.txtAddress, "https://b.example/")
        << "also when it was copied as an address and not as a text";
    EXPECT_EQ(dialog.txtLabel, "b.example");
}

TEST_F(AddUrl, TheAddressIsAShortcutWhereTheDialogWasOpened) {
    Open(OnWorkspace(), [](Dialog& dialog) {
        Type(dialog, "  https://www.example.com/x ");
        dialog.txtLabel = "  My page ";
        EXPECT_TRUE(dialog.OKButton_Click()) << "and it closes";
    });
    EXPECT_EQ(LastAdded(), "My page -> https://www.example.com/x");
    EXPECT_EQ(Main.Link(Last()).ShortcutType, TypeUrl);
    EXPECT_EQ(Main.Link(Last()).Icon, "");
    EXPECT_EQ(Main.LinkView(Last()).lblShortcut.Place.Left, 1500);
    EXPECT_EQ(Main.LinkView(Last()).lblShortcut.Place.Top, 1500);
    EXPECT_EQ(Main.Links.CurrentShortcut, Last());
    EXPECT_TRUE(Main.Link(Last()).Selected);
    EXPECT_TRUE(computer.Web.Fetched.empty());
    EXPECT_NE(computer.Files.Get(fake::SettingsFolder + "/Quillmere.REC").find("My page"), std::string::npos);
}

TEST_F(AddUrl, WithoutALabelTheAddressIsTheCaption) {
    Open(OnWorkspace(), [](Dialog& dialog) {
        Type(dialog, "http://a.example/");
        dialog.txtLabel = " ";
        dialog.OKButton_Click();
    });
    EXPECT_EQ(LastAdded(), "http://a.example/ -> http://a.example/");
}

TEST_F(AddUrl, InAContainerItLiesInTheContainer) {
    const int box = New({4000, 1000, 4000, 4000});
    Open(InContainer(box), [](Dialog& dialog) {
        Type(dialog, "http://a.example/");
        dialog.OKButton_Click();
    });
    EXPECT_EQ(Main.LinkView(Last()).In, InContainer(box));
    EXPECT_NE(Recovery("0.REC").find("http://a.example/"), std::string::npos);
}

TEST_F(AddUrl, KeptOpenItTakesOneAddressAfterTheOtherEachAStepFurther) {
    int added = 0;
    Open(OnWorkspace(), [&](Dialog& dialog) {
        dialog.chkKeepOpen = true;
        for (const char* address : {"http://a.example/", "http://b.example/", "http://c.example/"}) {
            Type(dialog, address);
            EXPECT_FALSE(dialog.OKButton_Click()) << "it stays";
            EXPECT_EQ(dialog.txtAddress, "http://");
            EXPECT_EQ(dialog.txtLabel, "");
        }
        added = dialog.Added();
    });
    EXPECT_EQ(added, 3);
    ASSERT_EQ(Main.NextShortcutIndex, 3);
    for (int link = 0; link < 3; ++link) {
        const Rect place = Main.LinkView(link).lblShortcut.Place;
        EXPECT_EQ(fake::Words(Point{place.Left, place.Top}),
                  fake::Words(Point{1500 + 300.0F * link, 1500 + 300.0F * link}));
        EXPECT_TRUE(Main.Link(link).Selected);
    }
}

TEST_F(AddUrl, WhatWasAddedStaysWhenTheDialogIsClosed) {
    Open(OnWorkspace(), [](Dialog& dialog) {
        dialog.chkKeepOpen = true;
        Type(dialog, "http://a.example/");
        dialog.OKButton_Click();
    });
    EXPECT_EQ(LastAdded(), "a.example -> http://a.example/");
}

TEST_F(AddUrl, NothingTypedIsTheSameAsClose) {
    for (const bool keepOpen : {false, true}) {
        Dialog dialog(Main, OnWorkspace(), {});
        dialog.chkKeepOpen = keepOpen;
        EXPECT_TRUE(dialog.OKButton_Click());
    }
    EXPECT_TRUE(Accept("  "));
    EXPECT_EQ(LastAdded(), "(none)");
}

TEST_F(AddUrl, AnAddressPastedBehindTheOneThatStandsThereIsTakenAlone) {
    Accept("http://https://a.example/");
    EXPECT_EQ(Main.Link(Last()).Path, "https://a.example/");
    Accept("http://HTTP://b.example/");
    EXPECT_EQ(Main.Link(Last()).Path, "HTTP://b.example/");
    Accept("http://a.example/http://b.example/");
    EXPECT_EQ(Main.Link(Last()).Path, "http://a.example/http://b.example/");
}

TEST_F(AddUrl, AnAddressWithoutASchemeIsOneOfTheWeb) {
    struct Row {
        const char *Typed, *Address;
    };
    const Row rows[] = {
        {"www.a.example/x", "http://www.a.example/x"},
        {"a.example:8080/x", "http://a.example:8080/x"},
        {"a.example/x:y", "http://a.example/x:y"},
        {"mailto:a@b.example", "mailto:a@b.example"},
        {"https://a.example", "https://a.example"},
        {"ftp://a.example", "ftp://a.example"},
        {":80", "http://:80"},
    };
    for (const auto& row : rows) {
        Accept(row.Typed);
        EXPECT_EQ(Main.Link(Last()).Path, row.Address) << row.Typed;
    }
}

TEST_F(AddUrl, TheShortcutIsThereBeforeItsPicture) {
    computer.Images.OnSize = [](const std::string&) { return Size{240, 240}; };
    Open(OnWorkspace(), [](Dialog& dialog) {
        dialog.chkFavIcon = dialog.chkKeepOpen = true;
        Type(dialog, "https://a.example/x");
        dialog.OKButton_Click();
        Type(dialog, "https://b.example/x");
        dialog.OKButton_Click();
    });
    EXPECT_EQ(computer.Web.Fetched,
              (std::vector<std::string>{"http://a.example/favicon.ico", "http://b.example/favicon.ico"}));
    EXPECT_EQ(Main.Link(0).Icon + Main.Link(1).Icon, "");
    computer.Web.Fail({Reason::NotFound, "404"});
    computer.Web.Answer("picture");
    EXPECT_EQ(Main.Link(0).Icon, "");
    EXPECT_TRUE(IsCachedIcon(Main, Main.Link(1).Icon)) << Main.Link(1).Icon;
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

TEST_F(AddUrl, AFullContainerSaysSoAndTakesNoMore) {
    const int box = New({4000, 1000, 4000, 4000});
    for (int link = 0; link < MaxShortcutsInContainer - 1; ++link) NewLink(InContainer(box), {0, 0});
    Open(InContainer(box), [](Dialog& dialog) {
        dialog.chkKeepOpen = true;
        for (const char* address : {"http://a.example/", "http://b.example/"}) {
            Type(dialog, address);
            dialog.OKButton_Click();
        }
    });
    EXPECT_EQ(GetContainerShortcutCount(Main, box), MaxShortcutsInContainer);
    ASSERT_EQ(computer.Questions.Boxes.size(), 1U);
    EXPECT_EQ(computer.Questions.Boxes[0].Text,
              "There's a limit of 250 shortcuts per container (much less is recommended!)");
}

TEST_F(AddUrl, AContainerThatWentMeanwhileTakesNothing) {
    const int box = New({4000, 1000, 4000, 4000});
    Open(InContainer(box), [&](Dialog& dialog) {
        DeleteContainer(Main, box, false);
        Type(dialog, "http://a.example/");
        dialog.OKButton_Click();
    });
    EXPECT_EQ(LastAdded(), "(none)");
}

TEST_F(AddUrl, WhenTheProgramEndsMeanwhileNothingIsAdded) {
    Open(OnWorkspace(), [&](Dialog& dialog) {
        Main.IsExiting = true;
        Type(dialog, "http://a.example/");
        EXPECT_TRUE(dialog.OKButton_Click());
    });
    EXPECT_EQ(LastAdded(), "(none)");
}

} // namespace
} // namespace quill
