#include "tests/storage/configuration_fuzz.h"

#include <cstring>
#include <random>

#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr std::size_t NameOffset = 672;
constexpr std::size_t FileLength = 1008;

// Files that come near to a configuration, and some that are far from it; the same ones for the same seed.
class AnyFiles {
public:
    AnyFiles(std::string TheModel, unsigned Seed) : Model(std::move(TheModel)), Random(Seed) {}

    std::string Next() {
        std::string Bytes = Model;
        if (OneIn(16)) {
            for (char& Each : Bytes) Each = AnyByte();
            Bytes[NameOffset] = static_cast<char>(Random() % 48);
            Bytes[NameOffset + 1] = 0;
        }
        for (unsigned Changes = Random() % 8; Changes > 0; --Changes) Change(Bytes);
        if (OneIn(16)) Bytes.resize(Random() % (FileLength + 100));
        return Bytes;
    }

private:
    bool OneIn(unsigned Count) { return Random() % Count == 0; }
    char AnyByte() { return static_cast<char>(Random()); }

    template <class T>
    T Pick(std::initializer_list<T> Values) {
        return Values.begin()[Random() % Values.size()];
    }

    // A plain number, one at the edge of what numbers can be, or any bits.
    template <class T>
    T AnyNumber() {
        using Limits = std::numeric_limits<T>;
        if (OneIn(2)) return static_cast<T>(Random() % 720'001) / 1000 - 360;
        if (OneIn(2)) return static_cast<T>(Random() % 3'200'001) - 2'300'000;  // days, past either limit
        if (OneIn(3)) {
            T AnyBits = 0;
            for (std::size_t Byte = 0; Byte < sizeof AnyBits; ++Byte)
                reinterpret_cast<char*>(&AnyBits)[Byte] = AnyByte();
            return AnyBits;
        }
        const T Edge = Pick<T>({0, Limits::quiet_NaN(), Limits::signaling_NaN(), Limits::infinity(), Limits::max(),
                                Limits::denorm_min(), Limits::min(), 90, 180, 1e5, 2147483648.0, 1e10, 1e16,
                                9223372036854775808.0, 1e30});
        return OneIn(2) ? -Edge : Edge;
    }

    template <class T>
    static void Put(std::string& Bytes, std::size_t Offset, T Value) {
        std::memcpy(&Bytes[Offset], &Value, sizeof Value);
    }

    void Change(std::string& Bytes) {
        const auto Kind = Random() % 5;
        if (Kind == 0) Bytes[Random() % FileLength] = AnyByte();
        if (Kind == 1) Put(Bytes, Pick<std::size_t>({0, 720}), AnyNumber<double>());
        if (Kind == 2) Put(Bytes, Pick<std::size_t>({48, 480, 528, 576, 768}), AnyNumber<float>());
        if (Kind == 3)
            Put(Bytes, Pick<std::size_t>({96, 144, 192, 240, 288, 336, 384, 432, 624, 816, 864, 912, 960}),
                Pick<std::int16_t>({-1, 0, 1, static_cast<std::int16_t>(Random())}));
        if (Kind < 4) return;
        Put(Bytes, NameOffset, static_cast<std::uint16_t>(OneIn(8) ? Random() : Random() % 50));
        for (std::size_t Byte = 2; Byte < 48; ++Byte) Bytes[NameOffset + Byte] = AnyByte();
    }

    std::string Model;
    std::mt19937 Random;
};

bool HoldsItsName(const std::string& Bytes) {
    if (Bytes.size() < NameOffset + 2) return false;
    const auto Byte = [&](std::size_t Offset) { return static_cast<unsigned char>(Bytes[Offset]); };
    const std::size_t Length = Byte(NameOffset) + 256U * Byte(NameOffset + 1);
    return Length <= 46 && NameOffset + 2 + Length <= Bytes.size();
}

class AnyConfiguration : public ProgramTest, public testing::WithParamInterface<unsigned> {};

TEST_P(AnyConfiguration, IsShownOrRefusedWithAMessage) {
    constexpr int Files = 12'500 / SanitizedShare;  // 100,000 of all seeds
    Start(640);                                     // the smallest map
    state.ShowMapGrid = state.ShowAnalemma = state.ShowCities = state.ShowTimezones = True;
    state.ShowSun = state.ShowMoon = state.ShowSundial = True;
    state.SundialLongitudeCorrection = state.SundialEOTCorrection = state.SundialDSTCorrection = True;
    state.ConfigFilePath = "any.gtf";
    SaveConfiguration();
    AnyFiles Any(ReadFile("any.gtf", FileLength), GetParam());
    int Shown = 0;
    for (int File = 0; File < Files; ++File) {
        const std::string Bytes = Any.Next();
        const bool Taken = OpenConfigurationBytes(Desktop, Bytes);
        ASSERT_EQ(Taken, HoldsItsName(Bytes)) << "file " << File;
        ASSERT_TRUE(Taken || Desktop.Messages[0].Box.Title == "File Invalid");
        if (File % 8 == 0) AnimateOnce();
        Shown += Taken;
    }
    EXPECT_GT(Shown, Files / 2);
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyConfiguration, testing::Range(1U, 9U));

}  // namespace
}  // namespace gloamtide
