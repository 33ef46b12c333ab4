// What every implementation of Files keeps to. Run over the fake computer and over the real disk, so that the
// fake can't drift. A world gives a folder of its own:
//
//     struct World { quill::Files& Get(); std::string Root; void MakeReadOnly(path); void
//     MakeUnreadable(path); };
#pragma once

#include "platform/files.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quill {

template <class World> class FilesContract : public testing::Test {
protected:
    World world;
    Files& files = world.Get();

    std::string At(const std::string& name) const { return world.Root + "/" + name; }
    std::string Content(const std::string& name) {
        const auto bytes = files.Read(At(name), 1'000'000);
        return bytes ? bytes.Value() : "(" + bytes.Error().Text + ")";
    }
    std::string Listing(const std::string& name) {
        const auto listed = files.List(name.empty() ? world.Root : At(name));
        if (!listed) return "(" + listed.Error().Text + ")";
        auto names = listed.Value();
        std::sort(names.begin(), names.end());
        std::string text;
        for (const auto& entry : names) text += entry + " ";
        return text;
    }
};

inline std::string Told(const Status& status) {
    return status ? "done"
                  : std::to_string(static_cast<int>(status.Error().Kind)) + " " + status.Error().Text;
}
inline std::string Told(Reason reason, const std::string& text) {
    return std::to_string(static_cast<int>(reason)) + " " + text;
}

inline const std::string NoSuchFile = Told(Reason::NotFound, "No such file or directory");
inline const std::string FileExists = Told(Reason::Exists, "File exists");
inline const std::string PermissionDenied = Told(Reason::Denied, "Permission denied");

TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, WhatIsCreatedReadsBackByteForByte) {
    std::string every;
    for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
    const std::string large(300'000, 'x');
    for (const auto& bytes : {std::string(), std::string("a\r\nb"), every, large}) {
        ASSERT_EQ(Told(this->files.Create(this->At("file"), bytes)), "done");
        EXPECT_EQ(this->Content("file"), bytes);
        ASSERT_EQ(Told(this->files.Remove(this->At("file"))), "done");
    }
}

TYPED_TEST_P(FilesContract, ANewFileIsAPlainWritableOneOfItsSize) {
    ASSERT_TRUE(this->files.Create(this->At("file"), "12345"));
    const auto info = this->files.Stat(this->At("file"));
    ASSERT_TRUE(info);
    EXPECT_TRUE(info.Value().IsRegular);
    EXPECT_FALSE(info.Value().IsFolder);
    EXPECT_TRUE(info.Value().IsWritable);
    EXPECT_FALSE(info.Value().IsExecutable);
    EXPECT_EQ(info.Value().Size, 5U);
    EXPECT_GT(info.Value().Modified, 1'600'000'000);
}

TYPED_TEST_P(FilesContract, CreateNeverTouchesAFileThatIsThere) {
    ASSERT_TRUE(this->files.Create(this->At("file"), "old"));
    EXPECT_EQ(Told(this->files.Create(this->At("file"), "new")), FileExists);
    EXPECT_EQ(this->Content("file"), "old");
    ASSERT_TRUE(this->files.MakeFolder(this->At("folder")));
    EXPECT_EQ(Told(this->files.Create(this->At("folder"), "new")), FileExists);
}

TYPED_TEST_P(FilesContract, WhatIsNotThereIsMissingAndNoOtherFailure) {
    ASSERT_TRUE(this->files.Create(this->At("file"), ""));
    for (const char* name : {"none", "none/deeper", "file/below"}) {
        const auto path = this->At(name);
        EXPECT_TRUE(this->files.Stat(path).Missing()) << name;
        EXPECT_TRUE(this->files.Read(path, 10).Missing()) << name;
        EXPECT_TRUE(this->files.List(path).Missing()) << name;
        EXPECT_TRUE(this->files.Remove(path).Missing()) << name;
        EXPECT_TRUE(this->files.RemoveFolder(path).Missing()) << name;
        EXPECT_TRUE(this->files.Sync(path).Missing()) << name;
        EXPECT_TRUE(this->files.Rename(path, this->At("other")).Missing()) << name;
        EXPECT_TRUE(this->files.Copy(path, this->At("other")).Missing()) << name;
    }
    EXPECT_EQ(Told(this->files.Remove(this->At("none"))), NoSuchFile);
    EXPECT_EQ(Told(this->files.Create(this->At("none/deeper"), "")), NoSuchFile);
    EXPECT_TRUE(this->files.Create(this->At("file/below"), "").Missing());
    EXPECT_TRUE(this->files.List(this->At("file")).Missing());
    EXPECT_EQ(this->Listing(""), "file ");
}

TYPED_TEST_P(FilesContract, AFileOverTheLimitIsNotRead) {
    ASSERT_TRUE(this->files.Create(this->At("file"), "12345"));
    EXPECT_TRUE(this->files.Read(this->At("file"), 5));
    const auto over = this->files.Read(this->At("file"), 4);
    ASSERT_FALSE(over);
    EXPECT_EQ(over.Error().Kind, Reason::TooLarge);
}

TYPED_TEST_P(FilesContract, AFolderIsNoFile) {
    ASSERT_TRUE(this->files.MakeFolder(this->At("folder")));
    EXPECT_TRUE(this->files.FolderExists(this->At("folder")));
    const auto isFolder = Told(Reason::Other, "Is a directory");
    EXPECT_EQ(this->Content("folder"), "(Is a directory)");
    EXPECT_EQ(Told(this->files.Remove(this->At("folder"))), isFolder);
    EXPECT_EQ(Told(this->files.Copy(this->At("folder"), this->At("copy"))), isFolder);
    EXPECT_EQ(this->Listing(""), "folder ");
}

TYPED_TEST_P(FilesContract, AListHoldsTheBareNamesOfOneFolder) {
    EXPECT_EQ(this->Listing(""), "");
    ASSERT_TRUE(this->files.MakeFolder(this->At("a/inner")));
    ASSERT_TRUE(this->files.Create(this->At("a/.hidden"), ""));
    ASSERT_TRUE(this->files.Create(this->At("ab"), ""));
    EXPECT_EQ(this->Listing(""), "a ab ");
    EXPECT_EQ(this->Listing("a"), ".hidden inner ");
}

TYPED_TEST_P(FilesContract, NamesAreBytesAndNothingElse) {
    const std::string names[] = {"Gr\xC3\xBC\xC3\x9F"
                                 "e",
                                 "a b",
                                 " blank ",
                                 "line\nbreak",
                                 "\xFF\xFE",
                                 "%41",
                                 "~"};
    for (const auto& name : names) {
        ASSERT_EQ(Told(this->files.Create(this->At(name), name)), "done") << name;
        EXPECT_EQ(this->Content(name), name);
    }
    const auto listed = this->files.List(this->world.Root);
    ASSERT_TRUE(listed);
    EXPECT_EQ(listed.Value().size(), std::size(names));
}

TYPED_TEST_P(FilesContract, RenameReplacesAFileInOneStep) {
    ASSERT_TRUE(this->files.Create(this->At("old"), "old"));
    ASSERT_TRUE(this->files.Create(this->At("new"), "new"));
    EXPECT_EQ(Told(this->files.Rename(this->At("new"), this->At("old"))), "done");
    EXPECT_EQ(this->Content("old"), "new");
    EXPECT_EQ(this->Listing(""), "old ");
    EXPECT_EQ(Told(this->files.Rename(this->At("old"), this->At("old"))), "done");
    EXPECT_EQ(this->Content("old"), "new");
}

TYPED_TEST_P(FilesContract, RenameTakesAFolderWithAllItHolds) {
    ASSERT_TRUE(this->files.MakeFolder(this->At("from/deep")));
    ASSERT_TRUE(this->files.Create(this->At("from/deep/file"), "x"));
    ASSERT_TRUE(this->files.Create(this->At("from-neighbour"), ""));
    ASSERT_TRUE(this->files.MakeFolder(this->At("to")));
    EXPECT_EQ(Told(this->files.Rename(this->At("from"), this->At("to"))), "done");
    EXPECT_EQ(this->Content("to/deep/file"), "x");
    EXPECT_EQ(this->Listing(""), "from-neighbour to ");
}

TYPED_TEST_P(FilesContract, RenameNeverDestroysAFolderThatIsNotEmpty) {
    ASSERT_TRUE(this->files.MakeFolder(this->At("full")));
    ASSERT_TRUE(this->files.Create(this->At("full/file"), "x"));
    ASSERT_TRUE(this->files.MakeFolder(this->At("folder")));
    ASSERT_TRUE(this->files.Create(this->At("file"), "y"));
    EXPECT_FALSE(this->files.Rename(this->At("folder"), this->At("full")));
    EXPECT_FALSE(this->files.Rename(this->At("file"), this->At("full")));
    EXPECT_FALSE(this->files.Rename(this->At("full"), this->At("file")));
    EXPECT_FALSE(this->files.Rename(this->At("full"), this->At("full/inner")));
    EXPECT_EQ(this->Listing(""), "file folder full ");
    EXPECT_EQ(this->Content("full/file"), "x");
}

TYPED_TEST_P(FilesContract, MakeFolderMakesTheMissingOnesAbove) {
    EXPECT_EQ(Told(this->files.MakeFolder(this->At("a/b/c"))), "done");
    EXPECT_TRUE(this->files.FolderExists(this->At("a/b/c")));
    EXPECT_EQ(Told(this->files.MakeFolder(this->At("a/b/c"))), "done");
    ASSERT_TRUE(this->files.Create(this->At("file"), "x"));
    EXPECT_EQ(Told(this->files.MakeFolder(this->At("file"))), FileExists);
    EXPECT_EQ(Told(this->files.MakeFolder(this->At("file/x/y"))), Told(Reason::NotFound, "Not a directory"));
    EXPECT_EQ(this->Content("file"), "x");
}

TYPED_TEST_P(FilesContract, RemoveFolderTakesOnlyAnEmptyOne) {
    ASSERT_TRUE(this->files.MakeFolder(this->At("folder")));
    ASSERT_TRUE(this->files.Create(this->At("folder/file"), "x"));
    EXPECT_EQ(Told(this->files.RemoveFolder(this->At("folder"))), Told(Reason::Other, "Directory not empty"));
    ASSERT_TRUE(this->files.Remove(this->At("folder/file")));
    EXPECT_EQ(Told(this->files.RemoveFolder(this->At("folder"))), "done");
    EXPECT_EQ(this->Listing(""), "");
}

TYPED_TEST_P(FilesContract, CopyLeavesTheSourceAndNeverOverwrites) {
    const std::string bytes(300'000, 'y');
    ASSERT_TRUE(this->files.Create(this->At("file"), bytes));
    EXPECT_EQ(Told(this->files.Copy(this->At("file"), this->At("copy"))), "done");
    EXPECT_EQ(this->Content("file"), bytes);
    EXPECT_EQ(this->Content("copy"), bytes);
    ASSERT_TRUE(this->files.Create(this->At("taken"), "z"));
    EXPECT_EQ(Told(this->files.Copy(this->At("file"), this->At("taken"))), FileExists);
    EXPECT_EQ(this->Content("taken"), "z");
}

TYPED_TEST_P(FilesContract, FilesAndFoldersCanBeSynced) {
    ASSERT_TRUE(this->files.Create(this->At("file"), "x"));
    EXPECT_EQ(Told(this->files.Sync(this->At("file"))), "done");
    EXPECT_EQ(Told(this->files.Sync(this->world.Root)), "done");
}

TYPED_TEST_P(FilesContract, AReadOnlyFolderStaysAsItIsAndReadable) {
    ASSERT_TRUE(this->files.MakeFolder(this->At("folder/empty")));
    ASSERT_TRUE(this->files.Create(this->At("folder/file"), "x"));
    ASSERT_TRUE(this->files.Create(this->At("outside"), "y"));
    this->world.MakeReadOnly(this->At("folder"));
    const auto folder = this->files.Stat(this->At("folder"));
    ASSERT_TRUE(folder);
    EXPECT_FALSE(folder.Value().IsWritable);
    EXPECT_EQ(Told(this->files.Create(this->At("folder/new"), "")), PermissionDenied);
    EXPECT_EQ(Told(this->files.Remove(this->At("folder/file"))), PermissionDenied);
    EXPECT_EQ(Told(this->files.MakeFolder(this->At("folder/new"))), PermissionDenied);
    EXPECT_EQ(Told(this->files.RemoveFolder(this->At("folder/empty"))), PermissionDenied);
    EXPECT_EQ(Told(this->files.Rename(this->At("folder/file"), this->At("away"))), PermissionDenied);
    EXPECT_EQ(Told(this->files.Rename(this->At("outside"), this->At("folder/file"))), PermissionDenied);
    EXPECT_EQ(Told(this->files.Copy(this->At("outside"), this->At("folder/copy"))), PermissionDenied);
    EXPECT_EQ(this->Listing("folder"), "empty file ");
    EXPECT_EQ(this->Content("folder/file"), "x");
}

TYPED_TEST_P(FilesContract, AFileThatMayNotBeReadSaysSo) {
    ASSERT_TRUE(this->files.Create(this->At("file"), "x"));
    this->world.MakeUnreadable(this->At("file"));
    EXPECT_EQ(this->Content("file"), "(Permission denied)");
    EXPECT_EQ(Told(this->files.Copy(this->At("file"), this->At("copy"))), PermissionDenied);
    EXPECT_EQ(this->Listing(""), "file ");
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract, WhatIsCreatedReadsBackByteForByte,
                            ANewFileIsAPlainWritableOneOfItsSize, CreateNeverTouchesAFileThatIsThere,
                            WhatIsNotThereIsMissingAndNoOtherFailure, AFileOverTheLimitIsNotRead,
                            AFolderIsNoFile, AListHoldsTheBareNamesOfOneFolder, NamesAreBytesAndNothingElse,
                            RenameReplacesAFileInOneStep, RenameTakesAFolderWithAllItHolds,
                            RenameNeverDestroysAFolderThatIsNotEmpty, MakeFolderMakesTheMissingOnesAbove,
                            RemoveFolderTakesOnlyAnEmptyOne, CopyLeavesTheSourceAndNeverOverwrites,
                            FilesAndFoldersCanBeSynced, AReadOnlyFolderStaysAsItIsAndReadable,
                            AFileThatMayNotBeReadSaysSo);

} // namespace quill
