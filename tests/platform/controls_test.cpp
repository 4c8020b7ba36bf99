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
    Demo.Child.Observer = Demo.Names.Observer = &Observer;
    for (int Time = 0; Time < 2; ++Time) {
        Demo.Child.Caption = "Noon";
        Demo.Child.Left = 15.0;
        Demo.Names.Text = "Rome";
        EXPECT_EQ(Observer.Changes, 3);
    }
}

TEST_F(Controls, ASortedListKeepsItemDataWithItsEntries) {
    const char* const Given[] = {"Rome", "athens", "Oslo", "Rome"};
    std::string Sorted;
    for (int Row = 0; Row < 4; ++Row) {
        Demo.Names.AddItem(Given[Row]);
        Demo.Names.SetItemData(Demo.Names.NewIndex, Row);
    }
    for (int Row = 0; Row < 4; ++Row) Sorted += Demo.Names.List(Row) + std::to_string(Demo.Names.ItemData(Row)) + " ";
    EXPECT_EQ(Sorted, "athens1 Oslo2 Rome0 Rome3 ");
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

TEST_F(Controls, AControlStaysWhereItWasPutWhenTheScaleChanges) {
    Demo.Picture.Size(3000.0, 1500.0);  // twips: 200 by 100 pixels
    Demo.Child.Move(300.0, 150.0);
    Demo.Picture.Scale(-1100.0, 1100.0, 1100.0, -600.0);
    EXPECT_EQ(Demo.Child.Left.Pixels(), 20.0);
    EXPECT_DOUBLE_EQ(Demo.Child.Left, -1100.0 + 20.0 * 11.0);
    EXPECT_DOUBLE_EQ(Demo.Child.Top, 1100.0 - 10.0 * 17.0);
    Demo.Child.Move(0.0, 250.0);
    EXPECT_EQ(std::pair(Demo.Child.Left.Pixels(), Demo.Child.Top.Pixels()), std::pair(100.0, 50.0));
    Demo.Picture.Scale(5.0, 5.0, 5.0, 5.0);  // no scale at all
    EXPECT_EQ(std::pair(Demo.Picture.ScaleWidth(), Demo.Picture.ScaleHeight()), std::pair(2200.0, -1700.0));
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
