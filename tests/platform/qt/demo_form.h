// What the tests of the Qt host stand on: a form with every kind of control, shown with real widgets.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <stdexcept>

#include "platform/combo_box.h"
#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/qt/qt_host.h"

namespace gloamtide {

struct DemoForm : Form {
    DemoForm() : Form("DemoForm", 6000.0, 4500.0) {
        const auto Entitle = [](auto&... Each) { ((Each.Caption = Each.Name), ...); };
        Entitle(OnPicture, Choice, North, South, Heading, OK, Cancel);
        const std::tuple<Control&, double, double> Places[] = {
            {Picture, 150.0, 150.0}, {Choice, 1800.0, 150.0}, {South, 0.0, 450.0},    {Cancel, 1500.0, 600.0},
            {Tick, 1800.0, 1200.0},  {Heading, 0.0, 1800.0},  {Year, 2700.0, 1500.0}, {Names, 1800.0, 1950.0},
            {Zones, 1800.0, 2400.0}, {OK, 1800.0, 3000.0}};
        for (const auto& [Each, X, Y] : Places) Each.Move(X, Y);
        Picture.Size(1530.0, 1530.0);  // 102 pixels with the border
        Picture.BorderWidth = 1;
        Picture.Scale(100.0, 80.0, 0.0, -70.0);
        OnPicture.Size(40.0, 30.0);
        Choice.Size(3000.0, 1000.0);
        OK.Default = true;
        Cancel.Cancel = true;
        for (ComboBox* List : {&Names, &Zones}) {
            for (const char* Entry : {"Rome", "Athens", "Oslo"}) List->AddItem(Entry);
        }
    }

    Menu File{*this, "File", "&File"};
    Menu Open{File, "Open", "&Open"};
    Menu Save{File, "Save", "&Save"};
    Menu Quit{*this, "Quit", "&Quit"};
    BarButton Now{*this, "Now", "Now"};
    PictureBox Picture{*this, "Picture"};
    Label OnPicture{Picture, "OnPicture"};
    Frame Choice{*this, "Choice"};
    OptionButton North{Choice, "North"};
    OptionButton South{Choice, "South"};
    CommandButton Cancel{Choice, "Cancel"};
    CheckBox Tick{*this, "Tick"};
    Label Heading{*this, "Heading"};
    TextBox Year{*this, "Year"};
    ComboBox Names{*this, "Names", ComboStyle::DropDownCombo, true};
    ComboBox Zones{*this, "Zones", ComboStyle::DropDownList};
    CommandButton OK{*this, "OK"};
    Timer Clock{*this, "Clock"};
};

class DesktopTest : public testing::Test {
protected:
    DesktopTest() {
        const auto Hear = [this](auto&... Each) { ((Each.Click = [&] { Heard += Each.Name + " "; }), ...); };
        Hear(Demo.Open, Demo.Save, Demo.Quit, Demo.Now, Demo.North, Demo.South, Demo.Cancel, Demo.Tick, Demo.Names,
             Demo.Zones, Demo.OK);
        Demo.Show();
    }
    ~DesktopTest() override { LoadedForms.clear(); }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&Window())); }

    QWidget& Window() { return *Desktop.WindowOf(Demo); }

    template <class Widget>
    Widget& Find(const Element& Record) {
        auto* Found = Window().findChild<Widget*>(QString::fromStdString(Record.Name));
        if (Found == nullptr) throw std::runtime_error("nothing stands for " + Record.Name);
        return *Found;
    }

    // Waits while a timer of one millisecond fires four times; false if it does not.
    static bool PassTime() {
        int Beats = 0;
        QTimer Other;
        QObject::connect(&Other, &QTimer::timeout, [&] { ++Beats; });
        Other.start(1);
        return QTest::qWaitFor([&] { return Beats >= 4; });
    }

    // Runs Answer once the next dialog is open.
    template <class Dialog>
    static void WhenOpen(std::function<void(Dialog&)> Answer) {
        QTimer::singleShot(0, [Answer] {
            auto* Box = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            Box == nullptr ? WhenOpen<Dialog>(Answer) : Answer(*Box);
        });
    }

    // A window as large as the desktop, with the program's pixels as they are.
    struct FixedHost : QtHost {
        void Prepare(FormWindow& Which) override {
            QtHost::Prepare(Which);
            Which.FixScale(1.0);
        }
    };

    std::string Heard;  // names of the controls whose Click came
    DemoForm Demo;
    FixedHost Desktop;  // after the form, so that its windows go first
};

}  // namespace gloamtide
