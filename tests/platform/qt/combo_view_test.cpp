#include "platform/qt/combo_view.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

class Combo : public DesktopTest {
protected:
    // Asks for the selected entry, or none, and its text, in the record and in the widget.
    static void ExpectPicked(const ComboBox& Record, const QComboBox& Shown, int Entry, const char* Text) {
        EXPECT_EQ(std::tuple(Record.ListIndex.Get(), Record.Text.Get()), std::tuple(Entry, Text));
        EXPECT_EQ(std::tuple(Shown.currentIndex(), Shown.currentText()), std::tuple(Entry, Text));
    }

    QComboBox& Names = Find<QComboBox>(Demo.Names);
    QComboBox& Zones = Find<QComboBox>(Demo.Zones);
    QLineEdit& Typed = *Names.lineEdit();
};

TEST_F(Combo, TheListIsTheRecordsWhenItIsSeen) {
    Demo.Names.AddItem("Bern");
    EXPECT_EQ(Names.itemText(1), "Bern") << "the record sorts";
    Demo.Zones.Clear();
    EXPECT_EQ(Zones.count(), 0);
    Demo.Zones.Visible = false;
    Demo.Zones.AddItem("Quito");
    EXPECT_EQ(Zones.count(), 0);
    Demo.Zones.Visible = true;
    EXPECT_EQ(Zones.count(), 1);
}

TEST_F(Combo, AnEntryPickedByKeyIsPickedInTheRecord) {
    QTest::keyClick(&Zones, Qt::Key_Down);
    ExpectPicked(Demo.Zones, Zones, 0, "Rome");
    Demo.Zones.ListIndex = 2;
    ExpectPicked(Demo.Zones, Zones, 2, "Oslo");
    EXPECT_EQ(Heard, "Zones Zones ");
}

TEST_F(Combo, TheListIsFilledBeforeItOpensAndHasTheKeys) {
    Demo.Zones.DropDown = [&] {
        while (Demo.Zones.ListCount() < 40) Demo.Zones.AddItem("Quito");
    };
    Zones.showPopup();
    EXPECT_EQ(Zones.view()->viewport()->height() / Zones.view()->sizeHintForRow(0), 16) << "then it scrolls";
    QTest::keyClick(Zones.view(), Qt::Key_End);
    QTest::keyClick(Zones.view(), Qt::Key_Return);
    ExpectPicked(Demo.Zones, Zones, 39, "Quito");
    Zones.showPopup();
    QTest::keyClick(Zones.view(), Qt::Key_Escape);
    EXPECT_EQ(Heard, "Zones ") << "neither OK nor Cancel";
}

TEST_F(Combo, ATypedTextPicksNothingEvenIfItIsAnEntry) {
    Names.setFocus();
    QTest::keyClicks(&Typed, "Rom");
    EXPECT_EQ(Typed.text(), "Rom") << "nothing is completed";
    QTest::keyClicks(&Typed, "e");
    QTest::keyClick(&Typed, Qt::Key_Return);
    Find<QLineEdit>(Demo.Year).setFocus();
    ExpectPicked(Demo.Names, Names, -1, "Rome");
    EXPECT_EQ(Heard, "OK ");
    EXPECT_EQ(Names.count(), 3) << "nothing is added either";
    for (const auto& [Cursor, Result] : {std::pair(2, "Osxylo"), {4, "Osloxy"}}) {
        Demo.Names.ListIndex = 1;
        Typed.setCursorPosition(Cursor);
        QTest::keyClicks(&Typed, "xy");
        ExpectPicked(Demo.Names, Names, -1, Result);
    }
}

}  // namespace
}  // namespace gloamtide
