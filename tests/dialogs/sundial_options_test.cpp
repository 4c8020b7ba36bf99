#include "dialogs/sundial_options.h"

#include "sundial/mottos.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class SundialOptions : public ProgramTest {
protected:
    SundialOptions() {
        Start(640);
        FormGTMain.MenuShowHideSubSundial.Click();
        state.ConfigSaved = True;
        state.SundialEOTCorrection = True;
        Open();
    }

    static void Open() { FormGTMain.CommandSDOptions.Click(); }

    // Ticks: longitude, equation of time, daylight saving.
    std::array<int, 3> Ticks() const {
        return {F.CheckSundialLongitudeCorrection.Value, F.CheckSundialEOTCorrection.Value,
                F.CheckSundialDSTCorrection.Value};
    }

    SundialOptionsForm& F = FormSundialOptions;
};

TEST_F(SundialOptions, OKTakesTheTicksOverAndTurnsTheLines) {
    EXPECT_TRUE(F.Visible && !FormGTMain.Visible);
    EXPECT_EQ(Ticks(), (std::array<int, 3>{0, 1, 0}));
    const Bitmap Before = FormGTMain.PictureSundial.Picture;
    F.CheckSundialLongitudeCorrection.Value = F.CheckSundialDSTCorrection.Value = 1;
    F.CheckSundialEOTCorrection.Value = 0;
    F.CommandSDOptionsOK.Click();
    EXPECT_TRUE(state.SundialLongitudeCorrection == True && state.SundialDSTCorrection == True);
    EXPECT_EQ(state.SundialEOTCorrection, False);
    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_TRUE(FormGTMain.Visible && !F.Visible && Desktop.Focus == &FormGTMain.PictureSundial);
    EXPECT_NE(FormGTMain.PictureSundial.Picture.Pixels, Before.Pixels);
    Open();
    EXPECT_EQ(Ticks(), (std::array<int, 3>{1, 0, 1}));
}

TEST_F(SundialOptions, CancelAndTheCloseButtonDropThem) {
    for (const bool ByItsButton : {true, false}) {
        F.CheckSundialDSTCorrection.Value = 1;
        ByItsButton ? F.CommandSDOptionsCancel.Click() : F.Close();
        EXPECT_EQ(state.SundialDSTCorrection, False);
        EXPECT_EQ(state.ConfigSaved, True);
        EXPECT_TRUE(FormGTMain.Visible);
        Open();
        EXPECT_EQ(Ticks(), (std::array<int, 3>{0, 1, 0}));
    }
}

TEST_F(SundialOptions, AMottoForEachDay) {
    std::string Text;
    for (const double Place : {-1.0, 0.49, 0.5, 1.49, 35.51}) {  // changes at 0h Greenwich, to an even number at a tie
        state.SystemJD = 36.0 * 68000.0 + Place;
        ChooseMotto();
        Text += FormGTMain.LabelSundialMotto.Caption.Get() + "\n";
    }
    for (std::size_t Place = 0; Place < state.Mottos.size(); ++Place) {
        Text += std::to_string(Place) + " " + state.Mottos[Place] + "\n";
    }
    ExpectGoldenText("mottos.txt", Text);
}

}  // namespace
}  // namespace gloamtide
