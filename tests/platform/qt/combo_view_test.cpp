#include "platform/qt/combo_view.h"

#include <QAbstractItemView>
#include <QLineEdit>

#include "demo_form.h"

namespace gloamtide {
namespace {

using Combo = DesktopTest;

TEST_F(Combo, TheListIsTheRecords) {
    auto& Names = Find<QComboBox>(Demo.Names);
    ASSERT_EQ(Names.count(), 3);
    EXPECT_EQ(Names.itemText(0), "Athens") << "the record sorts";
    Demo.Names.ListIndex = 2;
    EXPECT_EQ(Names.currentText(), "Rome");
    Demo.Names.AddItem("Bern");
    EXPECT_EQ(Names.itemText(1), "Bern");
    Demo.Zones.Clear();
    EXPECT_EQ(Find<QComboBox>(Demo.Zones).count(), 0);
}

TEST_F(Combo, AnEntryPickedByKeyIsPickedInTheRecord) {
    int Picks = 0;
    Demo.Zones.Click = [&] { ++Picks; };
    QTest::keyClick(&Find<QComboBox>(Demo.Zones), Qt::Key_Down);
    EXPECT_EQ(Demo.Zones.ListIndex, 0);
    EXPECT_EQ(Demo.Zones.Text, "Rome");
    EXPECT_EQ(Picks, 1);
    Demo.Zones.ListIndex = 2;
    EXPECT_EQ(Find<QComboBox>(Demo.Zones).currentIndex(), 2);
    EXPECT_EQ(Picks, 2);
}

TEST_F(Combo, TheListIsFilledBeforeItOpensAndEnterPicksInIt) {
    int Accepted = 0;
    int Cancelled = 0;
    Demo.OK.Click = [&] { ++Accepted; };
    Demo.Cancel.Click = [&] { ++Cancelled; };
    Demo.Zones.DropDown = [&] { Demo.Zones.AddItem("Quito"); };
    auto& Zones = Find<QComboBox>(Demo.Zones);
    Zones.showPopup();
    EXPECT_EQ(Zones.view()->model()->rowCount(), 4);
    QTest::keyClick(Zones.view(), Qt::Key_End);
    QTest::keyClick(Zones.view(), Qt::Key_Return);
    EXPECT_EQ(Demo.Zones.Text, "Quito");
    Zones.showPopup();
    QTest::keyClick(Zones.view(), Qt::Key_Escape);
    EXPECT_EQ(Accepted, 0) << "the keys were the list's";
    EXPECT_EQ(Cancelled, 0);
}

TEST_F(Combo, ATypedTextPicksNothingEvenIfItIsAnEntry) {
    int Picks = 0;
    Demo.Names.Click = [&] { ++Picks; };
    auto& Names = Find<QComboBox>(Demo.Names);
    Names.setFocus();
    QTest::keyClicks(Names.lineEdit(), "Rom");
    EXPECT_EQ(Names.lineEdit()->text(), "Rom") << "nothing is completed";
    QTest::keyClicks(Names.lineEdit(), "e");
    EXPECT_EQ(Demo.Names.Text, "Rome");
    QTest::keyClick(Names.lineEdit(), Qt::Key_Return);
    Find<QLineEdit>(Demo.Year).setFocus();
    EXPECT_EQ(Demo.Names.ListIndex, -1);
    EXPECT_EQ(Picks, 0);
    EXPECT_EQ(Names.count(), 3) << "nothing is added either";
}

TEST_F(Combo, TypingOverAPickedEntryStaysInItsPlace) {
    auto& Names = Find<QComboBox>(Demo.Names);
    Demo.Names.ListIndex = 1;  // Oslo
    Names.lineEdit()->setCursorPosition(2);
    QTest::keyClicks(Names.lineEdit(), "xy");
    EXPECT_EQ(Names.lineEdit()->text(), "Osxylo");
    EXPECT_EQ(Demo.Names.Text, "Osxylo");
    EXPECT_EQ(Demo.Names.ListIndex, -1);
}

}  // namespace
}  // namespace gloamtide
