#include "dialogs/sundial_options.h"

#include "sundial/mottos.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class SundialOptions : public ProgramTest {
protected:
    SundialOptions() {
        Start();
        state.ConfigSaved = True;
        state.SundialEOTCorrection = True;
        FormGTMain.CommandSDOptions.Click();
    }

    SundialOptionsForm& F = FormSundialOptions;
};

TEST_F(SundialOptions, OpensWithTheFlagsInTheMainWindowsPlace) {
    EXPECT_TRUE(F.Visible);
    EXPECT_FALSE(FormGTMain.Visible);
    EXPECT_EQ(F.CheckSundialLongitudeCorrection.Value, 0);
    EXPECT_EQ(F.CheckSundialEOTCorrection.Value, 1);
    EXPECT_EQ(F.CheckSundialDSTCorrection.Value, 0);
}

TEST_F(SundialOptions, OKTakesTheTicksOver) {
    F.CheckSundialDSTCorrection.Value = 1;
    F.CheckSundialEOTCorrection.Value = 0;
    F.CommandSDOptionsOK.Click();
    EXPECT_EQ(state.SundialDSTCorrection, True);
    EXPECT_EQ(state.SundialEOTCorrection, False);
    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_TRUE(FormGTMain.Visible);
    EXPECT_FALSE(F.Visible);
    EXPECT_EQ(Desktop.Focus, &FormGTMain.PictureSundial);
}

TEST_F(SundialOptions, CancelAndTheCloseButtonDropThem) {
    F.CheckSundialDSTCorrection.Value = 1;
    F.CommandSDOptionsCancel.Click();
    EXPECT_EQ(state.SundialDSTCorrection, False);
    EXPECT_EQ(F.CheckSundialDSTCorrection.Value, 0);
    EXPECT_EQ(state.ConfigSaved, True);
    FormGTMain.CommandSDOptions.Click();
    F.CheckSundialDSTCorrection.Value = 1;
    F.Close();
    EXPECT_EQ(state.SundialDSTCorrection, False);
    EXPECT_TRUE(FormGTMain.Visible);
}

TEST_F(SundialOptions, TheMottoChangesAtMidnightGreenwichAndNeverLeavesTheTable) {
    const auto MottoAt = [](double JD) {
        state.SystemJD = JD;
        ChooseMotto();
        return FormGTMain.LabelSundialMotto.Caption.Get();
    };
    EXPECT_EQ(MottoAt(36.0 * 68000.0), "Carpe diem -- Sieze the day");
    EXPECT_EQ(MottoAt(36.0 * 68000.0 + 12.0), "Grow old along with me, the best is yet to be");
    EXPECT_EQ(MottoAt(36.0 * 68000.0 + 10.0), "");
    EXPECT_EQ(MottoAt(36.0 * 68000.0 + 35.4), "One day at a time");
    EXPECT_EQ(MottoAt(36.0 * 68000.0 + 35.6), "Carpe diem -- Sieze the day");
    EXPECT_EQ(MottoAt(-1.0), "One day at a time");
    int Filled = 0;
    for (const std::string& Each : state.Mottos) Filled += Each.empty() ? 0 : 1;
    EXPECT_EQ(Filled, 34);
}

}  // namespace
}  // namespace gloamtide
