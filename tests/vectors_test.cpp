// The program against reference values: every table of tests/data/vectors.
#include "tests/vectors.h"

#include <functional>

#include "astro/calendar.h"
#include "astro/degrees.h"
#include "astro/lunar.h"
#include "astro/seasons.h"
#include "astro/solar.h"
#include "astro/sunrise.h"
#include "clock/animation.h"
#include "map/hour_ruler.h"
#include "map/sun_overlays.h"
#include "panel/information_panel.h"
#include "state/number_pattern.h"
#include "sundial/dial.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr Color DayColor = RGB(255, 255, 255);
constexpr Color NightColor = RGB(0, 0, 3);

class Vectors : public ProgramTest {
protected:
    Vectors() {
        LoadMonthNames();
        LoadMoonNames();
    }

    // Runs the check on each row, its inputs put into the state that the test has made, and compares the state.
    static void ForEachRow(const std::string& Table, const std::function<void(const VectorRow&)>& Check) {
        const SharedState Before = state;
        for (const VectorRow& R : ReadVectors("vectors/" + Table)) {
            SCOPED_TRACE(R.Where);
            R.In.PutIntoState();
            Check(R);
            R.Out.ExpectInState();
            state = Before;
        }
    }

    // A main window for a screen of this width, with maps that are white by day and dark by night.
    void SetScreen(int Width) {
        Desktop.ScreenWidth = Width;
        MeasureScreen();
        LayOutMainWindow();
        ScaleMapPictures();
        for (PictureSurface* Each : FormPictures.WorkPictures()) Each->BackColor = NightColor;
        FormPictures.PictureDay.BackColor = DayColor;
        FormPictures.PictureDay.Canvas();
        Surface.Canvas();
    }

    // For the class of screens that the row names, itself or by the map's width.
    void SetScreenOfRow() {
        const int W = state.MapWidth;
        const int Class = W == 0 ? state.ScreenClass : W == 580 ? 0 : W == 740 ? 1 : W == 956 ? 2 : 3;
        SetScreen(std::array{640, 800, 1024, 1280}.at(static_cast<std::size_t>(Class)));
    }

    PictureSurface& Surface = FormPictures.PictureNightSplit;
    Bitmap& Map = Surface.Picture;
};

TEST_F(Vectors, RoutinesOfTheState) {
    const std::pair<const char*, std::function<void()>> Tables[] = {{"date_to_julian", DateToJulian},
                                                                    {"julian_to_date", JulianToDate},
                                                                    {"date_fields", UpdateDateFields},
                                                                    {"moon_phase_text", ChooseMoonPhaseText},
                                                                    {"season_countdown", SeasonCountdown},
                                                                    {"solar_position", SolarPosition},
                                                                    {"sunrise_sunset", SunriseSunset},
                                                                    {"lunar_position", [] {
                                                                         SolarPosition();
                                                                         LunarPosition();
                                                                     }}};
    for (const auto& [Table, Routine] : Tables) {
        ForEachRow(Table, [&Run = Routine](const VectorRow&) { Run(); });
    }
    Start(640);
    ForEachRow("animation_step", [](const VectorRow&) { FormGTMain_Timer3_Timer(); });
}

TEST_F(Vectors, DegreeRoutines) {
    ForEachRow("degree_routines", [](const VectorRow& R) {
        const double Angle = R.In["angle"];
        double Cosine = R.In["cosine"];
        R.Expect({{"SinDeg", SinDeg(Angle)}, {"CosDeg", CosDeg(Angle)}, {"TanDeg", TanDeg(Angle)}});
        R.Expect({{"ArcTanDeg", ArcTanDeg(Angle)}, {"ArcSinDeg", ArcSinDeg(R.In["ratio"])}});
        R.Expect({{"ArcCosDeg", ArcCosDeg(Cosine)}, {"cosineAfterwards", Cosine}});
    });
}

TEST_F(Vectors, SolarElements) {
    ForEachRow("solar_elements", [](const VectorRow& R) {
        const SolarSeries S = SolarElements(R.In["T"]);
        R.Expect({{"eps", S.Obliquity}, {"M", S.MeanAnomaly}, {"C", S.EquationOfCentre}, {"L0", S.MeanLongitude}});
        R.Expect({{"lambda", S.TrueLongitude}, {"e", S.Eccentricity}, {"y", S.Y}, {"E", S.EquationOfTime}});
    });
}

TEST_F(Vectors, NumberPattern) {
    ForEachRow("number_pattern", [](const VectorRow& R) {
        EXPECT_EQ(FormatNumber(R.In["value"], R.In.Texts["pattern"]), R.Out.Texts["text"]);
    });
}

TEST_F(Vectors, MapConversions) {
    ForEachRow("map_conversions", [](const VectorRow& R) {
        const double X = R.In["x"], L = R.In["l"], H = R.In["h"], A = R.In["a"];
        R.Expect({{"MapXToLongitude", MapXToLongitude(Single(X))}, {"MapXToLongitudeD", MapXToLongitude(X)}});
        R.Expect({{"LongitudeToMapX", LongitudeToMapX(Single(L))}, {"LongitudeToMapXD", LongitudeToMapX(L)}});
        R.Expect({{"HourToMapX", HourToMapX(Single(H))}, {"HourToMapXD", HourToMapX(H)}});
        R.Expect({{"LatitudeToPixelY", LatitudeToPixelY(Single(A))}, {"LatitudeToPixelYD", LatitudeToPixelY(A)}});
        R.Expect({{"LongitudeToRotatedMapX", LongitudeToRotatedMapX(Single(L))}});
    });
}

TEST_F(Vectors, MapShift) {
    ForEachRow("map_shift", [](const VectorRow& R) {
        for (const auto& [MapWidth, Shift] : {std::pair(580, "MapShift0"), std::pair(740, "MapShift1"),
                                              std::pair(956, "MapShift2"), std::pair(1182, "MapShift3")}) {
            state.MapWidth = static_cast<std::int16_t>(MapWidth);
            RotateMap();
            EXPECT_EQ(state.MapShift, R.Out[Shift]);
        }
    });
}

// Colours the pixels from Left and Top up to, not including, Right and Bottom.
void Paint(Bitmap& Picture, int Left, int Top, int Right, int Bottom, Color Ink) {
    for (int Y = std::max(Top, 0); Y < std::min(Bottom, Picture.Height); ++Y) {
        for (int X = std::max(Left, 0); X < std::min(Right, Picture.Width); ++X) Picture.Row(Y)[X] = Ink;
    }
}

// A block that is given with its size, a negative one upward.
void PaintStrip(Bitmap& Picture, const VectorValues& Strip) {
    const auto [Top, Bottom] = std::minmax({Strip.Whole("y"), Strip.Whole("y") + Strip.Whole("height")});
    Paint(Picture, Strip.Whole("x"), Top, Strip.Whole("x") + Strip.Whole("width"), Bottom, DayColor);
}

TEST_F(Vectors, DayStrip) {
    ForEachRow("day_strip", [this](const VectorRow& R) {
        SetScreenOfRow();
        Bitmap Expected = Map;
        PaintStrip(Expected, R.Out);
        BlitDayStrip();
        EXPECT_EQ(Map.Pixels, Expected.Pixels);
    });
}

// The strips of a whole map, and the lit columns that they leave in each row from the top.
TEST_F(Vectors, DayStripsAndRows) {
    for (const char* Table : {"day_strips", "day_rows"}) {
        ForEachRow(Table, [this](const VectorRow& R) {
            SetScreenOfRow();
            state.TanSunDeclination = TanDeg(state.SunDeclination);
            state.EquationOfTimeMapShift = Single(state.EquationOfTime / 1440.0 * state.MapWidth);
            Bitmap Expected = Map;
            int Row = 0;
            for (const VectorValues& Each : R.Groups) {
                if (Each.Numbers.contains("x"))
                    PaintStrip(Expected, Each);
                else
                    Paint(Expected, Each.Whole("first"), Row, Each.Whole("end"), Row + 1, DayColor);
                ++Row;
            }
            RedrawMap();
            EXPECT_EQ(FormGTMain.PictureGT.Picture.Pixels, Expected.Pixels);
        });
    }
}

TEST_F(Vectors, Analemma) {
    ForEachRow("analemma", [this](const VectorRow& R) {
        SetScreenOfRow();
        Bitmap Expected = Map;
        for (const VectorValues& Dot : R.Groups) {
            const int X = static_cast<int>(state.MapWidth - Dot["X"]);
            const int Y = static_cast<int>((80.0 - Dot["Y"]) / 150.0 * state.MapHeight);
            Expected.Row(Y)[X] = QBColor(15);
        }
        DrawAnalemma();
        EXPECT_EQ(Map.Pixels, Expected.Pixels);
    });
}

// The disc reaches almost as far as its radius, its rays not much farther.
TEST_F(Vectors, SunMarker) {
    ForEachRow("sun_marker", [this](const VectorRow& R) {
        SetScreenOfRow();
        R.Expect({{"Eh", SubsolarPointAt(state.CurrentJD).EquationOfTime}});
        DrawSunMarker();
        for (const float Off : {-1.7F, -0.85F, 0.85F, 1.7F}) {
            const bool Lit = Surface.Point(R.Out["X"] + Off * state.MarkerRadiusX, R.Out["Y"]) != NightColor;
            EXPECT_EQ(Lit, std::abs(Off) < 1.0F) << Off;
        }
    });
}

// The headless host's letters are full boxes: a column lies in the middle of its two.
TEST_F(Vectors, HourRuler) {
    ForEachRow("hour_ruler", [this](const VectorRow& R) {
        SetScreenOfRow();
        DrawZoneHourRuler();
        const float Half = state.HourRulerHalfText;
        const Color* const Row = Map.Row(static_cast<int>(146.0 / 150.0 * state.MapHeight) + 2);
        for (const VectorValues& Hour : R.Groups) {
            for (const float Off : {-Half - 1.5F, -Half + 1.5F, Half - 1.5F, Half + 1.5F}) {
                const double X = Hour["column"] + Off;
                const bool Outside = X < 0.0 || X >= state.MapWidth;
                EXPECT_TRUE(Outside || (Row[static_cast<int>(X)] != NightColor) == (std::abs(Off) < Half)) << X;
            }
        }
    });
    struct Recorder : HeadlessHost {
        std::string Texts;
        GlyphMask RenderText(const Font& Which, const std::string& Text, double Density) override {
            Texts += Text;
            return HeadlessHost::RenderText(Which, Text, Density);
        }
    } Printer;
    DrawZoneHourRuler();
    EXPECT_EQ(Printer.Texts, "00" /* measured */ "000102030405060708091011121314151617181920212223");
}

TEST_F(Vectors, DateBand) {
    ForEachRow("date_band", [this](const VectorRow& R) {
        SetScreen(R.In.Whole("L") + R.In.Whole("W") + 4);
        PictureSurface& Band = FormGTMain.PictureGTContainer;
        Band.BackColor = QBColor(0);
        Bitmap Expected = Band.Canvas();
        for (const VectorValues& Bar : R.Groups) {
            const auto [Left, Right] = std::minmax({Bar.Whole("x1"), Bar.Whole("x2")});
            Paint(Expected, Left, Bar.Whole("y1"), Right + 1, Bar.Whole("y2") + 1, RGB(225, 225, 127));
        }
        Paint(Band.Picture, R.Out.Whole("clearX1"), R.Out.Whole("clearY1"), R.Out.Whole("clearX2") + 1,
              R.Out.Whole("clearY2") + 1, DayColor);  // all this is to be cleared
        DrawDateBand();
        EXPECT_EQ(Band.Picture.Pixels, Expected.Pixels);
    });
    SetScreen(640);
    for (const float Broken : {std::nanf(""), -1.0F, 60.0F, 29.5F, 1e30F}) {  // times that draw no bars
        state.GreenwichMinute = state.GreenwichMonth = Broken;
        DrawZoneHourRuler();
        DrawDateBand();
        const auto& Pixels = FormGTMain.PictureGTContainer.Picture.Pixels;
        EXPECT_EQ(std::count(Pixels.begin(), Pixels.end(), RGB(225, 225, 127)), 0) << Broken;
    }
}

// The captions of a window's labels by their names.
void ExpectCaptions(const Container& Window, const Columns<std::string>& Captions) {
    std::size_t Found = 0;
    for (Control* Each : Window.Children) {
        const std::string Name = Each->Name.substr(0, Each->Name.find('('));  // without its place in an array
        if (!Captions.contains(Name)) continue;
        EXPECT_EQ(dynamic_cast<Label&>(*Each).Caption, Captions[Name]) << Name;
        ++Found;
    }
    EXPECT_EQ(Found, Captions.size());
}

TEST_F(Vectors, DateCaptions) {
    ForEachRow("date_captions", [](const VectorRow& R) {
        DrawDateBand();
        ExpectCaptions(FormGTMain.PictureGTContainer, R.Out.Texts);
    });
}

// The whole road from the instant and the place to the captions, on each panel in turn.
TEST_F(Vectors, InformationPanel) {
    const SharedState Fresh = state;
    std::size_t Panel = 0;
    ForEachRow("information_panel", [&](const VectorRow& R) {
        Panel = (Panel + 1) % 4;
        state = Fresh;
        state.ScreenClass = static_cast<std::int16_t>(Panel);
        VectorValues Given{{}, R.In.Texts};
        for (const char* Each :
             {"CurrentJD", "OffsetDays", "LocationLat", "LocationLong", "ZoneHours", "DaylightHours"})
            Given.Numbers.emplace(Each, R.In[Each]);
        Given.PutIntoState();
        RecomputeAlmanac();
        R.In.ExpectInState();
        ExpectCaptions(FormGTMain.PictureGTData[Panel], R.Out.Texts);
    });
}

std::string Hex(const std::string& Bytes) {
    std::string Result;
    for (const char Each : Bytes) {
        for (const int Shift : {4, 0}) Result += "0123456789abcdef"[static_cast<unsigned char>(Each) >> Shift & 15];
    }
    return Result;
}

TEST_F(Vectors, Configuration) {
    ForEachRow("configuration", [](const VectorRow& R) {
        state.ConfigFilePath = "my.gtf";
        SaveConfiguration();
        EXPECT_EQ(Hex(ReadFile("my.gtf", 2000)), R.Out.Texts["hex"]);
        state = SharedState{};
        state.ConfigOpenPath = "my.gtf";
        LoadConfiguration();
        R.In.ExpectInState();
    });
}

class StartedVectors : public Vectors {
protected:
    StartedVectors() { Start(640); }

    ConfigureForm& F = FormConfigure;
};

// A place that is set comes through OK into the state, by the zone mask, and back into the dialog.
TEST_F(StartedVectors, LocationControls) {
    const std::pair<const char*, ComboBox*> Lists[] = {{"ComboSetLatDeg", &F.ComboSetLatDeg},
                                                       {"ComboSetLatMin", &F.ComboSetLatMin},
                                                       {"ComboSetLongDeg", &F.ComboSetLongDeg},
                                                       {"ComboSetLongMin", &F.ComboSetLongMin}};
    const Bitmap& Mask = FormPictures.PictureTZmask.Picture;
    ForEachRow("location_controls", [&](const VectorRow& R) {
        OptionButton& Latitude = F.OptionSetLat[R.In["OptionSetLat"] == 0.0 ? 0 : 1];
        OptionButton& Longitude = F.OptionSetLong[R.In["OptionSetLong"] == 0.0 ? 0 : 1];
        FormGTMain.MenuConfigure.Click();
        Latitude.Value = Longitude.Value = true;
        for (const auto& [Name, List] : Lists) List->ListIndex = R.In.Whole(Name);
        F.CmdConfigureOK.Click();
        EXPECT_EQ(state.MaskCode, RedOf(Mask.Row(R.Out.Whole("Row"))[R.Out.Whole("Column")]));
        state.ConfigureArmed = False;  // the zone stays
        F.OptionSetLat[0].Value = F.OptionSetLong[0].Value = true;
        FormGTMain.MenuConfigure.Click();
        EXPECT_TRUE(Latitude.Value && Longitude.Value);
        for (const auto& [Name, List] : Lists) EXPECT_EQ(List->ListIndex, R.In.Whole(Name)) << Name;
    });
}

TEST_F(StartedVectors, YearText) {
    ForEachRow("year_text", [this](const VectorRow& R) {
        FormGTMain.MenuConfigure.Click();
        F.OptionDateTime[1].Value = true;
        F.TextSelYear.Text = R.In.Texts["text"];
        int Days = 0;
        for (int Month = 0; Month < 12; ++Month) {
            F.ComboSelMonth.ListIndex = Month;
            F.ComboSelDay.DropDown();
            Days += F.ComboSelDay.ListCount();
        }
        Days -= 337;  // those of the other months
        Desktop.Messages.clear();
        F.CmdConfigureOK.Click();
        const double Fails = Desktop.Messages.empty() ? False : True;
        R.Expect({{"NumericValue", LeadingNumber(R.In.Texts["text"])}, {"FebruaryDays", Days}, {"YearFails", Fails}});
    });
}

// What is drawn between these places is held by tests/data/pictures/dials.png.
TEST_F(Vectors, Sundial) {
    SetScreen(1280);
    MainForm& F = FormGTMain;
    ForEachRow("sundial", [&F](const VectorRow& R) {
        DrawSundial();
        EXPECT_EQ(F.LabelSundialMotto.Visible, R.Out["Day"] == 1.0);
        for (const VectorValues& Line : R.Groups) {
            const Label& Number = F.LabelHour[static_cast<std::size_t>(Line["hour"])];
            EXPECT_TRUE(Number.Visible);
            EXPECT_NEAR(Number.Left, Line["Left"], 1e-3);
            EXPECT_NEAR(Number.Top, Line["Top"], 1e-3);
            state.SundialHour = Single(Line["hour"]);
            PlaceHourLine();
            Line.ExpectInState();
        }
    });
    state.SundialHour = 12.0F;  // noon on the equator, the Sun straight above: the shadow has no direction
    DrawSundialShadow();
    EXPECT_EQ(state.SunAzimuth, 0.0);
}

}  // namespace
}  // namespace gloamtide
