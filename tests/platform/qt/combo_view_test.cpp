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

    // Types a text, which may have letters that no key has, in place of the one that is there.
    void Enter(const QString& Text) {
        Names.setFocus();
        Typed.selectAll();
        QInputMethodEvent Event;
        Event.setCommitString(Text);
        QCoreApplication::sendEvent(&Typed, &Event);
    }

    QComboBox& Names = Find<QComboBox>(Demo.Names);
    QComboBox& Zones = Find<QComboBox>(Demo.Zones);
    QLineEdit& Typed = *Names.lineEdit();
    QAbstractItemView& Offered = *Names.completer()->popup();
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

TEST_F(Combo, ATextOfOnesOwnStaysOneAndAnEntryIsPickedByItsName) {
    for (const auto& [Text, Entry] :
         {std::pair("Rom", -1), {"Rome", 2}, {"rOmE ", 2}, {"Romeo", -1}, {"R\u00F2me", 2}}) {
        Enter(Text);
        QTest::keyClick(Offered.isVisible() ? &Offered : static_cast<QWidget*>(&Typed), Qt::Key_Tab);
        ExpectPicked(Demo.Names, Names, Entry, Entry < 0 ? Text : "Rome");
        EXPECT_EQ(std::exchange(Heard, ""), Entry < 0 ? "" : "Names ");
    }
    Demo.Names.Type("Athens");  // the program's own text
    Names.setFocus();
    Find<QLineEdit>(Demo.Year).setFocus();
    ExpectPicked(Demo.Names, Names, -1, "Athens");
    for (const auto& [Cursor, Result] : {std::pair(2, "Osxylo"), {4, "Osloxy"}}) {
        Demo.Names.ListIndex = 1;
        Names.setFocus();
        Typed.setCursorPosition(Cursor);
        QTest::keyClicks(&Typed, "xy");
        ExpectPicked(Demo.Names, Names, -1, Result);
    }
    EXPECT_EQ(Names.count(), 3) << "nothing is added";
}

TEST_F(Combo, EntriesThatFitAreOfferedWhileOneTypes) {
    for (const char* Entry : {"New York, USA", "S\u00E3o Tom\u00E9", "St John's"}) Demo.Names.AddItem(Entry);
    QString Text;
    for (const char* Begin : {"york", "new y", "o", "ork", "s", "SAO t"}) {
        Offered.hide();
        Enter(Begin);
        EXPECT_EQ(Demo.Names.Text, Begin) << "nothing is put in";
        Text += QString(Begin) + (Offered.isVisible() ? ":" : ".");
        for (int Row = 0; Row < Offered.model()->rowCount(); ++Row)
            Text += Offered.model()->index(Row, 0).data().toString() + "|";
    }
    EXPECT_EQ(
        Text,
        "york:New York, USA|new y:New York, USA|o:Oslo|ork.s:St John's|S\u00E3o Tom\u00E9|SAO t:S\u00E3o Tom\u00E9|");
    QTest::keyClick(&Offered, Qt::Key_Down);
    QTest::keyClick(&Offered, Qt::Key_Return);
    ExpectPicked(Demo.Names, Names, 5, "S\u00E3o Tom\u00E9");
    EXPECT_EQ(Heard, "Names ") << "once, and not OK";
}

TEST_F(Combo, TypedDigitsSelectTheirNumber) {
    for (int Number = 0; Number < 70; ++Number) Demo.Zones.AddItem((Number < 10 ? " 0" : " ") + std::to_string(Number));
    for (const auto& [Keys, Entry] : {std::pair("52", " 52"), {"055", " 55"}, {"71", " 01"}, {"666", " 06"}}) {
        QTest::keyClicks(&Zones, Keys);
        EXPECT_EQ(Demo.Zones.Text, Entry);
        QTest::keyClick(&Zones, Qt::Key_Home);
        Zones.showPopup();
        QTest::keyClicks(Zones.view(), Keys);
        QTest::keyClick(Zones.view(), Qt::Key_Return);
        EXPECT_EQ(Demo.Zones.Text, Entry) << "in the open list";
    }
}

}  // namespace
}  // namespace gloamtide
