#include "system/size_texts.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr std::int64_t K = 1024, M = K * K, G = K * M, T = K * G;

struct Row {
    const char* Name;
    std::int64_t Bytes;
    const char* Text;
};
void PrintTo(const Row& row, std::ostream* out) {
    *out << row.Name;
}

std::string NameOfRow(const testing::TestParamInfo<Row>& info) {
    return info.param.Name;
}

std::uint32_t Low(std::int64_t bytes) {
    return static_cast<std::uint32_t>(bytes & 0xFFFFFFFF);
}
std::int32_t High(std::int64_t bytes) {
    return static_cast<std::int32_t>(bytes >> 32);
}

struct SizeOfMemory : testing::TestWithParam<Row> {};

TEST_P(SizeOfMemory, IsRoundedToAReadableUnit) {
    EXPECT_EQ(NumberInKB(Low(GetParam().Bytes), High(GetParam().Bytes)), GetParam().Text);
}

const Row ofMemory[] = {
    {"Nothing", 0, "0 bytes"},
    {"OneByte", 1, "1 bytes"},
    {"NumberInKBOf1023Gives1023Bytes", 1023, "1023 bytes"},
    {"TheFirstKilobyte", K, "1 KB"},
    {"HalfAKilobyteMore", K + K / 2, "1.5 KB"},
    {"HalvesOfTheLastDecimalGoUp", K + K / 4, "1.3 KB"},
    {"ARoundedZeroIsNotShown", 10 * K + 20, "10 KB"},
    {"AThousandStaysInItsUnit", 1000 * K, "1000 KB"},
    {"TheLastOfItsUnit", 1023 * K, "1023 KB"},
    {"TheUnitIsChosenBeforeRounding", M - 1, "1024 KB"},
    {"TheFirstMegabyte", M, "1 MB"},
    {"MegabytesHaveTwoDecimals", 3 * M + M / 4, "3.25 MB"},
    {"AZeroInTheMiddleStays", 3 * M + 52'429, "3.05 MB"},
    {"TheFirstGigabyte", G, "1 GB"},
    {"BothHalvesCount", 6 * G + G / 2, "6.5 GB"},
    {"TheLowHalfHasNoSign", 4 * G - 1, "4 GB"},
    {"TheLastGigabyte", 1023 * G, "1023 GB"},
    {"TheFirstTerabyte", T, "1 TB"},
    {"TerabytesHaveTwoDecimals", 2 * T + T / 8, "2.13 TB"},
    {"ThereIsNothingAboveTerabytes", 5000 * T, "5000 TB"},
};
INSTANTIATE_TEST_SUITE_P(Table, SizeOfMemory, testing::ValuesIn(ofMemory), NameOfRow);

struct SizeOfFile : testing::TestWithParam<Row> {};

TEST_P(SizeOfFile, HasThreeSignificantDigits) {
    EXPECT_EQ(formatFileSize(Low(GetParam().Bytes), High(GetParam().Bytes)), GetParam().Text);
}

const Row ofFiles[] = {
    {"ANegativeSizeIsNone", -1, ""},
    {"TheMostNegativeSizeIsNone", INT64_MIN, ""},
    {"NothingIsZeroWithoutAUnit", 0, "0"},
    {"BytesHaveDecimalsToo", 1, "1.00 Bytes"},
    {"TensOfBytesHaveOne", 15, "15.0 Bytes"},
    {"HundredsOfBytesHaveNone", 100, "100 Bytes"},
    {"FormatFileSizeOf999Gives999Bytes", 999, "999 Bytes"},
    {"AThousandIsTheNextUnit", 1000, "0.98 KB"},
    {"FormatFileSizeOf1023Gives1Point00KB", 1023, "1.00 KB"},
    {"AKilobyte", K, "1.00 KB"},
    {"HalvesOfTheLastDigitGoUp", K + K / 8, "1.13 KB"},
    {"Tens", 12 * K + K / 2, "12.5 KB"},
    {"Hundreds", 123 * K + K / 2, "124 KB"},
    {"JustBelowTenRoundsInItsOwnFormat", 10 * K - 1, "10.00 KB"},
    {"JustBelowAHundredToo", 100 * K - 1, "100.0 KB"},
    {"JustBelowAThousandToo", 1000 * K - 1, "1000 KB"},
    {"AThousandKilobytes", 1000 * K, "0.98 MB"},
    {"AMegabyte", M, "1.00 MB"},
    {"AGigabyte", G, "1.00 GB"},
    {"TheLowHalfHasNoSign", 4 * G - 1, "4.00 GB"},
    {"ATerabyte", T, "1.00 TB"},
    {"AThousandTerabytesStayThere", 1000 * T, "1000 TB"},
    {"TheLargestOfAll", INT64_MAX, "8388608 TB"},
};
INSTANTIATE_TEST_SUITE_P(Table, SizeOfFile, testing::ValuesIn(ofFiles), NameOfRow);

} // namespace
} // namespace quill
