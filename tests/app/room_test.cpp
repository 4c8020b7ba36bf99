// The program's own windows on each class of screen: whether there is room for what they say.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "dialogs/about_and_splash.h"
#include "frame/startup.h"
#include "platform/qt/fonts.h"
#include "platform/qt/qt_host.h"
#include "tests/fresh_program.h"

namespace gloamtide {
namespace {

class ScreenHost : public QtHost {
public:
    explicit ScreenHost(QSize TheScreen) : Screen(TheScreen) {}

    double ScreenWidthTwips() override { return Screen.width() * TwipsPerPixel; }
    double ScreenHeightTwips() override { return Screen.height() * TwipsPerPixel; }
    void FillScreen(QWidget& Window) override {
        Window.resize(Screen);
        Window.show();
    }

private:
    QSize Screen;
};

class Room : public testing::TestWithParam<QSize> {
protected:
    Room() {
        RenewProgram();
        state.StartupSource = ConfigurationSource::Defaults;
        StartProgram();
        FormSplash.OnLoad = PlaceSplash;
        FormConfigure.OptionDateTime[1].Value = true;
        // The longest texts that the main window comes to.
        FormGTMain.MenuShowHideSubSundial.Click();
        FormGTMain.MenuAnimationSubStart.Click();
        FormGTMain.Timer3.Enabled = false;
        FormGTMain.LabelAnimInfo.Caption = "-100y, -365d, -24h   Backward";
        FormGTMain.LabelWorking.Visible = true;
        std::string Longest;
        for (int City = 0; City < FormConfigure.ComboCityName.ListCount(); ++City) {
            Longest = std::max(Longest, FormConfigure.ComboCityName.List(City),
                               [](const auto& A, const auto& B) { return A.size() < B.size(); });
        }
        FormGTMain.LabelCity.Caption = Longest;
        FormGTMain.LabelLocNameShow[static_cast<std::size_t>(state.ScreenClass)].Caption = Longest;
    }
    ~Room() override {
        state.ExitInProgress = True;  // no question
        while (!LoadedForms.empty()) LoadedForms.back()->Unload();
    }

    void SetUp() override {
        if (QFontInfo(InstalledFont({})).family() != "DejaVu Sans Condensed") {
            GTEST_SKIP() << "measures the lettering of scripts/packages.txt";
        }
    }

    // The least size at which the widget shows all of its text, a list its longest entry.
    static QSize NeededBy(const QWidget& Widget) {
        if (const auto* Text = qobject_cast<const QLabel*>(&Widget); Text != nullptr && Text->wordWrap()) {
            return {Text->width(), Text->heightForWidth(Text->width())};
        }
        // A push button would like to be wider than its text.
        if (const auto* Button = qobject_cast<const QPushButton*>(&Widget); Button != nullptr) {
            return Button->fontMetrics().size(Qt::TextShowMnemonic, Button->text()) + QSize(8, 4);
        }
        return Widget.sizeHint();
    }

    static bool Speaks(const QWidget& Widget) {
        return qobject_cast<const QLabel*>(&Widget) != nullptr ||
               qobject_cast<const QAbstractButton*>(&Widget) != nullptr ||
               qobject_cast<const QComboBox*>(&Widget) != nullptr;
    }

    ScreenHost Desktop{GetParam()};
};

TEST_P(Room, NothingIsCutOffAndNothingScrolls) {
    for (Form* Each : std::initializer_list<Form*>{&FormGTMain, &FormConfigure, &FormAnimation, &FormSundialOptions,
                                                   &FormAbout, &FormSplash}) {
        SCOPED_TRACE(Each->Name);
        Each->Show();
        const QWidget& Window = *Desktop.WindowOf(*Each);
        QCoreApplication::processEvents();
        const auto* Scroller = Window.findChild<QScrollArea*>();
        EXPECT_EQ(Scroller->horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(Scroller->verticalScrollBar()->maximum(), 0);
        int Texts = 0;
        for (const QWidget* Widget : Scroller->widget()->findChildren<QWidget*>()) {
            if (!Widget->isVisible() || !Speaks(*Widget)) continue;
            ++Texts;
            const QSize Needed = NeededBy(*Widget);
            const std::string Name = Widget->objectName().toStdString();
            EXPECT_LE(Needed.width(), Widget->width()) << Name;
            EXPECT_LE(Needed.height(), Widget->height()) << Name;
            // The last line's descent may reach over: below the dial stand figures alone, and they have none.
            const QRect Letters = Widget->geometry().adjusted(0, 0, 0, -Widget->fontMetrics().descent());
            EXPECT_TRUE(Widget->parentWidget()->rect().contains(Letters)) << Name;
        }
        EXPECT_GT(Texts, 0);
        for (const QGroupBox* Group : Window.findChildren<QGroupBox*>()) {
            const std::string Name = Group->objectName().toStdString();
            EXPECT_FALSE(Group->accessibleName() == Group->objectName()) << Name << ": a name for programmers";
            for (const QWidget* Inner : Group->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
                const bool Field = Inner->focusPolicy() != Qt::NoFocus;
                EXPECT_FALSE(Field && Inner->accessibleName() == Group->accessibleName()) << Name << ": a field's name";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, Room,
                         testing::Values(QSize(640, 480), QSize(800, 600), QSize(1024, 768), QSize(1280, 1024)),
                         [](const auto& Info) { return "Width" + std::to_string(Info.param.width()); });

}  // namespace
}  // namespace gloamtide
