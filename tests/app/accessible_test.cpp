// The program's own windows as someone meets them who uses no mouse and sees no screen.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <set>

#include "frame/startup.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/qt_host.h"
#include "tests/fresh_program.h"

namespace gloamtide {
namespace {

class AccessibleProgram : public testing::Test {
protected:
    AccessibleProgram() {
        RenewProgram();
        state.StartupSource = ConfigurationSource::Defaults;
        StartProgram();
        FormGTMain.MenuShowHideSubSundial.Click();
        FormGTMain.MenuAnimationSubStart.Click();
        FormGTMain.Timer3.Enabled = false;
    }
    ~AccessibleProgram() override {
        state.ExitInProgress = True;  // no question
        while (!LoadedForms.empty()) LoadedForms.back()->Unload();
    }

    static QString NameOf(QWidget* Widget) {
        return QAccessible::queryAccessibleInterface(Widget)->text(QAccessible::Name);
    }

    // What Tab comes to, from the first control until it comes round.
    std::vector<std::string> TabOrder(const Form& Which) {
        QWidget* Window = Desktop.WindowOf(Which);
        EXPECT_TRUE(QTest::qWaitForWindowActive(Window));
        std::vector<std::string> Names;
        for (QWidget* Focus = QApplication::focusWidget(); Focus != nullptr; Focus = QApplication::focusWidget()) {
            const std::string Name = Focus->objectName().toStdString();
            if (!Names.empty() && Name == Names.front()) break;
            EXPECT_LT(Names.size(), 50U) << Name;
            if (Names.size() >= 50) break;
            Names.push_back(Name);
            QTest::keyClick(Focus, Qt::Key_Tab);
        }
        return Names;
    }

    QtHost Desktop;
};

TEST_F(AccessibleProgram, EveryControlHasANameOfItsOwn) {
    FormConfigure.OptionDateTime[1].Value = true;
    for (Form* Each :
         std::initializer_list<Form*>{&FormGTMain, &FormConfigure, &FormAnimation, &FormSundialOptions, &FormAbout}) {
        SCOPED_TRACE(Each->Name);
        Each->Show();
        QWidget& Window = *Desktop.WindowOf(*Each);
        std::set<QString> Names;
        int Controls = 0;
        for (QWidget* Widget : Window.findChildren<QWidget*>()) {
            const bool Control = (Widget->focusPolicy() & Qt::TabFocus) != 0 && !Widget->objectName().isEmpty() &&
                                 Widget->objectName().at(0).isUpper();
            const bool Picture = dynamic_cast<PictureView*>(Widget) != nullptr;
            if (!Widget->isVisible() || !(Control || Picture)) continue;
            EXPECT_FALSE(NameOf(Widget).isEmpty()) << Widget->objectName().toStdString();
            EXPECT_NE(NameOf(Widget), Widget->objectName());
            if (!Control) continue;
            ++Controls;
            // "Degrees" of latitude and of longitude are told apart by their groups.
            const QString Name = NameOf(Widget->parentWidget()) + ": " + NameOf(Widget);
            EXPECT_TRUE(Names.insert(Name).second) << Name.toStdString();
        }
        EXPECT_GT(Controls, 0);
    }
}

TEST_F(AccessibleProgram, TabGoesRoundInReadingOrder) {
    FormGTMain.MenuConfigure.Click();
    FormConfigure.OptionDateTime[1].Value = true;
    EXPECT_EQ(TabOrder(FormConfigure),
              (std::vector<std::string>{"ComboCityName", "OptionSetLat(0)", "ComboSetLatDeg", "ComboSetLatMin",
                                        "OptionSetLong(1)", "ComboSetLongDeg", "ComboSetLongMin", "OptionDateTime(1)",
                                        "OptionDaylightSavings(0)", "ComboSelMonth", "ComboSelDay", "TextSelYear",
                                        "ComboSelHour", "ComboSelMinute", "ComboSelTZ", "CmdConfigureOK",
                                        "CmdConfigureCancel"}));
    FormConfigure.CmdConfigureCancel.Click();
    FormGTMain.MenuAnimationSubOptions.Click();
    EXPECT_EQ(TabOrder(FormAnimation),
              (std::vector<std::string>{"TextStepYears", "TextStepDays", "TextStepHours", "OptionAnimOptionsFwdBack(0)",
                                        "CmdAnimOptionsOK", "CmdAnimOptionsCancel"}));
    FormAnimation.CmdAnimOptionsCancel.Click();
    FormGTMain.CommandSDOptions.Click();
    EXPECT_EQ(TabOrder(FormSundialOptions),
              (std::vector<std::string>{"CheckSundialLongitudeCorrection", "CheckSundialEOTCorrection",
                                        "CheckSundialDSTCorrection", "CommandSDOptionsOK", "CommandSDOptionsCancel"}));
    FormSundialOptions.CommandSDOptionsCancel.Click();
    QTest::keyClick(Desktop.WindowOf(FormGTMain), Qt::Key_Tab);
    EXPECT_EQ(TabOrder(FormGTMain), (std::vector<std::string>{"CommandSDOptions", "CmdAnimStop"}));
}

}  // namespace
}  // namespace gloamtide
