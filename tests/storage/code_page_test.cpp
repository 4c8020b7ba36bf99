#include "storage/code_page.h"

#include <gtest/gtest.h>

namespace gloamtide {
namespace {

TEST(CodePage, AllBytesBecomeTheirCharactersAndComeBack) {
    std::string All;
    for (int Number = 0; Number < 256; ++Number) All += static_cast<char>(Number);
    const std::string Text = FromCodePage(All);
    EXPECT_EQ(ToCodePage(Text), All);
    EXPECT_EQ(Text.substr(0, 128), All.substr(0, 128));
    // The upper half's first 32 characters, from the published table of Windows-1252.
    EXPECT_EQ(FromCodePage(All.substr(128, 32)), "€\xC2\x81‚ƒ„…†‡ˆ‰Š‹Œ\xC2\x8DŽ\xC2\x8F\xC2\x90‘’“”•–—˜™š›œ\xC2\x9DžŸ");
    EXPECT_EQ(FromCodePage("Z\xFCrich, \xA0\xBF\xC0\xFF"), "Zürich, \xC2\xA0¿Àÿ");
}

TEST(CodePage, WhatItLacksAndEachByteThatIsNoUtf8IsAQuestionMark) {
    const std::pair<const char*, const char*> Texts[] = {
        {"Łódź, Ω, 東京, 😀.",
         "?\xF3"
         "d?, ?, ??, ?."},
        {"\xC2\x80\xC2\x9F", "??"},                                           // control characters, not the euro's byte
        {"\xEF\xBF\xBF\xF4\x8F\xBF\xBF", "??"},                               // the last of three and of four bytes
        {"\x80 \xF5\xFE\xFF", "? ???"},                                       // nothing goes before; no such bytes
        {"a\xC3", "a?"},                                                      // the end is missing
        {"\xE2\x82", "??"},                                                   // the same
        {"\xF0\x9F\x98", "???"},                                              // the same
        {"\xC3(\xE2\x82,\xC3\xA9", "?(??,\xE9"},                              // something else follows
        {"\xC0\xAF\xC1\xBF \xE0\x80\xAF \xF0\x80\x80\xAF", "???? ??? ????"},  // longer than need be
        {"\xED\xA0\x80 \xF4\x90\x80\x80", "??? ????"}  // half a surrogate pair, beyond the last character
    };
    for (const auto& [Text, Bytes] : Texts) EXPECT_EQ(ToCodePage(Text), Bytes) << testing::PrintToString(Text);
}

}  // namespace
}  // namespace gloamtide
