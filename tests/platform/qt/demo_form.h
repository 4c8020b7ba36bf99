// What the tests of the Qt host stand on: a form with every kind of control, shown with real widgets.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <stdexcept>

#include "platform/combo_box.h"
#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/qt/qt_host.h"

namespace gloamtide {

struct DemoForm : Form {
    DemoForm() : Form("DemoForm", 6000.0, 4500.0) {
        Caption = "A window for tests";
        Picture.Move(150.0, 150.0);
        Picture.Size(1530.0, 1530.0);  // 102 pixels with the border
        Picture.BorderWidth = 1;
        Picture.Scale(100.0, 80.0, 0.0, -70.0);
        Picture.Description = "The world";
        OnPicture.Caption = "Noon";
        OnPicture.ForeColor = RGB(255, 255, 0);
        OnPicture.ToolTipText = "When the Sun stands highest";
        OnPicture.Size(40.0, 30.0);
        Choice.Move(1800.0, 150.0);
        Choice.Size(3000.0, 900.0);
        Choice.Caption = "Side";
        North.Caption = "&North";
        South.Caption = "South";
        South.Top = 450.0;
        Tick.Caption = "Ticked";
        Tick.Move(1800.0, 1200.0);
        Heading.Caption = "Year";
        Heading.Move(1800.0, 1500.0);
        Year.Move(2700.0, 1500.0);
        Names.Move(1800.0, 1950.0);
        Names.Width = 2000.0;
        Zones.Move(1800.0, 2400.0);
        OK.Caption = "OK";
        OK.Default = true;
        OK.Move(1800.0, 3000.0);
        Cancel.Caption = "Cancel";
        Cancel.Cancel = true;
        Cancel.Move(3300.0, 3000.0);
        for (const char* Entry : {"Rome", "Athens", "Oslo"}) {
            Names.AddItem(Entry);
            Zones.AddItem(Entry);
        }
    }

    Menu File{*this, "MenuFile", "&File"};
    Menu Open{File, "MenuFileSubOpen", "&Open"};
    Menu OpenSep{File, "MenuFileSubOpenSep"};
    Menu Save{File, "MenuFileSubSave", "&Save"};
    Menu Quit{*this, "MenuQuit", "&Quit"};
    PictureBox Picture{*this, "Picture"};
    Label OnPicture{Picture, "OnPicture"};
    Frame Choice{*this, "Choice"};
    OptionButton North{Choice, "North"};
    OptionButton South{Choice, "South"};
    CheckBox Tick{*this, "Tick"};
    Label Heading{*this, "Heading"};
    TextBox Year{*this, "Year"};
    ComboBox Names{*this, "Names", ComboStyle::DropDownCombo, true};
    ComboBox Zones{*this, "Zones", ComboStyle::DropDownList};
    CommandButton OK{*this, "OK"};
    CommandButton Cancel{*this, "Cancel"};
    Timer Clock{*this, "Clock"};
};

class DesktopTest : public testing::Test {
protected:
    DesktopTest() {
        LoadedForms.clear();
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

    // Runs Answer once the next dialog is open.
    template <class Dialog>
    static void WhenOpen(std::function<void(Dialog&)> Answer) {
        QTimer::singleShot(0, [Answer] {
            if (auto* Box = qobject_cast<Dialog*>(QApplication::activeModalWidget()); Box != nullptr) {
                Answer(*Box);
            } else {
                WhenOpen<Dialog>(Answer);
            }
        });
    }

    DemoForm Demo;
    QtHost Desktop;  // after the form, so that its windows go first
};

}  // namespace gloamtide
