#include "fake/desk.h"
#include "keyboard/web_search.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

TEST(SearchEngineList, TheSevenStandInTheirOrder) {
    std::string all;
    for (const auto& engine : SearchEngines())
        all += std::string(engine.Name) + " " + std::string(engine.Address) + "\n";
    EXPECT_EQ(all, "Google https://www.google.com/search?q=%s\n"
                   "Bing https://www.bing.com/search?q=%s\n"
                   "Yahoo https://search.yahoo.com/search?p=%s\n"
                   "DuckDuckGo https://duckduckgo.com/?q=%s\n"
                   "Baidu https://www.baidu.com/s?wd=%s\n"
                   "Yandex https://yandex.com/search/?text=%s\n"
                   "Wolfram|Alpha https://www.wolframalpha.com/input/?i=%s\n");
}

struct AddressRow {
    const char* Sentence;
    std::string Address;
    std::string Query;
    std::string Whole;
};

const AddressRow addresses[] = {
    {"a word stands as it is", "https://e.org/?q=%s", "word", "https://e.org/?q=word"},
    {"a blank is encoded", "https://e.org/?q=%s", "two words", "https://e.org/?q=two%20words"},
    {"a quote is encoded", "https://e.org/?q=%s", "\"a b\"", "https://e.org/?q=%22a%20b%22"},
    {"signs of an address are data", "https://e.org/?q=%s", "a&b=c#d?e/f+g:h%",
     "https://e.org/?q=a%26b%3Dc%23d%3Fe%2Ff%2Bg%3Ah%25"},
    {"what is unreserved stays", "%s", "AZaz09-._~", "AZaz09-._~"},
    {"every alphabet is encoded byte by byte", "%s", "дом é €", "%D0%B4%D0%BE%D0%BC%20%C3%A9%20%E2%82%AC"},
    {"bytes that are no text are encoded too", "%s", "\xFF\x01", "%FF%01"},
    {"a placeholder in the query is data", "https://e.org/?q=%s", "%s", "https://e.org/?q=%25s"},
    {"every placeholder is replaced", "https://e.org/%s?q=%s&n=1", "a", "https://e.org/a?q=a&n=1"},
    {"an address without a placeholder is used as it stands", "https://e.org/%20", "a", "https://e.org/%20"},
    {"a placeholder's letter is small", "https://e.org/%S", "a", "https://e.org/%S"},
    {"nothing is searched for", "https://e.org/?q=%s", "", "https://e.org/?q="},
    {"a query can't leave its place", "https://e.org/?q=%s", "\r\nHost: x",
     "https://e.org/?q=%0D%0AHost%3A%20x"},
};

TEST(SearchAddressOf, TheQueryTakesThePlaceholdersPlaceAsData) {
    for (const auto& row : addresses)
        EXPECT_EQ(SearchAddress(row.Address, row.Query), row.Whole) << row.Sentence;
}

TEST(SearchAddressOf, TheAddressIsTheOneOfTheSettings) {
    Desk desk;
    desk.StartWorkspace();
    desk.Main->Settings.WebSearch = "https://e.org/?q=%s";
    EXPECT_EQ(WebSearchAddress(*desk.Main), "https://e.org/?q=%s");
}

TEST(SearchAddressOf, NobodysChoiceIsTheFirstEngine) {
    Desk desk;
    desk.StartWorkspace();
    EXPECT_EQ(WebSearchAddress(*desk.Main), SearchEngines().front().Address);
    desk.Main->Settings.WebSearch.clear();
    EXPECT_EQ(WebSearchAddress(*desk.Main), SearchEngines().front().Address);
}

} // namespace
} // namespace quill
