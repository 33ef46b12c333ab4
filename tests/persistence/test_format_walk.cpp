#include "persistence/format_fixture.h"

#include "containers/fold.h"
#include "containers/lifecycle.h"
#include "containers/shrink.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "persistence/text_values.h"
#include "shortcuts/create.h"

#include <map>
#include <random>

namespace quill {
namespace {

using test::Formats;

const std::vector<std::string> Words = {"",
                                        "plain",
                                        " blanks ",
                                        "two\nlines",
                                        "\tTab\x01",
                                        "[END Note]",
                                        "[Link]",
                                        "[X]",
                                        "caf\xC3\xA9",
                                        "bad\xE9",
                                        "-1",
                                        "%2 %1",
                                        "#STARTUP",
                                        "/a/b ",
                                        "@/stick",
                                        "file:///x",
                                        std::string("nul\0l", 5)};

// A naive model: what a person would say stands where. Texts as one line shows them.
struct Model {
    struct Box {
        std::string Name;
        std::vector<std::string> Links;
        std::vector<std::string> Notes;
    };
    std::map<int, Box> Boxes;         // by table index
    std::vector<std::string> Desktop; // shortcuts on the workspace
};

std::string Shown(const std::string& text) {
    std::string line;
    AppendValue(line, std::string_view(text));
    return line;
}

class Walk {
public:
    explicit Walk(unsigned seed) : random_(seed) { desk_.Main.Settings.MaxContainers = 1000; }

    void Step() {
        switch (Below(9)) {
        case 0:
            return AddContainer();
        case 1:
            return AddLink(false);
        case 2:
            return AddLink(true);
        case 3:
            return Delete();
        case 4:
            return Note();
        case 5:
            return With([&](int box) { FoldUnfoldContainer(desk_.Main, box, false); });
        case 6:
            return With([&](int box) { ExpandShrinkContainer(desk_.Main, box, false); });
        case 7:
            return With([&](int box) { desk_.Main.ConView(box).Container.Place.Left = Below(9000) / 7.0F; });
        case 8:
            return With([&](int box) {
                AddToZorderCollection(desk_.Main, {KindContainer, box}, Below(2) == 0);
            });
        }
    }

    // Written, read by another process, compared with the model, and written again.
    void Check() {
        Formats next;
        next.Main.Settings.MaxContainers = 1000;
        std::vector<int> order;
        for (const auto& entry : desk_.Main.ZOrderList)
            if (entry.Kind == KindContainer) order.push_back(entry.Index);
        next.files.Settings = next.Path("Quillmere.ini");
        next.Computer.Files.Put(next.files.Settings, SettingsText(desk_.Main, false));
        for (const int box : order) next.PutRaw(ContainerText(desk_.Main, box));
        ASSERT_TRUE(next.Load()) << next.Computer.Questions.LastBox();
        ASSERT_TRUE(next.Computer.Questions.Boxes.empty());
        EXPECT_EQ(LinksIn(next.Main, OnWorkspace()), model_.Desktop);
        for (std::size_t at = 0; at < order.size(); ++at)
            Compare(next, static_cast<int>(at), model_.Boxes.at(order[at]));
        ExpectStable(next);
    }

private:
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    const std::string& Word() {
        return Words[static_cast<std::size_t>(Below(static_cast<int>(Words.size())))];
    }

    template <class Act> void With(Act act) {
        if (model_.Boxes.empty()) return;
        act(std::next(model_.Boxes.begin(), Below(static_cast<int>(model_.Boxes.size())))->first);
    }

    void AddContainer() {
        bool ok = false;
        NewGroup(desk_.Main, false, ok);
        const int box = desk_.Main.NextContainerIndex - 1;
        desk_.Main.ConView(box).ContainerLabel.Caption = Word();
        model_.Boxes[box].Name = Shown(desk_.View(box).ContainerLabel.Caption);
    }
    void AddLink(bool inside) {
        const std::string caption = "link " + std::to_string(desk_.Main.NextShortcutIndex);
        auto add = [&](Parent parent, std::vector<std::string>& list) {
            AddURL(desk_.Main, parent, caption, Word(), {});
            desk_.Main.Link(desk_.LastShortcut()).Tip = Word();
            list.push_back(caption);
        };
        if (!inside) return add(OnWorkspace(), model_.Desktop);
        With([&](int box) { add(InContainer(box), model_.Boxes[box].Links); });
    }
    void Delete() {
        With([&](int box) {
            DeleteContainer(desk_.Main, box, false);
            model_.Boxes.erase(box);
        });
    }
    void Note() {
        With([&](int box) {
            auto& lines = model_.Boxes[box].Notes;
            lines.push_back("line " + std::to_string(Below(100)));
            std::string text;
            for (const auto& line : lines) text += line + "\r\n";
            SetNoteText(desk_.Main, box, text);
        });
    }

    static std::vector<std::string> LinksIn(const frmMain& Main, Parent parent) {
        std::vector<std::string> names;
        for (const auto& row : Live(Main.Shortcuts))
            if (Main.LinkView(row.Index).In == parent) names.push_back(row.Object.FullCaption);
        return names;
    }
    static void Compare(const Formats& next, int index, const Model::Box& box) {
        EXPECT_EQ(next.View(index).ContainerLabel.Caption, box.Name);
        EXPECT_EQ(LinksIn(next.Main, InContainer(index)), box.Links);
        std::string note;
        for (const auto& line : box.Notes) note += line + "\r\n";
        EXPECT_EQ(next.View(index).ContainerNote.Text, note);
    }
    static void ExpectStable(const Formats& next) {
        Formats third;
        third.Main.Settings.MaxContainers = 1000;
        for (std::size_t at = 0; at < next.files.Containers.size(); ++at)
            third.PutRaw(ContainerText(next.Main, static_cast<int>(at)));
        ASSERT_TRUE(third.Load());
        for (std::size_t at = 0; at < next.files.Containers.size(); ++at)
            EXPECT_EQ(third.Written(static_cast<int>(at)), next.Written(static_cast<int>(at)));
    }

    std::mt19937 random_;
    Formats desk_;
    Model model_;
};

TEST(FormatWalk, WhateverAPersonDidComesBack) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        Walk walk(seed);
        for (int step = 1; step <= 120; ++step) {
            walk.Step();
            if (step % 20 == 0) walk.Check();
            if (testing::Test::HasFailure()) return;
        }
    }
}

} // namespace
} // namespace quill
