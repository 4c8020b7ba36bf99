#include "platform/controls.h"

#include <gtest/gtest.h>

#include "platform/combo_box.h"
#include "platform/headless/headless_host.h"
#include "platform/picture_box.h"

namespace gloamtide {
namespace {

struct DemoForm : Form {
    DemoForm() : Form("DemoForm", 9000.0, 6000.0) {}

    ComboBox Names{*this, "Names", ComboStyle::DropDownCombo, true};
    ComboBox Zones{*this, "Zones", ComboStyle::DropDownList};
    PictureBox Picture{*this, "Picture"};
    Label Child{Picture, "Child"};
    CommandButton Cancel{Picture, "Cancel"};
};

struct CountingObserver : ElementObserver {
    int Changes = 0;
    void ElementChanged(Element&) override { ++Changes; }
};

class Controls : public testing::Test {
protected:
    Controls() { LoadedForms.clear(); }

    HeadlessHost Desktop;
    CountingObserver Observer;
    DemoForm Demo;
};

TEST_F(Controls, AnObserverHearsOfChangesOnly) {
    Demo.Child.Observer = Demo.Zones.Observer = &Observer;
    for (int Time = 0; Time < 2; ++Time) {
        Demo.Child.Caption = "Noon";
        Demo.Child.Left = 15.0;
        Demo.Zones.Text = "Rome";
        EXPECT_EQ(Observer.Changes, 3);
    }
}

TEST_F(Controls, ASortedListHeedsNoCase) {
    for (const char* Entry : {"Rome", "athens", "Oslo"}) Demo.Names.AddItem(Entry);
    EXPECT_EQ(Demo.Names.List(0) + Demo.Names.List(1) + Demo.Names.List(2), "athensOsloRome");
}

TEST_F(Controls, AListPositionSetsTextAndRaisesClickWhenItChanges) {
    int Clicks = 0;
    for (const char* Entry : {"A", "B", "C"}) Demo.Zones.AddItem(Entry);
    Demo.Zones.Click = [&] { ++Clicks; };
    for (int Time = 0; Time < 2; ++Time) Demo.Zones.ListIndex = 1;
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(Demo.Zones.Text, "B");
    Demo.Zones.Pick(1);  // the user picks what is selected already
    for (const int Beyond : {3, 1000, -7}) {
        Demo.Zones.ListIndex = Beyond;
        EXPECT_EQ(Demo.Zones.ListIndex, -1);
    }
    EXPECT_EQ(Clicks, 2);
    Demo.Zones.ListIndex = 2;
    Demo.Zones.Clear();
    EXPECT_TRUE(Demo.Zones.ListIndex == -1 && Demo.Zones.ListCount() == 0);
    EXPECT_EQ(Clicks, 3);
}

TEST_F(Controls, AFormLoadsAndUnloadsOnceAndClosesByItsCancelButton) {
    std::string Events;
    Demo.OnLoad = [&] { Events += "load "; };
    Demo.OnUnload = [&] { Events += "unload "; };
    Demo.Cancel.Click = [&] { Events += "cancel "; };
    Demo.Cancel.Cancel = true;
    Demo.Show();
    Demo.Show();
    Demo.Close();
    Demo.Cancel.Cancel = false;
    Demo.Close();
    Demo.Unload();
    EXPECT_EQ(Events, "load cancel unload ");
    EXPECT_TRUE(!Demo.Visible && LoadedForms.empty());
}

}  // namespace
}  // namespace gloamtide
