#include "storage/code_page.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gloamtide {
namespace {

// Unicode of the bytes 80 to 9F; all other bytes are their own number.
constexpr std::array<char32_t, 32> Upper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// The first character of a text in UTF-8, and how many bytes it takes. A byte that begins none stands for itself.
struct Character {
    char32_t Code;
    std::size_t Length;
    bool Valid;
};

Character FirstCharacter(std::string_view Text) {
    constexpr std::array<char32_t, 5> Smallest = {0, 0, 0x80, 0x800, 0x10000};  // by length
    const auto Lead = static_cast<unsigned char>(Text.front());
    if (Lead < 0x80) return {Lead, 1, true};
    const Character Invalid = {Lead, 1, false};
    const std::size_t Length = Lead >= 0xF0 ? 4 : Lead >= 0xE0 ? 3 : 2;
    if (Lead < 0xC0 || Lead > 0xF4 || Text.size() < Length) return Invalid;
    char32_t Code = Lead & (0x7FU >> Length);
    for (const char Each : Text.substr(1, Length - 1)) {
        const auto Byte = static_cast<unsigned char>(Each);
        if ((Byte & 0xC0U) != 0x80U) return Invalid;
        Code = Code << 6U | (Byte & 0x3FU);
    }
    const bool Surrogate = Code >= 0xD800 && Code < 0xE000;
    if (Code < Smallest[Length] || Code > 0x10FFFF || Surrogate) return Invalid;
    return {Code, Length, true};
}

char ByteOf(const Character& Each) {
    const auto* const Found = std::find(Upper.begin(), Upper.end(), Each.Code);
    const std::ptrdiff_t Place = Found - Upper.begin();
    if (Each.Valid && Found != Upper.end()) return static_cast<char>(0x80 + Place);
    const bool IsItsOwnNumber = Each.Code < 0x80 || (Each.Code > 0x9F && Each.Code < 0x100);
    return Each.Valid && IsItsOwnNumber ? static_cast<char>(Each.Code) : '?';
}

}  // namespace

std::string ToCodePage(const std::string& Text) {
    std::string Bytes;
    for (std::string_view Rest = Text; !Rest.empty();) {
        const Character First = FirstCharacter(Rest);
        Bytes += ByteOf(First);
        Rest.remove_prefix(First.Length);
    }
    return Bytes;
}

std::string FromCodePage(const std::string& Bytes) {
    std::string Text;
    const auto Append = [&Text](char32_t Byte) { Text += static_cast<char>(static_cast<unsigned char>(Byte)); };
    for (const char Each : Bytes) {
        const auto Byte = static_cast<unsigned char>(Each);
        const char32_t Letter = Byte >= 0x80 && Byte <= 0x9F ? Upper[Byte - 0x80U] : Byte;
        if (Letter < 0x80) {
            Append(Letter);
        } else if (Letter < 0x800) {
            Append(0xC0U | Letter >> 6U);
            Append(0x80U | (Letter & 0x3FU));
        } else {
            Append(0xE0U | Letter >> 12U);
            Append(0x80U | (Letter >> 6U & 0x3FU));
            Append(0x80U | (Letter & 0x3FU));
        }
    }
    return Text;
}

}  // namespace gloamtide
