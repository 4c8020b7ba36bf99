#include "platform/qt/menus.h"

#include <QMenu>

#include "demo_form.h"

namespace gloamtide {
namespace {

using Menus = DesktopTest;

TEST_F(Menus, StandInTheBarInTheirOrder) {
    const auto* Bar = Window().findChild<QMenuBar*>();
    ASSERT_NE(Bar, nullptr);
    ASSERT_EQ(Bar->actions().size(), 2);
    EXPECT_EQ(Bar->actions().at(0)->text(), "&File");
    EXPECT_EQ(Bar->actions().at(1)->objectName(), "MenuQuit");
    const QList<QAction*> Items = Bar->actions().at(0)->menu()->actions();
    ASSERT_EQ(Items.size(), 3);
    EXPECT_EQ(Items.at(0)->text(), "&Open");
    EXPECT_TRUE(Items.at(1)->isSeparator());
    EXPECT_EQ(Items.at(1)->objectName(), "MenuFileSubOpenSep");
}

TEST_F(Menus, AccessKeysReachAMenuAndItsItems) {
    int Saved = 0;
    int Quits = 0;
    Demo.Save.Click = [&] { ++Saved; };
    Demo.Quit.Click = [&] { ++Quits; };
    QTest::keyClick(&Window(), Qt::Key_F, Qt::AltModifier);
    auto* List = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(List, nullptr);
    QTest::keyClick(List, Qt::Key_S);
    EXPECT_EQ(Saved, 1);
    QTest::keyClick(&Window(), Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(Quits, 1) << "a menu without a list acts at once";
}

TEST_F(Menus, TheProgramAloneSetsTheCheck) {
    int Opened = 0;
    Demo.Open.Click = [&] { ++Opened; };
    auto& Open = Find<QAction>(Demo.Open);
    Open.trigger();
    EXPECT_FALSE(Open.isChecked());
    Demo.Open.Checked = true;
    EXPECT_TRUE(Open.isChecked());
    Open.trigger();
    EXPECT_TRUE(Open.isChecked());
    EXPECT_EQ(Opened, 2);
    Demo.Open.Checked = false;
    EXPECT_FALSE(Open.isChecked());
}

}  // namespace
}  // namespace gloamtide
