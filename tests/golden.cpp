#include "tests/golden.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "platform/controls.h"
#include "platform/host.h"

namespace gloamtide {
namespace {

const std::filesystem::path DifferenceFolder = std::filesystem::current_path() / "golden";
constexpr Color Clear = 0xFFFFFFFFU;  // no colour of the program: what lies under it shows

bool Taking() { return std::getenv("GLOAMTIDE_TAKE_GOLDEN") != nullptr; }

std::string DifferenceFile(const std::string& Name) {
    std::filesystem::create_directories((DifferenceFolder / Name).parent_path());
    return (DifferenceFolder / Name).string();
}

void WritePicture(const std::string& Path, const Bitmap& Picture) {
    std::vector<png_byte> Bytes;
    for (const Color Each : Picture.Pixels) {
        for (const int Level : {RedOf(Each), GreenOf(Each), BlueOf(Each)}) {
            Bytes.push_back(static_cast<png_byte>(Level));
        }
    }
    png_image File{};
    File.version = PNG_IMAGE_VERSION;
    File.width = static_cast<png_uint_32>(Picture.Width);
    File.height = static_cast<png_uint_32>(Picture.Height);
    File.format = PNG_FORMAT_RGB;
    if (png_image_write_to_file(&File, Path.c_str(), 0, Bytes.data(), 0, nullptr) == 0) ADD_FAILURE() << File.message;
}

// Empty where there is none.
Bitmap ReadPicture(const std::string& Path) {
    png_image File{};
    File.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&File, Path.c_str()) == 0) return {};
    File.format = PNG_FORMAT_RGB;
    Bitmap Picture(static_cast<int>(File.width), static_cast<int>(File.height), 0);
    std::vector<png_byte> Bytes(Picture.Pixels.size() * 3);
    if (png_image_finish_read(&File, nullptr, Bytes.data(), 0, nullptr) == 0) return {};
    const png_byte* Level = Bytes.data();
    for (Color& Each : Picture.Pixels) {
        Each = RGB(Level[0], Level[1], Level[2]);
        Level += 3;
    }
    return Picture;
}

// A control with a caption, in its own size or in that of its text.
template <class Captioned>
Bitmap PaintedText(const Captioned& Record, bool Opaque, bool Centred) {
    const GlyphMask Mask = host->RenderText(Record.CurrentFont(), Record.Caption, 1.0);
    const auto SizeOf = [](double Own, int OfText) { return Own > 0.0 ? static_cast<int>(std::lround(Own)) : OfText; };
    Bitmap Box(SizeOf(Record.Width.Pixels(), Mask.Width), SizeOf(Record.Height.Pixels(), Mask.Height),
               Opaque ? Record.BackColor.Get() : Clear);
    Bitmap Text(Mask.Width, Mask.Height, Clear);
    for (std::size_t Pixel = 0; Pixel < Text.Pixels.size(); ++Pixel) {
        if (Mask.Coverage[Pixel] > 127) Text.Pixels[Pixel] = Record.ForeColor;
    }
    Lay(Box, Text, Centred ? (Box.Width - Text.Width) / 2 : 0, 0);
    return Box;
}

Bitmap PaintedControl(const Control& Record) {
    if (const auto* Box = dynamic_cast<const PictureBox*>(&Record)) return Painted(*Box);
    if (const auto* Text = dynamic_cast<const Label*>(&Record)) {
        return PaintedText(*Text, Text->Opaque, Text->TextAlignment == Alignment::Center);
    }
    if (const auto* Button = dynamic_cast<const CommandButton*>(&Record)) return PaintedText(*Button, true, true);
    return {};
}

}  // namespace

std::filesystem::path GoldenFile(const std::string& Name) {
    return std::filesystem::path(GLOAMTIDE_TEST_DATA) / "data" / Name;
}

void ExpectGoldenText(const std::string& Name, const std::string& Actual) {
    if (Taking()) {
        std::ofstream(GoldenFile(Name)) << Actual;
        GTEST_SKIP() << Name << " is taken in";
    }
    std::ostringstream Expected;
    Expected << std::ifstream(GoldenFile(Name)).rdbuf();
    if (Actual == Expected.str()) return;
    std::ofstream(DifferenceFile(Name)) << Actual;
    const auto Same = std::mismatch(Actual.begin(), Actual.end(), Expected.view().begin(), Expected.view().end()).first;
    ADD_FAILURE() << GoldenFile(Name).string() << ':' << 1 + std::count(Actual.begin(), Same, '\n')
                  << ": from here on something else is shown: " << DifferenceFile(Name);
}

void ExpectGoldenPicture(const std::string& Name, const Bitmap& Actual) {
    const std::string File = "pictures/" + Name + ".png";
    if (Taking()) {
        WritePicture(GoldenFile(File).string(), Actual);
        GTEST_SKIP() << File << " is taken in";
    }
    const Bitmap Expected = ReadPicture(GoldenFile(File).string());
    if (Expected.Width == Actual.Width && Expected.Pixels == Actual.Pixels) return;
    Bitmap Difference(Actual.Width, Actual.Height, RGB(255, 0, 0));
    const bool SameSize = Expected.Width == Actual.Width && Expected.Height == Actual.Height;
    for (std::size_t Pixel = 0; SameSize && Pixel < Actual.Pixels.size(); ++Pixel) {
        if (Expected.Pixels[Pixel] == Actual.Pixels[Pixel]) Difference.Pixels[Pixel] = 0;
    }
    const auto Differing = std::count(Difference.Pixels.begin(), Difference.Pixels.end(), RGB(255, 0, 0));
    WritePicture(DifferenceFile(File), Actual);
    WritePicture(DifferenceFile("pictures/" + Name + "-difference.png"), Difference);
    ADD_FAILURE() << Differing << " pixels differ from " << GoldenFile(File).string() << "; see "
                  << DifferenceFile(File) << " and the difference beside it";
}

void Lay(Bitmap& On, const Bitmap& Piece, int Left, int Top) {
    for (int Y = std::max(0, -Top); Y < std::min(Piece.Height, On.Height - Top); ++Y) {
        for (int X = std::max(0, -Left); X < std::min(Piece.Width, On.Width - Left); ++X) {
            if (Piece.Row(Y)[X] != Clear) On.Row(Top + Y)[Left + X] = Piece.Row(Y)[X];
        }
    }
}

Bitmap Painted(const PictureBox& Box) {
    Bitmap Inner(static_cast<int>(std::lround(Box.InnerWidth())), static_cast<int>(std::lround(Box.InnerHeight())),
                 Box.BackColor);
    Lay(Inner, Box.Picture, 0, 0);
    for (const Control* Each : Box.Children) {
        if (!Each->Visible) continue;
        Lay(Inner, PaintedControl(*Each), static_cast<int>(std::lround(Each->Left.Pixels())),
            static_cast<int>(std::lround(Each->Top.Pixels())));
    }
    const int Border = Box.BorderWidth;
    Bitmap Whole(Inner.Width + 2 * Border, Inner.Height + 2 * Border, Box.BackColor);
    Lay(Whole, Inner, Border, Border);
    return Whole;
}

}  // namespace gloamtide
