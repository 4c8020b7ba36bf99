#include "frame/code_page.h"

#include <array>

namespace gloamtide {
namespace {

// Unicode of the bytes 80 to 9F; all other bytes are their own number.
constexpr std::array<char32_t, 32> Upper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

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
