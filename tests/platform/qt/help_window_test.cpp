#include "platform/qt/help_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "assets/assets.h"
#include "platform/qt/qt_host.h"

namespace gloamtide {
namespace {

QString HelpText() {
    const AssetBytes Bytes = HelpHtml();
    return QString::fromUtf8(reinterpret_cast<const char*>(Bytes.data()), static_cast<qsizetype>(Bytes.size()));
}

QStringList Entries(const QListWidget& List) {
    QStringList Result;
    for (int Row = 0; Row < List.count(); ++Row) Result.append(List.item(Row)->text());
    return Result;
}

class Help : public testing::Test {
protected:
    template <class Widget>
    Widget& Find(const char* Name) {
        return *Window.findChild<Widget*>(Name);
    }
    QString Paragraph() { return Find<QTextBrowser>("HelpText").textCursor().block().text(); }

    HelpWindow Window{HelpText()};
};

TEST_F(Help, TheIndexLeadsToTheStartupFile) {
    const QStringList Index = Entries(Find<QListWidget>("HelpIndex"));
    EXPECT_TRUE(Index.contains("Startup File"));
    EXPECT_EQ(QSet<QString>(Index.begin(), Index.end()).size(), Index.size()) << "each entry stands once";
    QTest::keyClicks(&Find<QLineEdit>("HelpIndexField"), "startup f");
    EXPECT_EQ(Find<QListWidget>("HelpIndex").currentItem()->text(), "Startup File");
    EXPECT_TRUE(Paragraph().contains("path of the configuration file to open at the next start"));
}

TEST_F(Help, ContentsLeadToTheirHeadings) {
    auto& Contents = Find<QListWidget>("HelpContents");
    ASSERT_GT(Contents.count(), 8);
    for (int Row = Contents.count() - 1; Row >= 0; --Row) {
        Contents.setCurrentRow(Row);
        EXPECT_EQ(Paragraph(), Contents.item(Row)->text());
    }
}

TEST_F(Help, SearchFindsWordsAnywhere) {
    auto& Found = Find<QListWidget>("HelpFound");
    QTest::keyClicks(&Find<QLineEdit>("HelpSearchField"), "JULIAN");
    ASSERT_GT(Found.count(), 1);
    Found.setCurrentRow(1);
    EXPECT_TRUE(Paragraph().contains("Julian"));
    QTest::keyClicks(&Find<QLineEdit>("HelpSearchField"), " nowhere at all");
    EXPECT_EQ(Found.count(), 0);
}

TEST_F(Help, ItSpeaksOfEveryCommandAndPanelRow) {
    const QString Text = Find<QTextBrowser>("HelpText").toPlainText();
    for (const char* Each : {"Open",
                             "Save",
                             "SaveAs",
                             "Quit",
                             "Configure",
                             "Sun",
                             "Moon",
                             "Analemma",
                             "Cities",
                             "Map Gridlines",
                             "Time Zones",
                             "Sundial",
                             "Natural",
                             "Political",
                             "Settings",
                             "Start",
                             "Stop",
                             "Contents",
                             "About Gloamtide",
                             "Local Date",
                             "Local Time",
                             "Time Zone",
                             "Greenwich Date",
                             "Greenwich Time",
                             "Julian Date",
                             "Offset From System Time",
                             "Gloamtide Season",
                             "Time Until Next Season",
                             "Location Name",
                             "Location Lat",
                             "Location Long",
                             "Location Sunrise",
                             "Location Sunset",
                             "Sun's Declination",
                             "Equation Of Time",
                             "Age Of Moon",
                             "Phase Of Moon",
                             "Startup.dat",
                             ".gtf"}) {
        EXPECT_TRUE(Text.contains(Each)) << Each;
    }
}

TEST(HelpRequest, OpensTheFileThatIsThereAndIsQuietOtherwise) {
    QtHost Desktop;
    const auto Shown = [] {
        const QWidgetList Windows = QApplication::topLevelWidgets();
        return std::any_of(Windows.begin(), Windows.end(),
                           [](const QWidget* Each) { return Each->objectName() == "HelpWindow" && Each->isVisible(); });
    };
    Desktop.ShowHelp("GT401.hlp");
    EXPECT_FALSE(Shown());
    Desktop.HelpTexts["GT401.hlp"] = HelpText();
    Desktop.ShowHelp("other.hlp");
    EXPECT_FALSE(Shown());
    Desktop.ShowHelp("GT401.hlp");
    EXPECT_TRUE(Shown());
}

}  // namespace
}  // namespace gloamtide
