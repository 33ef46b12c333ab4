#include "persistence/manifest.h"

#include "persistence/checksum.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

Manifest Example() {
    Manifest manifest;
    manifest.Durable = true;
    manifest.Steps = {{StepKind::Aside, "Containers/7.con", "Containers/7.con.aside", {}},
                      {StepKind::Drop, "Containers/3.con", {}, {}},
                      {StepKind::Move, "Saving/0.con", "Containers/0.con", {12, 0xFEDCBA9876543210}},
                      {StepKind::Keep, "Quillmere.ini", {}, {0, 1}}};
    return manifest;
}

TEST(Manifest, WhatIsWrittenIsReadBack) {
    const auto text = ManifestText(Example());
    const auto read = ReadManifest(text);
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->Durable);
    EXPECT_EQ(ManifestText(*read), text);
    EXPECT_EQ(read->Steps.size(), 4u);
    EXPECT_EQ(read->Steps[2].Sum.Checksum, 0xFEDCBA9876543210);
}

TEST(Manifest, OneThatWasCutAnywhereIsNone) {
    const auto text = ManifestText(Example());
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_FALSE(ReadManifest(std::string_view(text).substr(0, length))) << length;
}

TEST(Manifest, OneWithAnyByteChangedIsNone) {
    const auto text = ManifestText(Example());
    for (std::size_t at = 0; at < text.size(); ++at) {
        auto changed = text;
        changed[at] = static_cast<char>(changed[at] ^ 1);
        EXPECT_FALSE(ReadManifest(changed)) << at;
    }
}

TEST(Manifest, NothingOutsideTheSettingsFolderCanBeNamed) {
    for (const char* name : {"/etc/passwd", "../other", "Containers/../../x", ""}) {
        Manifest manifest;
        manifest.Steps = {{StepKind::Drop, name, {}, {}}};
        EXPECT_FALSE(ReadManifest(ManifestText(manifest))) << name;
    }
}

TEST(Checksum, EveryByteAndTheLengthCount) {
    const std::string bytes(100, 'a');
    const auto whole = Checksum(bytes);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        auto changed = bytes;
        changed[at] = 'b';
        EXPECT_NE(Checksum(changed), whole) << at;
        EXPECT_NE(Checksum(std::string_view(bytes).substr(0, at)), whole) << at;
    }
    auto swapped = bytes;
    swapped[3] = 'x', swapped[40] = 'y';
    auto other = bytes;
    other[3] = 'y', other[40] = 'x';
    EXPECT_NE(Checksum(swapped), Checksum(other));
    EXPECT_NE(Checksum(std::string(64, '\0')), Checksum(std::string(65, '\0')));
}

} // namespace
} // namespace quill
