// The program's own windows on each class of screen: what someone hears who uses no mouse and sees no screen, and
// whether there is room for what they say.

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "app/screens.h"
#include "dialogs/about_and_splash.h"
#include "frame/startup.h"
#include "platform/qt/fonts.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/qt_host.h"
#include "state/numbers.h"
#include "storage/configuration.h"
#include "tests/fresh_program.h"
#include "tests/golden.h"

namespace gloamtide {
namespace {

// A desktop with a screen of any size, where it is always the same noon.
class ScreenHost : public QtHost {
public:
    explicit ScreenHost(const QSize& TheScreen) : Screen(TheScreen) { ChooseScreen(ProgramScreens(), Screen); }

    DateTime SystemTime() override { return {2026, 3, 5, 20, 12, 0, 30, 0}; }
    DateTime LocalTime() override { return SystemTime(); }
    std::optional<std::string> ShowOpenDialog(const FileDialog&) override { return state.ConfigFilePath; }
    void Prepare(FormWindow& Window) override { Window.Expect(Screen); }
    void Present(FormWindow& Window) override {
        Window.resize(Screen);
        Window.show();
    }

private:
    QSize Screen;
};

class OwnWindows : public testing::TestWithParam<QSize> {
protected:
    OwnWindows() {
        RenewProgram();
        state.StartupSource = ConfigurationSource::Defaults;
        StartProgram();
        FormGTMain.MenuShowHideSubSundial.Click();
        FormGTMain.MenuAnimationSubStart.Click();
        FormGTMain.Timer3.Enabled = false;
    }
    ~OwnWindows() override { LoadedForms.clear(); }

    // Opens all windows, one after the other, and gives what a screen reader tells of them.
    QString Told() {
        FormSplash.OnLoad = PlaceSplash;
        QString Result = ToldBy(FormGTMain);
        const std::pair<Event*, Form*> Others[] = {{&FormGTMain.MenuConfigure.Click, &FormConfigure},
                                                   {&FormGTMain.MenuAnimationSubOptions.Click, &FormAnimation},
                                                   {&FormGTMain.CommandSDOptions.Click, &FormSundialOptions},
                                                   {&FormGTMain.MenuHelpSubAbout.Click, &FormAbout}};
        for (const auto& [Open, Which] : Others) {
            (*Open)();
            FormConfigure.OptionDateTime[1].Value = true;  // a new date, whose fields are shown
            Result += ToldBy(*Which);
        }
        FormSplash.Show();
        return Result + ToldBy(FormSplash);
    }

    // Menus, pictures, and what Tab comes to until it comes round, each with the group that it stands in.
    QString ToldBy(const Form& Which) {
        QWidget* Window = Desktop.WindowOf(Which);
        EXPECT_TRUE(QTest::qWaitForWindowActive(Window));
        QStringList Lines(Window->accessibleName());
        QString Menus = "    menus:";
        for (const QAction* Item : Window->findChildren<QAction*>()) {
            Menus += " " + (Item->isSeparator() ? "|" : Item->text());
            if (Item->menu() != nullptr) Menus += " (" + Item->menu()->accessibleName() + ")";
        }
        Lines.append(Menus);
        for (const QWidget* Each : Window->findChildren<QWidget*>()) {
            const bool Picture = Each->isVisible() && dynamic_cast<const PictureView*>(Each) != nullptr;
            if (Picture) Lines.append("    picture " + Each->accessibleName());
        }
        QWidgetList Met;
        for (auto* Focus = Window->focusWidget(); !Met.contains(Focus); Focus = Window->focusWidget()) {
            Met.append(Focus);
            const auto& Heard = *QAccessible::queryAccessibleInterface(Focus);
            QStringList Texts = {QVariant::fromValue(Heard.role()).toString(), Focus->parentWidget()->accessibleName(),
                                 Focus->accessibleName(),
                                 Heard.text(QAccessible::Value) + (Heard.state().checked ? "on" : "")};
            Texts.removeAll("");
            Lines.append("    " + Texts.join(" | "));
            QTest::keyClick(Focus, Qt::Key_Tab);
        }
        return Lines.join('\n') + "\n";
    }

    static void ShowLongestTexts() {
        std::string Longest;
        for (int City = 0; City < FormConfigure.ComboCityName.ListCount(); ++City) {
            const std::string& Name = FormConfigure.ComboCityName.List(City);
            if (Name.size() > Longest.size()) Longest = Name;
        }
        FormGTMain.LabelAnimInfo.Caption = "-100y, -365d, -24h   Backward";
        FormGTMain.LabelWorking.Visible = true;
        FormGTMain.LabelCity.Caption = Longest;
        FormGTMain.LabelLocNameShow[static_cast<std::size_t>(state.ScreenClass)].Caption = Longest;
        QCoreApplication::processEvents();
    }

    // The least size at which the widget shows all of its text, a list its longest entry; none where it has no text.
    static QSize NeededBy(const QWidget& Widget) {
        const auto* Text = qobject_cast<const QLabel*>(&Widget);
        if (Text != nullptr && Text->wordWrap()) return {Text->width(), Text->heightForWidth(Text->width())};
        // A push button would like to be wider than its text.
        const auto* Button = qobject_cast<const QPushButton*>(&Widget);
        if (Button != nullptr) return Button->fontMetrics().size(Qt::TextShowMnemonic, Button->text()) + QSize(8, 4);
        const bool Speaks = Text != nullptr || qobject_cast<const QAbstractButton*>(&Widget) != nullptr ||
                            qobject_cast<const QComboBox*>(&Widget) != nullptr;
        return Speaks ? Widget.sizeHint() : QSize();
    }

    // Each text is whole, within its parent, and clear of its neighbours.
    void ExpectRoom(const Form& Which) {
        const auto* Board = Desktop.WindowOf(Which)->findChild<QWidget*>("Board");
        EXPECT_TRUE(Board->parentWidget()->rect().contains(Board->geometry()));
        QWidgetList Met;
        // The last line's descent may reach over: below the dial stand figures alone, and they have none.
        const auto Letters = [](const QWidget& Widget) {
            return Widget.geometry().adjusted(0, 0, 0, -Widget.fontMetrics().descent());
        };
        for (QWidget* Widget : Board->findChildren<QWidget*>()) {
            const QSize Needed = NeededBy(*Widget);
            if (!Widget->isVisible() || Needed.isEmpty()) continue;
            const std::string Name = Widget->objectName().toStdString();
            EXPECT_EQ(Needed.boundedTo(Widget->size()), Needed) << Name;
            EXPECT_TRUE(Widget->parentWidget()->rect().contains(Letters(*Widget))) << Name;
            if (Name.starts_with("LabelHour")) continue;  // these go round the dial with the place
            for (const QWidget* Other : Met) {
                const bool Clear = Other->parent() != Widget->parent() || !Letters(*Other).intersects(Letters(*Widget));
                EXPECT_TRUE(Clear) << Name << " on " << Other->objectName().toStdString();
            }
            Met.append(Widget);
        }
        EXPECT_FALSE(Met.empty());
    }

    ScreenHost Desktop{GetParam()};
};

TEST_P(OwnWindows, AreHeardAndSeenInFull) {
    ExpectGoldenText("spoken_windows.txt", Told().toStdString());

    const QString Measured = "DejaVu Sans Condensed";  // the lettering of scripts/packages.txt
    if (!QFontDatabase::families().contains(Measured)) GTEST_SKIP() << "needs " << Measured.toStdString();
    EXPECT_EQ(QFontInfo(InstalledFont({})).family(), Measured);
    ShowLongestTexts();
    for (const Form* Each : LoadedForms) {
        SCOPED_TRACE(Each->Name);
        if (Each->Visible) ExpectRoom(*Each);
    }
}

TEST_P(OwnWindows, HaveRoomForAnyNumberOfAFileMadeByHand) {
    if (!QFontDatabase::families().contains("DejaVu Sans Condensed")) GTEST_SKIP() << "needs DejaVu Sans Condensed";
    if (Desktop.WindowOf(FormGTMain)->width() > 1280) GTEST_SKIP() << "the four layouts are enough";
    const QTemporaryDir Folder;
    auto& S = state;
    const std::function<void(double)> Fields[] = {
        [&](double Number) { S.OffsetDays = Number; },
        [&](double Number) { S.LocationLat = Number; },
        [&](double Number) { S.LocationLong = Single(Number); },
        [&](double Number) { S.ZoneHours = Single(Number); },
        [&](double Number) { S.DaylightHours = ToInt16(Number); },
        [&](double Number) { S.AnimYears = S.AnimDays = S.AnimHours = Single(Number); }};
    for (const double Number : {-1e300, 9.9e7, -9999.99}) {
        for (const auto& Field : Fields) {
            SCOPED_TRACE(std::to_string(&Field - Fields) + " is " + std::to_string(Number));
            SetDefaultConfiguration();
            state.ConfigFilePath = Folder.filePath("by-hand.gtf").toStdString();
            state.ShowSundial = True;
            Field(Number);
            SaveConfiguration();
            FormGTMain.MenuFileSubOpen.Click();
            QCoreApplication::processEvents();
            ExpectRoom(FormGTMain);
        }
    }
}

// As large as a window gets on the screens that people have: the four of the layouts, then what is left of others.
INSTANTIATE_TEST_SUITE_P(Screens, OwnWindows,
                         testing::Values(QSize(640, 480), QSize(800, 600), QSize(1024, 768), QSize(1280, 960),
                                         QSize(1280, 696), QSize(1366, 744), QSize(1440, 876), QSize(1920, 1056),
                                         QSize(2560, 1416), QSize(3840, 2136), QSize(5120, 1416), QSize(1080, 1896)));

}  // namespace
}  // namespace gloamtide
