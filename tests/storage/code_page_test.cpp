#include "storage/code_page.h"

#include <gtest/gtest.h>

namespace gloamtide {
namespace {

// The upper half's first 32 characters, from the published table of Windows-1252.
const char* const FirstUpper[] = {
    "€",        "\xC2\x81", "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š", "‹", "Œ", "\xC2\x8D", "Ž", "\xC2\x8F",
    "\xC2\x90", "‘",        "’", "“", "”", "•", "–", "—", "˜", "™", "š", "›", "œ", "\xC2\x9D", "ž", "Ÿ"};

TEST(CodePage, AllBytesBecomeTheirCharactersAndComeBack) {
    for (int Number = 0; Number < 256; ++Number) {
        const std::string Byte(1, static_cast<char>(Number));
        const std::string Text = FromCodePage(Byte);
        EXPECT_EQ(ToCodePage(Text), Byte) << Number;
        if (Number < 128) {
            EXPECT_EQ(Text, Byte);
        } else if (Number < 160) {
            EXPECT_EQ(Text, FirstUpper[Number - 128]) << Number;
        }
    }
    EXPECT_EQ(FromCodePage("Z\xFCrich, \xA0\xBF\xC0\xFF"), "Zürich, \xC2\xA0¿Àÿ");
}

TEST(CodePage, ACharacterThatItLacksIsAQuestionMark) {
    EXPECT_EQ(ToCodePage("Łódź, Ω, 東京, 😀."),
              "?\xF3"
              "d?, ?, ??, ?.");
    EXPECT_EQ(ToCodePage("\xC2\x80\xC2\x9F"), "??") << "control characters, not the euro's byte";
    EXPECT_EQ(ToCodePage("\xEF\xBF\xBF\xF4\x8F\xBF\xBF"), "??") << "the last of three and of four bytes";
}

TEST(CodePage, EachByteThatIsNoUtf8IsAQuestionMark) {
    const std::pair<const char*, const char*> Texts[] = {
        {"\x80", "?"},            // nothing goes before
        {"a\xC3", "a?"},          // the end is missing
        {"\xE2\x82", "??"},       // the same
        {"\xF0\x9F\x98", "???"},  // the same
        {"\xC3(", "?("},          // something else follows
        {"\xE2\x82,\xC3\xA9", "??,\xE9"},
        {"\xC0\xAF\xC1\xBF", "????"},  // longer than need be
        {"\xE0\x80\xAF", "???"},       // the same
        {"\xF0\x80\x80\xAF", "????"},  // the same
        {"\xED\xA0\x80", "???"},       // half a surrogate pair
        {"\xF4\x90\x80\x80", "????"},  // beyond the last character
        {"\xF5\xFE\xFF", "???"},       // no such bytes
    };
    for (const auto& [Text, Bytes] : Texts) EXPECT_EQ(ToCodePage(Text), Bytes) << testing::PrintToString(Text);
}

}  // namespace
}  // namespace gloamtide
